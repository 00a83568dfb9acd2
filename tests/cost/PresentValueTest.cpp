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

// Costs of 336 and 672. From two construction years on, the capital's parts are discounted from the second
// on; operating year 1 carries as many years as there were. With supply before the base year the series
// starts with year 2.
TEST_F(PresentValueTest, ByConstructionYears)
{
    struct Case {
        int Years;
        double Cost, Income;
        double Series[5];
    };
    const Case Cases[] = {{2, 2048 + 1024 + 84 + 84, 256 + 256, {2048, 2048, 336, 672, 0}},
                          {1, 4096 + 168 + 168, 512 + 512, {4096, 336, 672, 0, 0}},
                          {0, 4096 + 336 + 336, 1024 + 1024, {336, 672, 0, 0, 0}},
                          {-1, 4096 + 672 + 672, 2048 + 2048, {672, 0, 0, 0, 0}}};
    for (const Case& Each : Cases) {
        SCOPED_TRACE(Each.Years);
        BuildFor(Each.Years);
        CostSeries.Fill(0);
        ComputePresentValues();
        EXPECT_EQ(NpvCost, Each.Cost);
        EXPECT_EQ(NpvIncome, Each.Income);
        for (int t = 1; t <= 5; ++t) EXPECT_EQ(CostSeries[t], Each.Series[t - 1]) << t;
    }
}

// Only a power of zero can be divided by: the first construction year stands.
TEST_F(PresentValueTest, DiscountRateOfMinusHundredFails)
{
    wDiscountRate = -100;
    BuildFor(2);
    EXPECT_THROW(ComputePresentValues(), ArithmeticFailure);
    EXPECT_EQ(NpvCost, 2048);
}

} // namespace
} // namespace velorix
