// Bisection of the gravity flow.
#include "hydraulics/GravityFlow.h"

#include "base/Arithmetic.h"
#include "base/Arrays.h"
#include "hydraulics/HighPoint.h"
#include "hydraulics/Kernels.h"
#include "hydraulics/LossCoefficients.h"
#include "hydraulics/Normalise.h"
#include "hydraulics/RowLosses.h"
#include "model/WorkingSet.h"

#include <cmath>
#include <optional>

namespace velorix {
namespace {

using PressureList = Array0<Single, 100>; // pressure head behind each section (m), from entry 1 on

bool SameSixthDecimal(double A, double B)
{
    return RoundToInt32(A * 1000000) == RoundToInt32(B * 1000000);
}

struct Bounds {
    Single Low;
    Single High;
    Single Mid;

    bool operator==(const Bounds& Other) const
    {
        return Low == Other.Low && High == Other.High && Mid == Other.Mid;
    }
};

// Halves the bounds; the half above Mid holds the solution when Above. True when the ends of the new,
// narrower half agree at the sixth decimal.
bool Halve(Bounds& Q, bool Above)
{
    if (Above) {
        Q.Low = Q.Mid;
        Q.Mid = (Q.Mid + Q.High) / 2;
        return SameSixthDecimal(Q.Mid, Q.High);
    }
    Q.High = Q.Mid;
    Q.Mid = (Q.Low + Q.Mid) / 2;
    return SameSixthDecimal(Q.Low, Q.Mid);
}

const Single Tolerance = 1.0 / 1000000;
constexpr double LargestFlow = 100; // m3/s

// The losses at a flow beside the available head.
struct Comparison {
    int Side;     // 1 when the losses are above the head, -1 below
    Single Error; // between the two (m)
};

// Losses summed along the pipeline.
struct LossSums {
    Single Friction;
    Single Secondary;

    void Add(const RowLosses& Rows, int i)
    {
        Friction += Rows.Friction[i - 1];
        Secondary += Rows.Secondary[i - 1];
    }
    double Total() const { return Friction + Secondary; }
};

// Nothing of a sum is kept when a row fails, so a failure is looked for once: the total hangs on all of them.
LossSums SumLosses(int Year, double Q)
{
    RowLosses Rows;
    WorkRowLosses(Year, Q, Rows);
    LossSums Sums;
    for (int i = 1; i <= NodeCount; ++i) Sums.Add(Rows, i);
    return Sums;
}

// Compares with the losses added up row by row.
Comparison CompareByRows(int Year, Single H, double Q)
{
    const LossSums Losses = SumLosses(Year, Q);
    const double Rounded = Ordered(Checked(Losses.Total()));
    return {(Rounded > Ordered(H)) - (Rounded < H), Checked(std::fabs(H - Losses.Total()))};
}

// The losses of the whole pipeline as one coefficient of the squared flow, and how far their rounded sums can
// lie from that.
//
// Each of the two sums is rounded to 32 bits NodeCount times, so by the usual bound it is off by less than
// NodeCount * u of the sum of its terms' sizes, with u = 2^-24 and a little for the second order; the total
// is rounded once more. LossTolerance, the roundings in double and those here are far below the u that is
// left over. A sum too small for 32 bits is off by 2^-150 at each step.
class TotalLoss {
public:
    TotalLoss(int Year, Single H)
        : Head(H)
    {
        LossCoefficients Losses;
        if (NodeCount < 1 || NodeCount > PressureList::LastIndex || !FindLossCoefficients(Year, Losses))
            return;
        double LargestLevel = std::fabs(H);
        for (int i = 1; i <= NodeCount; ++i) {
            Coefficient += Losses.Friction[i - 1] + Losses.Secondary[i - 1];
            LargestLevel += std::fabs(StaticHead(i));
        }
        Slack = (NodeCount + 4) * 0x1p-24 * Losses.LargestTotal;
        Holds = std::isless(Losses.LargestTotal * LargestFlow * LargestFlow + LargestLevel, KernelHeadLimit);
    }

    // Without it nothing is certain.
    bool Proves() const { return Holds; }

    // The comparison where it is certain and the error above the tolerance; some such error then.
    std::optional<Comparison> Compare(double Q) const
    {
        const double Excess = Coefficient * Q * Q - Head;
        const double Unsure = Slack * Q * Q + 1e-40 + 2 * Tolerance;
        if (!Holds || std::fabs(Excess) <= Unsure) return std::nullopt;
        return Comparison{Excess > 0 ? 1 : -1, 1};
    }

private:
    double Head;
    double Coefficient = 0; // m per (m3/s)^2
    double Slack = 0;
    bool Holds = false;
};

// Pressure heads at one flow. Not inlined, so that all arithmetic is done before the status flags are read.
[[gnu::noinline]] void WorkPressures(int Year, double Q, PressureList& P)
{
    RowLosses Rows;
    WorkRowLosses(Year, Q, Rows);
    LossSums Sums;
    for (int i = 1; i <= NodeCount; ++i) {
        Sums.Add(Rows, i);
        P[i] = StaticHead(i) - Sums.Friction - Sums.Secondary;
    }
}

// P is left as the last pass found it, for the midpoint before its final update.
Single ConvergedFlow(int Year, Single H, PressureList& P)
{
    const TotalLoss Quick(Year, H);
    ClearArithmeticFlags(); // numbers that are far out may have raised some
    const auto Compare = [&](double Q) {
        const auto Certain = Quick.Compare(Q);
        return Certain ? *Certain : CompareByRows(Year, H, Q);
    };

    Bounds Q{Tolerance, LargestFlow, (Tolerance + LargestFlow) / 2};
    Comparison AtLow = Compare(Q.Low);                   // later bounds were midpoints before
    if (!Quick.Proves()) CompareByRows(Year, H, Q.High); // decides nothing, but may overflow
    Bounds Before = Q;
    Single Error = 1;

    while (Tolerance < Error) {
        Before = Q;
        const Comparison AtMid = Compare(Q.Mid);
        if (!Quick.Proves()) WorkPressures(Year, Q.Mid, P); // they may overflow at any midpoint
        const bool Above = AtLow.Side > 0 || AtMid.Side < 0;
        const bool Agreed = Halve(Q, Above);
        if (Above) AtLow = AtMid;
        Error = Agreed ? Single(1.0 / 1000001) : AtMid.Error;
        if (SameSixthDecimal(Q.Low, Q.High)) break;
        // From about 0.5 m3/s on, neighbouring numbers lie too far apart to meet the tests above.
        if (Q == Before) break;
    }
    WorkPressures(Year, Before.Mid, P);
    CheckArithmetic();
    return Q.Mid;
}

// Whether the gradeline passes more than a metre of suction below ground at a row.
bool PassesBelowGround(const PressureList& P)
{
    bool Below = false;
    for (int i = 1; i <= NodeCount - 1; ++i)
        if (Ordered(P[i]) <= -1) Below = true;
    return Below;
}

} // namespace

Single GravityFlow(int Year, Single H)
{
    PressureList P;
    const Single Q = ConvergedFlow(Year, H, P);
    if (!PassesBelowGround(P)) return Q;
    HighPointAdjusted = 1;
    return FlowClearOfHighPoints(Year, Q);
}

} // namespace velorix
