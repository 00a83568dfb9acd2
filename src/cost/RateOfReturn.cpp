// The scan over the rates. Rates are worked out a block at a time, side by side, so that their sums don't
// wait for each other; the sum of each rate keeps its order.
#include "cost/RateOfReturn.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {

namespace {

constexpr int BlockSize = 8;

// Present values at the rates First to First + Count - 1.
template <int Count>
struct RateBlock {
    double Income[Count] = {};
    double Cost[Count] = {};
};

// Growth[j] = (1 + r)^Exponent for each rate of the block.
template <int Count>
void Powers(int First, int Exponent, double (&Growth)[Count])
{
    for (int j = 0; j < Count; ++j) Growth[j] = std::pow(1 + (First + j) / 10000.0, Exponent);
}

template <int Count>
void AddCapital(int First, int n, RateBlock<Count>& Values)
{
    if (n < 2) {
        for (double& Cost : Values.Cost) Cost = TotalCapitalCost;
        return;
    }
    const double Share = TotalCapitalCost / n;
    for (int t = 1; t <= n; ++t) {
        double Growth[Count];
        Powers(First, t - 1, Growth);
        for (int j = 0; j < Count; ++j) Values.Cost[j] += Share / Growth[j];
    }
}

// Not inlined, so that all of the block's arithmetic is done before its caller looks at the status flags.
template <int Count>
[[gnu::noinline]] void Discount(int First, RateBlock<Count>& Values)
{
    const int n = wSupplyStart - wBaseYear;
    AddCapital(First, n, Values);
    for (int y = 1; y <= wLife; ++y) {
        const double Sold = IncomeSeries[y];
        const double Maintenance = MaintTotal[y];
        const double Operation = OperationalCost[y];
        const double Energy = EnergyCost[y];
        double Growth[Count];
        Powers(First, n + y - 1, Growth);
        for (int j = 0; j < Count; ++j) {
            Values.Income[j] += Sold / Growth[j];
            Values.Cost[j] =
                Values.Cost[j] + Maintenance / Growth[j] + Operation / Growth[j] + Energy / Growth[j];
        }
    }
}

// The scan's state between one rate and the next.
struct RateScan {
    double PreviousIncome = 0;
    double PreviousCost = 0;

    void Record(int k, double Income, double Cost);

    template <int Count>
    void Try(int First);
};

// Stores what rate k gives and looks for a change of sign against the rate before. The interpolation reaches
// over half a step.
void RateScan::Record(int k, double Income, double Cost)
{
    const double Before = PreviousIncome - PreviousCost;
    const double Difference = Ordered(Income) - Ordered(Cost);
    IrrRate[k] = k / 100.0;
    IrrDifference[k] = Difference;

    if (Income == Cost) Irr = k / 100.0;
    const bool Falls = Income < Cost && PreviousIncome > PreviousCost;
    const bool Rises = Income > Cost && PreviousIncome < PreviousCost;
    if (Falls || Rises) {
        const double Start = Falls ? Difference : -Before;
        Irr = Checked(Start / 2000 / (Before - Difference) + k / 1000.0 - 1 / 2000.0);
        Irr = Checked(10 * Irr);
    }
    PreviousIncome = Income;
    PreviousCost = Cost;
}

// Works out a block of rates and records them. A block with a failure is gone through again rate by rate, so
// that the rates before the failing one stand.
template <int Count>
void RateScan::Try(int First)
{
    RateBlock<Count> Values;
    Discount(First, Values);
    if constexpr (Count == 1) {
        CheckArithmetic();
    } else if (ArithmeticFailed()) {
        ClearArithmeticFlags();
        for (int j = 0; j < Count; ++j) Try<1>(First + j);
        return;
    }
    for (int j = 0; j < Count; ++j) Record(First + j, Values.Income[j], Values.Cost[j]);
}

} // namespace

void ScanRateOfReturn()
{
    ClearArithmeticFlags();
    RateScan Scan;
    int k = 0;
    for (; k + BlockSize <= LastRate + 1; k += BlockSize) Scan.Try<BlockSize>(k);
    for (; k <= LastRate; ++k) Scan.Try<1>(k);
}

} // namespace velorix
