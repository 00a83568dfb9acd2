// Present values. Most tests discount at 100 percent, where every number is exact.
#include "cost/CostTest.h"

#include "base/Failure.h"

namespace velorix {
namespace {

class PresentValueTest : public CostTest {
protected:
    PresentValueTest()
    {
        wDiscountRate = 100;
        wLife = 2;
        TotalCapitalCost = 4096;
        for (int y = 1; y <= 2; ++y) {
            MaintTotal[y] = 256 * y;
            OperationalCost[y] = 64 * y;
            EnergyCost[y] = 16 * y;
            IncomeSeries[y] = 1024 * y;
        }
    }
};

// Capital 2048 + 1024; costs of 336 and 672 by 4 and 8; income of 1024 and 2048 by 4 and 8.
TEST_F(PresentValueTest, TwoConstructionYears)
{
    BuildFor(2);
    for (int Run = 1; Run <= 2; ++Run) ComputePresentValues(); // a second run starts from nothing
    EXPECT_EQ(NpvCost, 2048 + 1024 + 84 + 84);
    EXPECT_EQ(NpvIncome, 256 + 256);
    const double Expected[] = {2048, 2048, 336, 672, 0};
    for (int t = 1; t <= 5; ++t) EXPECT_EQ(CostSeries[t], Expected[t - 1]) << t;
}

// Up to one construction year the capital carries no discount; year 1 carries as many as there were.
TEST_F(PresentValueTest, FewerConstructionYears)
{
    BuildFor(1);
    ComputePresentValues();
    EXPECT_EQ(NpvCost, 4096 + 168 + 168);
    EXPECT_EQ(NpvIncome, 512 + 512);
    EXPECT_EQ(CostSeries[1], 4096);
    EXPECT_EQ(CostSeries[3], 672);

    ResetPresentValue();
    BuildFor(0);
    ComputePresentValues();
    EXPECT_EQ(NpvCost, 4096 + 336 + 336);
    EXPECT_EQ(NpvIncome, 1024 + 1024);
    EXPECT_EQ(CostSeries[1], 336);

    ResetPresentValue();
    BuildFor(-1); // supply before the base year: the series starts with year 2
    ComputePresentValues();
    EXPECT_EQ(NpvCost, 4096 + 672 + 672);
    EXPECT_EQ(CostSeries[1], 672);
    EXPECT_EQ(CostSeries[2], 0);
}

// From 2^24 on 32 bits count in steps of 2, so each single 1 is lost and the three together wouldn't be.
TEST_F(PresentValueTest, EachAdditionRounds)
{
    wLife = 1;
    TotalCapitalCost = 16777216;
    MaintTotal[1] = OperationalCost[1] = EnergyCost[1] = 1;
    ComputePresentValues();
    EXPECT_EQ(NpvCost, 16777216);
}

TEST_F(PresentValueTest, LongestProjectFillsTheCostSeries)
{
    wLife = 100;
    BuildFor(100);
    OperationalCost[100] = 9;
    ComputePresentValues();
    EXPECT_EQ(CostSeries[200], 9);
}

// At -100 percent only a power of zero can be divided by.
TEST_F(PresentValueTest, DiscountRateOfMinusHundredFails)
{
    wDiscountRate = -100;
    NpvIncome = 5;
    BuildFor(2);
    EXPECT_THROW(ComputePresentValues(), ArithmeticFailure);
    EXPECT_EQ(NpvCost, 2048); // the first construction year
    EXPECT_EQ(NpvIncome, 5);

    BuildFor(0);
    EXPECT_THROW(ComputePresentValues(), ArithmeticFailure);
    EXPECT_EQ(NpvCost, 4096 + 336); // operating year 1
}

} // namespace
} // namespace velorix
