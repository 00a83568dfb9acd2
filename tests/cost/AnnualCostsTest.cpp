// Income, maintenance, operation and energy of the operating years.
#include "cost/CostTest.h"

#include "base/Failure.h"

namespace velorix {
namespace {

class AnnualCostsTest : public CostTest {
protected:
    AnnualCostsTest() { wLife = 3; }

    // At 2 a unit of half a cubic metre in year 1, and 10 percent more each year; 1 m3/s is 31536000 m3 a
    // year.
    static void ExpectSold(double First, double Second, double Third)
    {
        wWaterSales = 2;
        WaterSalesFactor = 2;
        wWaterIncrease = 10;
        ComputeIncome();
        EXPECT_NEAR(IncomeSeries[1], 31536000.0 * 4 * First, 1);
        EXPECT_NEAR(IncomeSeries[2], 31536000.0 * 4 * 1.1 * Second, 20);
        EXPECT_NEAR(IncomeSeries[3], 31536000.0 * 4 * 1.21 * Third, 20);
    }
};

// Flow of a pump counts for its hours of the day only.
TEST_F(AnnualCostsTest, TheSmallerOfSupplyAndDemandIsSold)
{
    DemandFactor = 0.5;
    wFlowrate = 1; // 0.5 m3/s
    Flow[1] = 0.25;
    Flow[2] = 4;
    Flow[3] = 0.5;
    ExpectSold(0.25, 0.5, 0.5);
    wVaryingDemand = 1;
    wDemand[1] = 0.25; // 0.125 m3/s
    wDemand[2] = 100;
    ExpectSold(0.125, 4, 0);
    wSystemType = 1;
    PumpingHours[1] = 6;
    PumpingHours[2] = 18;
    ExpectSold(0.0625, 3, 0);
}

// 80 m x 0.5 m3/s x 9.81 = 392.4 kW of water, by 0.8 x 0.95 = 516.316 kW drawn, 10 hours off-peak, 6 standard
// and 2 peak. A kW costs 10 x 0.25 + 6 x 0.5 + 2 x 1 = 7.5 a summer day and twice that a winter day, which is
// 365 x (7.5 + 15) / 2 = 4106.25 a year: 2120121.7.
TEST_F(AnnualCostsTest, EnergyByHand)
{
    wSystemType = 1;
    wSOffpeak = 0.25;
    wSStandard = wWOffpeak = 0.5;
    wSPeak = wWStandard = 1;
    wWPeak = 2;
    wSummer = 6;
    wTRWL = 20;
    ElevationFactor = 1;
    wPumpDetails = 1;
    wPumpEfficiency = 40;
    for (ByYear* Hours : {&HoursOffpeakS, &HoursOffpeakW}) Hours->Fill(10);
    for (ByYear* Hours : {&HoursStandardS, &HoursStandardW}) Hours->Fill(6);
    for (ByYear* Hours : {&HoursPeakS, &HoursPeakW}) Hours->Fill(2);
    Gradeline.Fill(100);
    Flow.Fill(0.5);
    DemandFlow.Fill(0.25);
    Efficiency.Fill(80);
    wEnergyEscalation = 20;
    wEscalation = 50;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7, 0.3);
    EXPECT_NEAR(EnergyCost[3], 2120121.7 * 1.44, 0.6);

    // Without a curve the demand counts: half the flow at half the efficiency.
    wPumpDetails = 0;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7, 0.3);

    // One season alone, and levels in feet, whose factor of 0 leaves the whole gradeline.
    wSummer = 12;
    ElevationFactor = 0;
    ComputeAnnualCosts();
    EXPECT_NEAR(EnergyCost[1], 2120121.7 * 7.5 / 11.25 * 100 / 80, 0.3);

    // No power over no efficiency is a failure as well, and leaves the year alone.
    wPumpDetails = 1;
    Efficiency[2] = Flow[2] = 0;
    EnergyCost[2] = 5;
    EXPECT_THROW(ComputeAnnualCosts(), ArithmeticFailure);
    EXPECT_EQ(EnergyCost[2], 5);

    wSystemType = 0;
    ComputeAnnualCosts();
    EXPECT_EQ(EnergyCost[2], 0);
}

} // namespace
} // namespace velorix
