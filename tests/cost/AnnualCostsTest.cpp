// Income, maintenance, operation and energy of the operating years.
#include "cost/CostTest.h"

#include "base/Failure.h"

namespace velorix {
namespace {

class AnnualCostsTest : public CostTest {
protected:
    AnnualCostsTest() { wLife = 3; }

    // A pump that runs 10 hours off-peak, 6 standard and 2 peak at different rates in the two seasons. One kW
    // costs 10 x 0.25 + 6 x 0.5 + 2 x 1 = 7.5 a summer day and twice that a winter day.
    static void DescribePump()
    {
        wSystemType = 1;
        wSOffpeak = 0.25;
        wSStandard = 0.5;
        wSPeak = 1;
        wWOffpeak = 0.5;
        wWStandard = 1;
        wWPeak = 2;
        wSummer = 6;
        wTRWL = 20;
        ElevationFactor = 1;
        wPumpDetails = 1;
        wPumpEfficiency = 40;
        for (int y = 1; y <= 3; ++y) {
            for (ByYear* Hours : {&HoursOffpeakS, &HoursOffpeakW}) (*Hours)[y] = 10;
            for (ByYear* Hours : {&HoursStandardS, &HoursStandardW}) (*Hours)[y] = 6;
            for (ByYear* Hours : {&HoursPeakS, &HoursPeakW}) (*Hours)[y] = 2;
            Gradeline(1, y) = 100;
            Flow[y] = 0.5;
            DemandFlow[y] = 0.25;
            Efficiency[y] = 80;
        }
    }
};

// One cubic metre a second for a year is 31536000 m3.
TEST_F(AnnualCostsTest, GravityIncomeIsLimitedByDemandAndSupply)
{
    wWaterSales = 2;
    wWaterIncrease = 10;
    WaterSalesFactor = 1;
    DemandFactor = 0.5;
    wFlowrate = 1; // 0.5 m3/s
    Flow[1] = 0.25;
    Flow[2] = 4;
    Flow[3] = 0.5;
    ComputeIncome();
    EXPECT_EQ(IncomeSeries[1], 31536000.0 * 0.25 * 2);
    EXPECT_NEAR(IncomeSeries[2], 31536000.0 * 0.5 * 2 * 1.1, 3);
    EXPECT_NEAR(IncomeSeries[3], 31536000.0 * 0.5 * 2 * 1.21, 3);

    wVaryingDemand = 1;
    wDemand[1] = 0.25; // 0.125 m3/s
    wDemand[2] = 100;
    ComputeIncome();
    EXPECT_EQ(IncomeSeries[1], 31536000.0 * 0.125 * 2);
    EXPECT_NEAR(IncomeSeries[2], 31536000.0 * 4 * 2 * 1.1, 25);
    EXPECT_EQ(IncomeSeries[3], 0);
}

TEST_F(AnnualCostsTest, PumpSellsWhatItsHoursGive)
{
    wSystemType = 1;
    wWaterSales = 2;
    WaterSalesFactor = 0.5;
    DemandFactor = 1;
    wFlowrate = 0.5;
    for (int y = 1; y <= 3; ++y) Flow[y] = 1;
    PumpingHours[1] = 6;
    PumpingHours[2] = 18;
    ComputeIncome();
    EXPECT_EQ(IncomeSeries[1], 31536000.0 * 0.25);
    EXPECT_EQ(IncomeSeries[2], 31536000.0 * 0.5);
    EXPECT_EQ(IncomeSeries[3], 0);
}

// Works of 1000000 (laid), 200000 and 400000 at 2.5, 4 and 0.5 percent; staff of 40 percent of 300000 and 10
// percent of 50000, expenses of 15 x 1000. Escalation of 10 percent.
TEST_F(AnnualCostsTest, MaintenanceAndOperationByHand)
{
    LayingCost = 400000;
    PipeSupplyCost = 600000;
    wMechanical = 200000;
    wElectrical = 400000;
    wMPipeline = 250;
    wMMechanical = 400;
    wMElectrical = 50;
    wEscalation = 10;
    wStaffPackage[1] = 300000;
    wStaffTime[1] = 40;
    wStaffPackage[8] = 50000;
    wStaffTime[8] = 10;
    for (int Row = 1; Row <= 5; ++Row) wExpenses[Row] = 1000.0 * Row;
    ComputeAnnualCosts();

    EXPECT_EQ(MaintPipeline[1], 25000);
    EXPECT_EQ(MaintMechanical[1], 8000);
    EXPECT_EQ(MaintElectrical[1], 2000);
    EXPECT_EQ(MaintTotal[1], 35000);
    EXPECT_EQ(OperationalCost[1], 140000);
    EXPECT_NEAR(MaintTotal[3], 35000 * 1.21, 0.01);
    EXPECT_NEAR(OperationalCost[3], 140000 * 1.21, 0.02);
    EXPECT_EQ(MaintTotal[4], 0);
}

// 80 m x 0.5 m3/s x 9.81 = 392.4 kW of water, by 0.8 x 0.95 = 516.316 kW drawn; a kW costs
// 365 x (7.5 + 15) / 2 = 4106.25 a year: 2120121.7.
TEST_F(AnnualCostsTest, EnergyWithAPumpCurveByHand)
{
    DescribePump();
    wEnergyEscalation = 20;
    wEscalation = 50;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7, 0.3);
    EXPECT_NEAR(EnergyCost[3], 2120121.7 * 1.44, 0.6);
    EXPECT_EQ(EnergyCostWork[3], EnergyCost[3]);

    // One season alone, and levels in feet, whose factor of 0 leaves the whole gradeline.
    wSummer = 12;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7 * 7.5 / 11.25, 0.3);
    wSummer = 0;
    ElevationFactor = 0;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7 * 15 / 11.25 * 100 / 80, 0.5);
}

// Half the flow at half the efficiency draws the same power.
TEST_F(AnnualCostsTest, EnergyWithoutAPumpCurveFollowsTheDemand)
{
    DescribePump();
    wPumpDetails = 0;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7, 0.3);
}

TEST_F(AnnualCostsTest, GravityHasNoEnergyCost)
{
    DescribePump();
    ComputeAnnualCosts();
    ASSERT_GT(EnergyCost[3], 0);
    wSystemType = 0;
    ComputeAnnualCosts();
    for (int y = 1; y <= 3; ++y) EXPECT_EQ(EnergyCost[y], 0) << y;
}

TEST_F(AnnualCostsTest, ZeroEfficiencyFailsAndLeavesTheYearAlone)
{
    DescribePump();
    Efficiency[2] = 0;
    EnergyCost[2] = 5;
    EXPECT_THROW(ComputeAnnualCosts(), ArithmeticFailure);
    EXPECT_GT(EnergyCost[1], 0);
    EXPECT_EQ(EnergyCostWork[2], 0);
    EXPECT_EQ(EnergyCost[2], 5);
    EXPECT_EQ(EnergyCost[3], 0);

    // No power over no efficiency is a failure as well.
    wPumpDetails = 0;
    wPumpEfficiency = 0;
    DemandFlow[1] = 0;
    EXPECT_THROW(ComputeAnnualCosts(), ArithmeticFailure);
}

} // namespace
} // namespace velorix
