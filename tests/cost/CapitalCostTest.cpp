// Trenches, fees and the capital cost build-up.
#include "cost/CostTest.h"

#include "base/Failure.h"

#include <cmath>

namespace velorix {
namespace {

class CapitalCostTest : public CostTest {
protected:
    static void ComputeCapitalCost(double Supervision = 0)
    {
        ComputeConstructionCost();
        ComputeTotalCapitalCost(Supervision);
    }

    // A pipeline with a pipe of 1 million, mechanical and electrical works of 4 million, 20 percent
    // preliminary and general items, 10 percent contingencies, 12 percent escalation over two years.
    static void DescribePipelineOfAMillion()
    {
        NodeCount = 2;
        SectionLength[1] = 1000;
        wPipeCost[1] = 1000;
        wMechanical = 2500000;
        wElectrical = 1500000;
        wPG = 20;
        wContingencies = 10;
        wEscalation = 12;
        BuildFor(2);
    }
};

// By hand for 100 m of a bore of 0.5 m: W = 1.1 m, T = 0.9 + 0.5 + 0.1 = 1.5 m; rates mixed by their shares
// are 40 x 0.75 + 200 x 0.25 = 80, 30 x 0.4 + 120 x 0.6 = 84 and 25 x 0.6 + 110 x 0.4 = 59. The second
// section is half as long. Stored values carry seven digits.
TEST_F(CapitalCostTest, TrenchByHand)
{
    const double Values[] = {50, 40, 200, 120, 30, 110, 25, 20, 25, 60, 40, 0.9, 0.1};
    for (int i = 0; i < 13; ++i) wLaying[i + 1] = Values[i];
    ReadLayingRates();
    NodeCount = 3;
    LiningLoss = 0.01;
    for (int i = 1; i <= 2; ++i) InternalDiameter[i] = 0.49;
    SectionLength[1] = 100;
    SectionLength[2] = 50;
    SectionLength[3] = 10; // no section of its own, but its pipe is bought
    wPipeCost[1] = 900;
    wPipeCost[2] = 800;
    wPipeCost[3] = 30;
    for (int Run = 1; Run <= 2; ++Run) ComputeCapitalCost(); // a second run starts from nothing

    EXPECT_NEAR(ExcavationCost[1], 1.5 * 1.1 * 100 * 80, 0.01);
    EXPECT_NEAR(BeddingCost[1], 1.1 * 0.1 * 100 * 84, 0.001);
    EXPECT_NEAR(BlanketCost[1], (0.6 * 1.1 - 0.196349541) * 100 * 59, 0.003);
    EXPECT_NEAR(BackfillCost[1], 20 * 1.1 * 100 * 0.8, 0.002);
    EXPECT_EQ(PipeLayingCost[1], 5000);
    EXPECT_NEAR(BlanketCost[2], BlanketCost[1] / 2, 0.001);
    EXPECT_EQ(ExcavationCost[3], 0);

    // 13200 + 924 + 2735.538 + 1760 + 5000 = 23619.538 for 100 m
    EXPECT_NEAR(LayingCost, 23619.538 * 1.5, 0.02);
    EXPECT_EQ(PipeSupplyCost, 90000 + 40000 + 300);

    // 150 percent of import at no cost leave the blanket a rate of -50. Backfill doesn't go below zero.
    RateBlanketTrench = 100;
    RateBlanketImport = 0;
    PercentBlanketImport = 150;
    Cover = 0.05;
    ComputeCapitalCost();
    EXPECT_NEAR(BlanketCost[1], (0.6 * 1.1 - 0.196349541) * 100 * -50, 0.003);
    EXPECT_EQ(BackfillCost[1], 0);
}

// Widths read off the backfill of 1 m of trench, a metre high, at 1 a cubic metre.
TEST_F(CapitalCostTest, TrenchWidensBeyondABoreOfExactly32Bits)
{
    NodeCount = 2;
    SectionLength[1] = 1;
    RateBackfilling = 1;
    Cover = 1.1;
    const float Ends[][3] = {
        {0.7F, 1.3F, 1.5F}, {1, 1.8F, 2}, {2, 3, 3.2F}}; // bore, width up to it and beyond
    for (const auto& [End, Width, Beyond] : Ends) {
        InternalDiameter[1] = End;
        ComputeCapitalCost();
        EXPECT_NEAR(BackfillCost[1], Width, 1e-6);
        InternalDiameter[1] = std::nextafter(End, 9.0F);
        ComputeCapitalCost();
        EXPECT_NEAR(BackfillCost[1], Beyond, 1e-6);
    }
    InternalDiameter[1] = 0.68; // with the lining a double above the 32 bits of 0.7, which rounds to them
    LiningLoss = 0.02;
    ComputeCapitalCost();
    EXPECT_NEAR(BackfillCost[1], 1.3, 1e-6);
}

// Without construction years nothing escalates: 5 x 1.2 x 1.1 = 6.6 million, with fees of 152000 on 1.32 and
// of 492400 on 5.28 million.
TEST_F(CapitalCostTest, TheCapitalIsSpentEvenlyOverTheYearsOfConstruction)
{
    DescribePipelineOfAMillion();
    ComputeCapitalCost();
    EXPECT_EQ(CapitalSeries[1], Single(TotalCapitalCost / 2));
    EXPECT_EQ(CapitalSeries[2], CapitalSeries[1]);
    EXPECT_EQ(CapitalSeries[3], 0);

    BuildFor(0);
    ComputeCapitalCost(150000);
    EXPECT_NEAR(TotalCapitalCost, 1.14 * (6600000 + 152000 + 492400 + 150000), 1);
    EXPECT_EQ(CapitalSeries[1], 0);
}

// The fee at the end of a bracket is the sum of all brackets up to there; the next one starts from it.
TEST_F(CapitalCostTest, FeeScalesAreContinuous)
{
    struct BracketEnd {
        double (*Fee)(double);
        double Value, Sum, ShareBelow, ShareAbove;
    };
    const BracketEnd Ends[] = {{CivilFee, 800000, 100000, 0.125, 0.1},
                               {CivilFee, 3400000, 360000, 0.1, 0.075},
                               {CivilFee, 13100000, 1087500, 0.075, 0.055},
                               {MechanicalElectricalFee, 800000, 100000, 0.125, 0.1},
                               {MechanicalElectricalFee, 2500000, 270000, 0.1, 0.08},
                               {MechanicalElectricalFee, 7400000, 662000, 0.08, 0.07},
                               {MechanicalElectricalFee, 17100000, 1341000, 0.07, 0.06},
                               {MechanicalElectricalFee, 31400000, 2199000, 0.06, 0.055}};
    for (const BracketEnd& End : Ends) {
        EXPECT_NEAR(End.Fee(End.Value), End.Sum, 1e-6);
        EXPECT_NEAR(End.Fee(End.Value - 100), End.Sum - 100 * End.ShareBelow, 1e-6);
        EXPECT_NEAR(End.Fee(End.Value + 100), End.Sum + 100 * End.ShareAbove, 1e-6);
    }
}

// Each failure leaves what was computed before it, and what comes after it as it was.
TEST_F(CapitalCostTest, FailuresEndTheBuildUpWhereTheyHappen)
{
    DescribePipelineOfAMillion();
    BuildFor(101);
    EXPECT_THROW(ComputeCapitalCost(), SubscriptFailure);
    EXPECT_EQ(CapitalSeries[100], Single(TotalCapitalCost / 101));

    wPipeCost[1] = wMechanical = wElectrical = 0; // construction that costs nothing
    EXPECT_THROW(ComputeCapitalCost(), ArithmeticFailure);
    EXPECT_EQ(EscalationAmount, 0);
    EXPECT_GT(ConsultingFees, 700000);
}

} // namespace
} // namespace velorix
