// The search for the first flow that clears the high points. Trying ten million flows one by one takes
// minutes, so ranges of flows that certainly fail are skipped, and what stays undecided is tried in rising
// order of s.
#include "hydraulics/HighPoint.h"

#include "base/Arithmetic.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/Kernels.h"
#include "hydraulics/Normalise.h"
#include "hydraulics/PressureRange.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {
namespace {

constexpr int NoneClears = 0;

struct Search {
    int Year;
    Single Start;
    bool KernelHolds;
    LossCoefficients Losses;
    std::array<double, MaxRows>
        StaticHead; // entry i - 1: upstream level less ground level behind section i (m)
};

Single TriedFlow(const Search& In, int s)
{
    return In.Start - s / 1000000.0;
}

// The plain try of one flow. Nothing of it is kept, so a failure is looked for once: the last pressure head
// hangs on every sum before it.
bool Clears(int Year, Single Q)
{
    bool Clear = true;
    Single Friction, Secondary, P;
    for (int i = 1; i <= NodeCount; ++i) {
        const double D = InternalDiameter[i];
        Friction += FrictionHead(Q, D, SectionLength[i], Lambda(i, Year));
        Secondary += SecondaryHead(Q, D, wSecondaryLoss[i]);
        P = StaticHead(i) - Friction - Secondary;
        if (i < NodeCount && Ordered(P) <= -1) Clear = false;
    }
    Checked(P);
    return Clear;
}

// Makes the kernel ready, which holds where no number is so far out that a try could fail or round
// differently. No flow tried but zero is below 2^-100: Start and s / 1000000 are multiples of 2^-80, and so
// is what is left.
void PrepareKernel(Search& In)
{
    In.KernelHolds = false;
    if (In.Start < 1e-9 || In.Start > 1000 || NodeCount < 1 || !FindLossCoefficients(In.Year, In.Losses))
        return;

    double LargestLevel = 0;
    for (int i = 1; i <= NodeCount; ++i) {
        In.StaticHead[i - 1] = StaticHead(i);
        LargestLevel += std::fabs(In.StaticHead[i - 1]);
    }
    const double LargestFlow = In.Start + 10.0;
    In.KernelHolds =
        std::isless(In.Losses.LargestTotal * LargestFlow * LargestFlow + LargestLevel, KernelHeadLimit);
}

// First s from First to Last, at most LaneCount of them, that clears.
int TryEach(const Search& In, int First, int Last)
{
    ClearanceLanes Result{};
    if (In.KernelHolds) {
        FlowLanes Lanes{};
        for (int s = First; s <= Last; ++s) {
            const double Q = TriedFlow(In, s);
            Lanes.Squared[s - First] = Q * Q;
        }
        WorkClearances(In.StaticHead.data(), NodeCount - 1, In.Losses, Lanes, Result);
    } else {
        Result.Unsure.fill(1);
    }

    for (int s = First; s <= Last; ++s) {
        if (Result.Failed[s - First] != 0) continue;
        if (Result.Unsure[s - First] == 0 || Clears(In.Year, TriedFlow(In, s))) return s;
    }
    return NoneClears;
}

// First s from First to Last that clears.
int FirstClear(const Search& In, int First, int Last)
{
    ClearArithmeticFlags();
    const RangeOutcome Outcome = JudgeFlows(In.Year, TriedFlow(In, First), TriedFlow(In, Last));
    const bool MayFail = ArithmeticFailed();
    ClearArithmeticFlags();
    if (!MayFail && Outcome.SomeBelow) return NoneClears;
    if (!MayFail && Outcome.AllAbove) return First;
    if (Last - First < LaneCount) return TryEach(In, First, Last);

    const int Middle = First + (Last - First) / 2;
    const int Found = FirstClear(In, First, Middle);
    return Found != NoneClears ? Found : FirstClear(In, Middle + 1, Last);
}

} // namespace

Single FlowClearOfHighPoints(int Year, Single Start)
{
    Search In{};
    In.Year = Year;
    In.Start = Start;
    PrepareKernel(In);
    const int Found = FirstClear(In, 1, MostCutbacks);
    return TriedFlow(In, Found != NoneClears ? Found : MostCutbacks);
}

} // namespace velorix
