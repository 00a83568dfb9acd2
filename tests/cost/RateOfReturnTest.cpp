// The scan for the internal rate of return.
#include "cost/CostTest.h"
#include "cost/RateScanReference.h"

#include "base/Failure.h"

#include <cmath>

namespace velorix {
namespace {

// By default a payment of 1000 at once, ahead of an income a year later.
class RateOfReturnTest : public CostTest {
protected:
    RateOfReturnTest()
    {
        BuildFor(1);
        wLife = 1;
        TotalCapitalCost = 1000;
    }
};

// An income of 1105.02 returns 10.502 percent: a fifth of the step to k = 1051. Interpolated over half a
// step, a fall there gives 10.51 - 0.005 - 0.8 x 0.005.
TEST_F(RateOfReturnTest, CrossingOfOnePaymentAndOneIncome)
{
    IncomeSeries[1] = 1105.02;
    ScanRateOfReturn();
    EXPECT_NEAR(Irr, 10.501, 5e-6);
    EXPECT_NEAR(IrrDifference[10000], 552.51 - 1000, 1e-4);
    EXPECT_EQ(IrrRate[LastRate], 200);
    EXPECT_EQ(IrrRate[LastRate + 1], 0);
}

// 1000 (v - v1) (v - v2) with the roots v1 and v2 for 10.502 and 50.502 percent falls at the one and rises at
// the other. Rounding of the coefficients moves the roots by less than 0.0001 percent.
TEST_F(RateOfReturnTest, LastCrossingWins)
{
    BuildFor(0);
    wLife = 3;
    TotalCapitalCost = 0;
    const double v1 = 1 / 1.10502;
    const double v2 = 1 / 1.50502;
    IncomeSeries[1] = 1000 * v1 * v2;
    OperationalCost[2] = 1000 * (v1 + v2);
    IncomeSeries[3] = 1000;
    ScanRateOfReturn();
    EXPECT_NEAR(Irr, 50.51 - 0.005 - 0.2 * 0.005, 1e-4);
}

// Without a crossing the return before stays: never enough income, and at 200 percent still more than enough.
// At 100 percent 2000 in a year is worth 1000 exactly; the rate after that finds no sign to change from.
TEST_F(RateOfReturnTest, WithoutACrossing)
{
    Irr = 7.5;
    const double Cases[][2] = {{0, 7.5}, {4000, 7.5}, {2000, 100}}; // income, return
    for (const auto& [Income, Return] : Cases) {
        IncomeSeries[1] = Income;
        ScanRateOfReturn();
        EXPECT_EQ(Irr, Return);
    }
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
    int First = 0;
    while (std::isfinite(std::pow(1 + First / 10000.0, 700))) ++First;
    ASSERT_LT(First, LastRate);
    EXPECT_THROW(ScanRateOfReturn(), ArithmeticFailure);
    EXPECT_LT(IrrDifference[First - 1], 0);
    EXPECT_EQ(IrrRate[First], 0);
}

} // namespace
} // namespace velorix
