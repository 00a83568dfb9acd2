// The scan over the rates, and the search for its last change of sign. In the scan, rates are worked out a
// block at a time, side by side, so that their sums don't wait for each other; the sum of each rate keeps its
// order.
#include "cost/RateOfReturn.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "cost/RateBounds.h"
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
    for (int j = 0; j < Count; ++j) Growth[j] = std::pow(GrowthAt(First + j), Exponent);
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
    const int n = ConstructionYears();
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

// Present values at one rate.
struct Worth {
    double Income = 0;
    double Cost = 0;

    int Sign() const { return (Income > Cost) - (Income < Cost); }
};

// Takes Irr at rate k, when the sign changes there against the rate before or the two sums are equal. The
// interpolation reaches over half a step.
void TakeReturn(int k, const Worth& Earlier, const Worth& At)
{
    if (At.Sign() == 0) Irr = k / 100.0;
    if (At.Sign() * Earlier.Sign() >= 0) return;

    const double Before = Earlier.Income - Earlier.Cost;
    const double Difference = At.Income - At.Cost;
    const double Start = At.Sign() < 0 ? Difference : -Before;
    Irr = Checked(Start / 2000 / (Before - Difference) + k / 1000.0 - 1 / 2000.0);
    Irr = Checked(10 * Irr);
}

// The scan's state between one rate and the next.
struct RateScan {
    Worth Earlier;

    template <int Count>
    void Try(int First);
};

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
    for (int j = 0; j < Count; ++j) {
        const int k = First + j;
        const Worth At{Ordered(Values.Income[j]), Ordered(Values.Cost[j])};
        IrrRate[k] = k / 100.0;
        IrrDifference[k] = At.Income - At.Cost;
        TakeReturn(k, Earlier, At);
        Earlier = At;
    }
}

Worth WorthAt(int k)
{
    RateBlock<1> Values;
    Discount(k, Values);
    return {Values.Income[0], Values.Cost[0]};
}

// The search for the last rate at which the scan would take Irr, from the highest rate down. Intervals whose
// sign the bounds tell are passed by; of the others the halves are asked, and in the end the rates.
class LastChange {
public:
    enum class Outcome { GoOn, Found, GiveUp };

    explicit LastChange(const RateBounds& Of)
        : Bounds(Of)
    {
    }

    // Goes through the rates First to Last. Last is the lowest rate that is known, or one below.
    Outcome Search(int First, int Last) { return Search(First, Last, Bounds.At(First), Bounds.At(Last)); }

    int Rate() const { return Lowest; }

private:
    static constexpr int MostRates = 100; // worked out one by one; from there on the scan is the quicker

    Outcome Search(int First, int Last, const RateBounds::Values& AtFirst, const RateBounds::Values& AtLast)
    {
        if (const int Sign = RateBounds::SignBetween(AtFirst, AtLast); Sign != 0) return Pass(First, Sign);
        if (Last - First < 2) {
            for (int k = Last; k >= First; --k)
                if (const Outcome One = Try(k); One != Outcome::GoOn) return One;
            return Outcome::GoOn;
        }
        const int Middle = First + (Last - First) / 2;
        const RateBounds::Values AtMiddle = Bounds.At(Middle);
        const Outcome Upper = Search(Middle, Last, AtMiddle, AtLast);
        return Upper != Outcome::GoOn ? Upper : Search(First, Middle, AtFirst, AtMiddle);
    }

    Outcome Try(int k)
    {
        if (k == Lowest) return Outcome::GoOn; // the upper half has told already
        if (++Tried > MostRates) return Outcome::GiveUp;
        return Pass(k, WorthAt(k).Sign());
    }

    // Takes it that the rates from First up to the lowest known have this sign.
    Outcome Pass(int First, int Sign)
    {
        if (Sign * SignAtLowest < 0) return Outcome::Found; // at the lowest known: the one before differs
        Lowest = First;
        SignAtLowest = Sign;
        return Sign == 0 ? Outcome::Found : Outcome::GoOn;
    }

    const RateBounds& Bounds;
    int Lowest = LastRate + 1;
    int SignAtLowest = 0;
    int Tried = 0;
};

} // namespace

void ScanRateOfReturn()
{
    ClearArithmeticFlags();
    RateScan Scan;
    int k = 0;
    for (; k + BlockSize <= LastRate + 1; k += BlockSize) Scan.Try<BlockSize>(k);
    for (; k <= LastRate; ++k) Scan.Try<1>(k);
}

void FindRateOfReturn()
{
    RateBounds Bounds;
    if (!Bounds.Take()) return ScanRateOfReturn();

    LastChange Change(Bounds);
    const LastChange::Outcome Outcome = Change.Search(0, LastRate);
    if (Outcome == LastChange::Outcome::GiveUp) return ScanRateOfReturn();
    if (Outcome == LastChange::Outcome::GoOn) return;

    const int k = Change.Rate();
    ClearArithmeticFlags();
    TakeReturn(k, k > 0 ? WorthAt(k - 1) : Worth(), WorthAt(k));
}

} // namespace velorix
