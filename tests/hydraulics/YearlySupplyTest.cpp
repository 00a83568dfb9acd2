// Shortage and pumping hours, and their split over the rate classes.
#include "hydraulics/HydraulicsTest.h"

#include <array>

namespace velorix {
namespace {

using YearlySupplyTest = HydraulicsTest;

// At most 12 of 24 hours. The hours that the demand would take are worked only where it is met. A varying
// demand is converted again, and a given flow becomes the flow of the year.
TEST_F(YearlySupplyTest, PumpRunsAsLongAsTheDemandAsks)
{
    const double Cases[][4] = {{0.5, 0.125, 6, 0}, // flow, demand, hours, shortage (l/s)
                               {0.5, 0.375, 12, 125},
                               {0.5, 0.25, 12, 0},
                               {1e-38, 1, 12, 1000}};
    wLife = 1;
    wSystemType = 1;
    wPumpDetails = 1;
    wPumpingHours = 12;
    DemandFactor = 0.001;
    for (const auto& [Pumped, Demand, Hours, Short] : Cases) {
        Flow[1] = Pumped;
        DemandFlow[1] = Demand;
        SupplyDemand();
        EXPECT_EQ(PumpingHours[1], Hours) << Demand;
        EXPECT_NEAR(Shortage[1], Short, 1e-4) << Demand;
    }
    wVaryingDemand = 1;
    wDemand[1] = 125;
    wPumpDetails = 0;
    wPumpOperatingFlowrate = 500;
    OperatingFlowFactor = 0.001;
    SupplyDemand();
    EXPECT_NEAR(PumpingHours[1], 6, 1e-6);
    EXPECT_EQ(Flow[1], Single(500 * Single(0.001)));
}

TEST_F(YearlySupplyTest, GravityComparesInTheDemandsUnit)
{
    wLife = 1;
    DemandFactor = 0.5;
    wFlowrate = 10;
    PumpingHours[1] = 3;
    const double Cases[][2] = {{4, 2}, {5, 0}, {6, 0}}; // flow in m3/s, shortage
    for (const auto& [Found, Short] : Cases) {
        Flow[1] = Found;
        SupplyDemand();
        EXPECT_EQ(Shortage[1], Short) << Found;
    }
    wVaryingDemand = 1;
    wDemand[1] = 13;
    SupplyDemand();
    EXPECT_EQ(Shortage[1], 1);
    EXPECT_EQ(PumpingHours[1], 3);
}

// The cheapest hours come first. What a dearer class held stays until a later year reaches it, but not from
// one run to the next. Peak takes what is left, beyond the hours that the pattern has; a foreign code counts
// for nothing.
TEST_F(YearlySupplyTest, HoursFillTheClassesFromTheCheapestOn)
{
    struct Row {
        double Hours;
        std::array<double, 3> Summer; // off-peak, standard, peak
    };
    const Row Years[] = {{5, {5, 0, 0}},  {8, {8, 0, 0}}, {17.5, {8, 9.5, 0}}, {20, {8, 10, 2}},
                         {5, {5, 10, 2}}, {9, {8, 1, 2}}, {24, {8, 10, 6}}};
    for (int h = 1; h <= 24; ++h) wSummerHour[h] = h <= 8 ? 0 : h <= 18 ? 1 : h <= 20 ? 2 : 3;
    wLife = 7;
    for (int y = 1; y <= 7; ++y) PumpingHours[y] = Years[y - 1].Hours;
    for (int Run = 1; Run <= 2; ++Run) SplitPumpingHours();

    EXPECT_EQ(CntPeakS, 2);
    for (int y = 1; y <= 7; ++y) {
        const std::array<double, 3> Summer = {HoursOffpeakS[y], HoursStandardS[y], HoursPeakS[y]};
        EXPECT_EQ(Summer, Years[y - 1].Summer) << y;
        EXPECT_EQ(HoursOffpeakW[y], PumpingHours[y]); // all of a winter day
    }
}

} // namespace
} // namespace velorix
