// Polynomials of the discounted sums.
#include "cost/RateBounds.h"

#include "cost/CostResults.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velorix {
namespace {

// How far, as a part of the turnover, income less costs may lie from what is worked out here and in the scan.
// With u = 2^-53, a sum of m rounded terms is off by less than m u / (1 - m u) of the sum of their sizes. The
// scan adds at most 100 + 300 + 200 terms, each with a power (some u), a division and a share (u each). The
// polynomial of at most 300 powers multiplies and adds 2 x 300 times, and x, rounded once, comes in 300 times
// at the most. Together that is below 2000 u = 2^-42; the rest is for powers of a poorer library. Nothing
// underflows: amounts are 2^-149 or more, 3^300 is below 2^476.
constexpr double Tolerance = 0x1p-40;

} // namespace

void RateBounds::Add(int Power, double Income, double Cost, double Amounts)
{
    const auto Index = static_cast<std::size_t>(Power);
    const double Net = Income - Cost;
    (Net > 0 ? In : Out)[Index] += std::fabs(Net);
    Turnover[Index] += Amounts;
    Powers = std::max(Powers, Power + 1);
}

bool RateBounds::Take()
{
    const int n = ConstructionYears();
    if (std::abs(n) > MostYears - 1 || wLife > MaxYears) return false;

    // Supply before the base year gives powers below zero. All are raised alike, which changes no sign.
    const int Base = std::max(0, -n);
    double Total = std::fabs(TotalCapitalCost);
    if (n < 2) Add(Base, 0, TotalCapitalCost, Total);
    for (int t = 1; n >= 2 && t <= n; ++t) Add(t - 1, 0, TotalCapitalCost / n, Total / n);
    for (int y = 1; y <= wLife; ++y) {
        const double Cost = MaintTotal[y] + OperationalCost[y] + EnergyCost[y];
        const double Amounts = std::fabs(IncomeSeries[y]) + std::fabs(MaintTotal[y]) +
                               std::fabs(OperationalCost[y]) + std::fabs(EnergyCost[y]);
        Add(Base + n + y - 1, IncomeSeries[y], Cost, Amounts);
        Total += Amounts;
    }
    return std::isfinite(Total);
}

RateBounds::Values RateBounds::At(int k) const
{
    const double x = 1 / GrowthAt(k);
    Values Sums{0, 0, 0};
    for (auto Power = static_cast<std::size_t>(Powers); Power-- > 0;) {
        Sums.In = Sums.In * x + In[Power];
        Sums.Out = Sums.Out * x + Out[Power];
        Sums.Turnover = Sums.Turnover * x + Turnover[Power];
    }
    return Sums;
}

// A higher rate makes all three smaller.
int RateBounds::SignBetween(const Values& Lower, const Values& Higher)
{
    const double Margin = Tolerance * Lower.Turnover;
    if (Higher.In - Lower.Out > Margin) return 1;
    if (Higher.Out - Lower.In > Margin) return -1;
    return 0;
}

} // namespace velorix
