// The system curve of a year: the plain formulas of a point, and the blocks of points that stand in for them.
#include "hydraulics/SystemCurve.h"

#include "base/Arithmetic.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/Kernels.h"
#include "hydraulics/PumpingHeads.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

// Flow at a point: one step above the first flow of the pump curve at point 1, on the last at CurvePoints.
double GridFlow(int Point)
{
    const double First = wPumpCurve[2];
    const double Last = wPumpCurve[17];
    return (First + (Last - First) * Point / CurvePoints) * FlowFactor;
}

// System head at the flow Q (m), each quantity stored where its step ends.
Single PlainSystemHead(Single Q)
{
    ByRow Friction, Secondary;
    for (int i = 1; i <= NodeCount; ++i) {
        const double D = InternalDiameter[i];
        Friction[i] = Checked(FrictionHead(Q, D, SectionLength[i], Lambda(i, AnalysisYear)));
        Secondary[i] = Checked(SecondaryHead(Q, D, wSecondaryLoss[i]));
    }

    HeadList Head;
    StorePumpingHeads(Friction, Secondary, Head);
    return Checked(Head[1] - UpstreamLevel);
}

void StorePoint(int Point, Single Q, Single Head)
{
    SystemHead[Point] = Head;
    SystemHeadByYear(Point, AnalysisYear) = Head;
    SystemFlowByYear(Point, AnalysisYear) = Q;
}

void StorePlainPoint(int Point)
{
    const Single Q = Checked(GridFlow(Point));
    StorePoint(Point, Q, PlainSystemHead(Q));
}

// The year's data for the kernel. False when a number lies so far out that the kernel might not see a failure
// or might round differently: then the year is worked point by point.
bool PrepareKernel(SystemHeadProfile& Profile, LossCoefficients& Losses)
{
    if (NodeCount < 1 || !FindLossCoefficients(AnalysisYear, Losses)) return false;

    const double LargestFlow = std::fabs(GridFlow(0)) + std::fabs(GridFlow(CurvePoints));
    double LargestLevel = std::fabs(UpstreamLevel) + std::fabs(DownstreamLevel);
    for (int i = 1; i <= NodeCount; ++i) {
        Profile.GroundLevel[i - 1] = wElevation[i];
        LargestLevel += std::fabs(wElevation[i]);
    }
    Profile.RowCount = NodeCount;
    Profile.UpstreamLevel = UpstreamLevel;
    Profile.DownstreamLevel = DownstreamLevel;
    return std::isless(LargestFlow, 1e30) &&
           std::isless(Losses.LargestTotal * LargestFlow * LargestFlow + LargestLevel, KernelHeadLimit);
}

bool TooSmallForKernel(double Q)
{
    return Q != 0 && std::fabs(Q) < LeastKernelFlow;
}

void StoreBlock(int FirstPoint, const SystemHeadProfile& Profile, const LossCoefficients& Losses)
{
    const int Count = std::min(LaneCount, CurvePoints - FirstPoint + 1);
    std::array<Single, LaneCount> Flows{};
    FlowLanes Lanes{};
    for (int k = 0; k < Count; ++k) {
        Flows[k] = GridFlow(FirstPoint + k);
        Lanes.Squared[k] = Flows[k] * Flows[k];
    }

    SystemHeadLanes Result;
    WorkSystemHeads(Profile, Losses, Lanes, Result);
    for (int k = 0; k < Count; ++k) {
        if (Result.Unsure[k] != 0 || TooSmallForKernel(Flows[k]))
            StorePlainPoint(FirstPoint + k);
        else
            StorePoint(FirstPoint + k, Flows[k], Single(Result.Head[k]));
    }
}

} // namespace

void StoreSystemCurve()
{
    SystemHeadProfile Profile;
    LossCoefficients Losses;
    if (PrepareKernel(Profile, Losses)) {
        for (int Point = 1; Point <= CurvePoints; Point += LaneCount) StoreBlock(Point, Profile, Losses);
        return;
    }
    ClearArithmeticFlags(); // numbers that are far out may have raised some
    for (int Point = 1; Point <= CurvePoints; ++Point) StorePlainPoint(Point);
}

} // namespace velorix
