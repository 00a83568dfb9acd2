// The scan for the internal rate of return.
#include "cost/CostTest.h"
#include "cost/RateScanReference.h"

#include "base/Failure.h"

#include <cmath>

namespace velorix {
namespace {

class RateOfReturnTest : public CostTest {};

// A payment of 1000 a year ahead of an income of 1105.02 returns 10.502 percent: a fifth of the step to
// k = 1051. Interpolated over half a step, a fall there gives 10.51 - 0.005 - 0.8 x 0.005, and a rise
// 10.51 - 0.005 - 0.2 x 0.005.
TEST_F(RateOfReturnTest, CrossingOfOnePaymentAndOneIncome)
{
    BuildFor(1);
    wLife = 1;
    TotalCapitalCost = 1000;
    IncomeSeries[1] = 1105.02;
    ScanRateOfReturn();
    EXPECT_NEAR(Irr, 10.501, 5e-6);
    EXPECT_NEAR(IrrDifference[0], 105.02, 1e-4);
    EXPECT_NEAR(IrrDifference[10000], 552.51 - 1000, 1e-4);
    EXPECT_EQ(IrrRate[1], Single(0.01));
    EXPECT_EQ(IrrRate[LastRate], 200);
    EXPECT_EQ(IrrRate[LastRate + 1], 0);

    BuildFor(0);
    wLife = 2;
    TotalCapitalCost = 0;
    IncomeSeries[1] = 1000;
    OperationalCost[2] = 1105.02;
    ScanRateOfReturn();
    EXPECT_NEAR(Irr, 10.504, 5e-6);
}

// Two construction years, the first without discount: 500 + 500 v = 1210 v^2 at v = 1 / 1.21. The root of
// 1210 v^2 - 500 v - 500 is v = (500 + sqrt(500^2 + 4 x 1210 x 500)) / 2420 = 0.8816... and r = 13.4285
// percent.
TEST_F(RateOfReturnTest, ConstructionYearsAreDiscounted)
{
    BuildFor(2);
    wLife = 1;
    TotalCapitalCost = 1000;
    IncomeSeries[1] = 1210;
    ScanRateOfReturn();
    const double Root = 100 * (2420 / (500 + std::sqrt(500.0 * 500 + 4 * 1210.0 * 500)) - 1);
    EXPECT_NEAR(Irr, Root, 0.0051); // half a step short at most
    EXPECT_LT(Irr, Root);
}

// 1000 (v - v1) (v - v2) with the roots v1 and v2 for 10.502 and 50.502 percent falls at the one and rises at
// the other. Rounding of the coefficients moves the roots by less than 0.0001 percent.
TEST_F(RateOfReturnTest, LastCrossingWins)
{
    BuildFor(0);
    wLife = 3;
    const double v1 = 1 / 1.10502;
    const double v2 = 1 / 1.50502;
    IncomeSeries[1] = 1000 * v1 * v2;
    OperationalCost[2] = 1000 * (v1 + v2);
    IncomeSeries[3] = 1000;
    ScanRateOfReturn();
    EXPECT_NEAR(Irr, 50.51 - 0.005 - 0.2 * 0.005, 1e-4);
}

// At 100 percent 2000 in a year is worth 1000 exactly. The rate after that finds no sign to change from.
TEST_F(RateOfReturnTest, EqualPresentValuesGiveTheRateItself)
{
    BuildFor(1);
    wLife = 1;
    TotalCapitalCost = 1000;
    IncomeSeries[1] = 2000;
    ScanRateOfReturn();
    EXPECT_EQ(IrrDifference[10000], 0);
    EXPECT_EQ(Irr, 100);
}

TEST_F(RateOfReturnTest, WithoutACrossingTheEarlierReturnStays)
{
    Irr = 7.5;
    wLife = 2;
    TotalCapitalCost = 1000;
    ScanRateOfReturn(); // no income at all
    EXPECT_EQ(Irr, 7.5);
    IncomeSeries[1] = 3000; // more than the cost at every rate, undiscounted
    ScanRateOfReturn();
    EXPECT_EQ(Irr, 7.5);
    EXPECT_EQ(IrrDifference[LastRate], 2000);
}

TEST_F(RateOfReturnTest, SameBitsAsThePlainScan)
{
    for (const int ConstructionYears : {0, 1, 4}) {
        DescribeScheme(37, ConstructionYears);
        Irr = 3;
        const ScanResult Plain = PlainScan(Irr);
        ASSERT_NE(Plain.Return, 3);
        ScanRateOfReturn();
        EXPECT_TRUE(SameAsStored(Plain)) << ConstructionYears;
    }
}

// After 700 years of construction the power of year 1 overflows from some rate on, in the middle of the scan.
TEST_F(RateOfReturnTest, OverflowEndsTheScanAtItsRate)
{
    BuildFor(700);
    wLife = 1;
    TotalCapitalCost = 1000;
    int First = 0;
    while (std::isfinite(std::pow(1 + First / 10000.0, 700))) ++First;
    ASSERT_GT(First, 10000);
    ASSERT_LT(First, LastRate);

    EXPECT_THROW(ScanRateOfReturn(), ArithmeticFailure);
    EXPECT_LT(IrrDifference[First - 1], 0);
    EXPECT_EQ(IrrDifference[First], 0);
    EXPECT_EQ(IrrRate[First], 0);
}

} // namespace
} // namespace velorix
