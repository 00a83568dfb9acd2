// The scan for the internal rate of return.
#include "cost/CostTest.h"
#include "cost/RateScanReference.h"

#include "base/Failure.h"

#include <cmath>
#include <limits>
#include <random>

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

// Schemes of every kind. Some turn from costs to income and back many times, break even to the last digit or
// but for roundings, at all rates or at one, or hold what no real one has.
class AnyScheme {
public:
    explicit AnyScheme(unsigned Seed)
        : Random(Seed)
    {
        const double Special[] = {NAN,  HUGE_VAL, -HUGE_VAL,
                                  3e38, 1e-45,    std::numeric_limits<float>::signaling_NaN()};
        const unsigned Kind = Seed % 16;
        wLife = static_cast<std::int16_t>(Seed % 64 == 0 ? Up(100) : Up(4));
        wBaseYear = 2005;
        wSupplyStart = static_cast<std::int16_t>(2005 + (Kind == 1 ? Up(400) - 200 : Up(5) - 1));
        TotalCapitalCost = Kind < 4 ? 0 : (Kind == 5 ? -1 : 1) * 1e6 * Part();
        for (int y = 1; y <= wLife; ++y) {
            MaintTotal[y] = 1e5 * Part();
            OperationalCost[y] = Kind == 2 ? 0 : 1e5 * Part();
            EnergyCost[y] = Kind == 2 ? 0 : Kind == 6 ? 1e6 * (Part() - 0.5) : 1e5 * Part();
            IncomeSeries[y] = Kind < 4   ? MaintTotal[y] + OperationalCost[y] + EnergyCost[y]
                              : Kind < 8 ? 2e6 * (Part() - 0.4)
                                         : 3e6 * Part() * Part();
            if (Kind == 9) IncomeSeries[y] = 0;
        }
        if (Kind == 3) EvenButForRoundings(Up(20) + 40);
        if (Kind == 10) IncomeSeries[Up(wLife)] = Special[Seed / 16 % 6];
        if (Kind == 11) TotalCapitalCost = Special[Seed / 16 % 6];
        if (Kind == 12) BreakEvenAt(100 * Up(3));
    }

private:
    double Part() { return std::uniform_real_distribution<double>(0, 1)(Random); }
    int Up(int Most) { return std::uniform_int_distribution<int>(1, Most)(Random); }

    // So little dearer than even that no bound tells: by more than a rounding, and no rate is even, or less.
    static void EvenButForRoundings(int Bits)
    {
        for (int y = 1; y <= wLife; ++y) {
            IncomeSeries[y] = MaintTotal[y];
            OperationalCost[y] = MaintTotal[y] * std::ldexp(1, -Bits);
            EnergyCost[y] = 0;
        }
    }

    // At 100, 200 and 300 percent powers are exact for small whole amounts.
    static void BreakEvenAt(int Percent)
    {
        wSupplyStart = wBaseYear;
        for (ByYear* Each : {&IncomeSeries, &MaintTotal, &OperationalCost, &EnergyCost}) Each->Fill(0);
        IncomeSeries[wLife] = std::pow(1 + Percent / 100.0, wLife - 1);
        TotalCapitalCost = 1;
    }

    std::mt19937 Random;
};

// The return that the scan leaves, failures included. What they hold already is the earlier value.
template <typename Routine>
std::uint64_t ReturnBy(Routine Work)
{
    Irr = 3.25;
    bool Failed = false;
    try {
        Work();
    } catch (const ArithmeticFailure&) {
        Failed = true;
    }
    return Irr.Bits() + (Failed ? 1ULL << 32 : 0);
}

// The scan against the plain one, all of it, and the return that is found from bounds against the scan's.
TEST_F(RateOfReturnTest, RandomSchemesGiveThePlainReturn)
{
    int Kept = 0;
    for (unsigned Seed = 0; Seed < 1200; ++Seed) {
        const AnyScheme Scheme(Seed);
        const std::uint64_t Scanned = ReturnBy(ScanRateOfReturn);
        const bool Failed = Scanned >> 32 != 0;
        if (Seed < 64 && !Failed) {
            ASSERT_TRUE(SameAsStored(PlainScan(3.25))) << Seed;
        }
        ASSERT_EQ(ReturnBy(FindRateOfReturn), Scanned) << Seed;
        Kept += Scanned == Single(3.25).Bits();
    }
    EXPECT_GT(Kept, 200);
    EXPECT_LT(Kept, 800);
}

} // namespace
} // namespace velorix
