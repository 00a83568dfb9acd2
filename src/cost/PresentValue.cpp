// Discounting at the project's rate.
#include "cost/PresentValue.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {

namespace {

// d is what money grows by in a year, n the construction years.
void DiscountCosts(double d, int n)
{
    if (n < 2) {
        NpvCost = TotalCapitalCost;
    } else {
        NpvCost = 0;
        for (int t = 1; t <= n; ++t) NpvCost = Checked(NpvCost + TotalCapitalCost / n / std::pow(d, t - 1));
    }

    for (int y = 1; y <= wLife; ++y) {
        const double Growth = std::pow(d, n + y - 1);
        NpvCost = Checked(NpvCost + MaintTotal[y] / Growth);
        NpvCost = Checked(NpvCost + OperationalCost[y] / Growth);
        NpvCost = Checked(NpvCost + EnergyCost[y] / Growth);
    }
}

void DiscountIncome(double d, int n)
{
    NpvIncome = 0;
    for (int y = 1; y <= wLife; ++y)
        NpvIncome = Checked(NpvIncome + IncomeSeries[y] / std::pow(d, n + y - 1));
}

void FillCostSeries(int n)
{
    for (int t = 1; t <= n + wLife; ++t) {
        const int y = t - n;
        CostSeries[t] =
            Checked(t <= n ? TotalCapitalCost / n : OperationalCost[y] + MaintTotal[y] + EnergyCost[y]);
    }
}

} // namespace

void ComputePresentValues()
{
    ClearArithmeticFlags();
    const double d = 1 + wDiscountRate / 100;
    const int n = ConstructionYears();
    DiscountCosts(d, n);
    DiscountIncome(d, n);
    FillCostSeries(n);
}

} // namespace velorix
