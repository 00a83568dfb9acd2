// Shortage and pumping hours, and their split over the rate classes.
#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"

#include <array>

namespace velorix {
namespace {

class YearlySupplyTest : public HydraulicsTest {
protected:
    void SetUp() override
    {
        HydraulicsTest::SetUp();
        wLife = 1;
        DemandFactor = 0.001; // l/s
    }

    // A pump that runs 12 hours a day at most.
    static void Pump(double FlowFound)
    {
        wSystemType = 1;
        wPumpDetails = 1;
        wPumpingHours = 12;
        Flow[1] = FlowFound;
    }

    // 8 hours off-peak, 10 standard, 6 peak in summer; all off-peak in winter.
    static void SetPattern()
    {
        for (int h = 1; h <= 24; ++h) wSummerHour[h] = h <= 8 ? 0 : h <= 18 ? 1 : 2;
    }

    static std::array<double, 3> SummerOf(int Year)
    {
        return {HoursOffpeakS[Year], HoursStandardS[Year], HoursPeakS[Year]};
    }
};

using Hours = std::array<double, 3>;

// 0.5 m3/s for 12 of 24 hours carries 0.25 m3/s.
TEST_F(YearlySupplyTest, PumpRunsAsLongAsTheDemandAsks)
{
    Pump(0.5);
    DemandFlow[1] = 0.125;
    Shortage[1] = 9;
    SupplyDemand();
    EXPECT_EQ(PumpingHours[1], 6);
    EXPECT_EQ(Shortage[1], 0);

    DemandFlow[1] = 0.375; // 0.125 m3/s more than it can carry
    SupplyDemand();
    EXPECT_EQ(PumpingHours[1], 12);
    EXPECT_NEAR(Shortage[1], 125, 1e-5);

    DemandFlow[1] = 0.25; // exactly what it can carry
    SupplyDemand();
    EXPECT_EQ(PumpingHours[1], 12);
    EXPECT_EQ(Shortage[1], 0);
}

TEST_F(YearlySupplyTest, VaryingDemandIsConvertedUnrounded)
{
    Pump(0.5);
    wVaryingDemand = 1;
    wDemand[1] = 125;
    DemandFlow[1] = 99; // not used
    SupplyDemand();
    EXPECT_NEAR(PumpingHours[1], 6, 1e-6);
}

TEST_F(YearlySupplyTest, AGivenFlowIsSetAsTheYearsFlow)
{
    Pump(0);
    wPumpDetails = 0;
    wPumpOperatingFlowrate = 500;
    OperatingFlowFactor = 0.001;
    DemandFlow[1] = 0.125;
    SupplyDemand();
    EXPECT_EQ(Flow[1], Single(500 * Single(0.001)));
    EXPECT_NEAR(PumpingHours[1], 6, 1e-6);
}

TEST_F(YearlySupplyTest, AFlowNeverFoundFailsWhateverTheDemand)
{
    Pump(0);
    Shortage[1] = 9;
    for (const double Demand : {0.0, 0.5}) { // 0 / 0 as well
        DemandFlow[1] = Demand;
        EXPECT_THROW(SupplyDemand(), ArithmeticFailure);
        EXPECT_EQ(Shortage[1], 9);
    }
}

TEST_F(YearlySupplyTest, GravityComparesInTheDemandsUnit)
{
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

    DemandFactor = 0;
    EXPECT_THROW(SupplyDemand(), ArithmeticFailure);
}

TEST_F(YearlySupplyTest, TheCheapestHoursComeFirst)
{
    SetPattern();
    wLife = 4;
    PumpingHours[1] = 5;
    PumpingHours[2] = 8;
    PumpingHours[3] = 15;
    PumpingHours[4] = 20;
    SplitPumpingHours();
    EXPECT_EQ(CntOffpeakS, 8);
    EXPECT_EQ(CntStandardS, 10);
    EXPECT_EQ(CntPeakS, 6);
    EXPECT_EQ(CntOffpeakW, 24);
    EXPECT_EQ(SummerOf(1), (Hours{5, 0, 0}));
    EXPECT_EQ(SummerOf(2), (Hours{8, 0, 0}));
    EXPECT_EQ(SummerOf(3), (Hours{8, 7, 0}));
    EXPECT_EQ(SummerOf(4), (Hours{8, 10, 2}));
    EXPECT_EQ(HoursOffpeakW[4], 20);
    EXPECT_EQ(HoursPeakW[4], 0);
}

// What a class held stays until a later year reaches the class, but not from one run to the next.
TEST_F(YearlySupplyTest, FallingHoursKeepTheDearerOnesOfTheYearBefore)
{
    SetPattern();
    wLife = 3;
    PumpingHours[1] = 20;
    PumpingHours[2] = 5;
    PumpingHours[3] = 9;
    SplitPumpingHours();
    EXPECT_EQ(SummerOf(1), (Hours{8, 10, 2}));
    EXPECT_EQ(SummerOf(2), (Hours{5, 10, 2}));
    EXPECT_EQ(SummerOf(3), (Hours{8, 1, 2}));

    PumpingHours[1] = 5;
    SplitPumpingHours();
    EXPECT_EQ(SummerOf(1), (Hours{5, 0, 0}));
}

// Peak takes what is left, beyond the hours that the pattern has; a foreign code counts for nothing.
TEST_F(YearlySupplyTest, PeakIsNotLimitedByItsCount)
{
    SetPattern();
    for (int h = 19; h <= 24; ++h) wSummerHour[h] = 3;
    PumpingHours[1] = 24;
    SplitPumpingHours();
    EXPECT_EQ(CntPeakS, 0);
    EXPECT_EQ(SummerOf(1), (Hours{8, 10, 6}));
}

} // namespace
} // namespace velorix
