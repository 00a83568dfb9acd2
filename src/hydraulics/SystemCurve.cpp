// The system curve of a year: the plain formulas of a point, and the blocks of points that stand in for them.
#include "hydraulics/SystemCurve.h"

#include "base/Arithmetic.h"
#include "hydraulics/Kernels.h"
#include "hydraulics/PumpingHeads.h"
#include "hydraulics/RowLosses.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

// Flow at a point, before it is stored.
double FlowAt(int Point)
{
    const double First = wPumpCurve[2];
    const double Last = wPumpCurve[17];
    return (First + (Last - First) * Point / CurvePoints) * FlowFactor;
}

void StorePoint(int Point, Single Q, Single Head)
{
    SystemHead[Point] = Head;
    SystemHeadByYear(Point, AnalysisYear) = Head;
    SystemFlowByYear(Point, AnalysisYear) = Q;
}

void StorePlainPoint(int Point)
{
    const Single Q = Checked(FlowAt(Point));
    StorePoint(Point, Q, SystemHeadAt(Q));
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

Single GridFlow(int Point)
{
    return FlowAt(Point);
}

// Nothing of it is kept when a row fails, so a failure is looked for once.
Single SystemHeadAt(Single Q)
{
    RowLosses Losses;
    WorkRowLosses(AnalysisYear, Q, Losses);
    ByRow Friction, Secondary;
    for (int i = 1; i <= NodeCount; ++i) {
        Friction[i] = Losses.Friction[i - 1];
        Secondary[i] = Losses.Secondary[i - 1];
    }
    HeadList Head;
    WorkPumpingHeads<AsBlock>(Friction, Secondary, Head);
    return Checked(Head[1] - UpstreamLevel);
}

bool PrepareKernel(SystemHeadProfile& Profile, LossCoefficients& Losses)
{
    if (NodeCount < 1 || !FindLossCoefficients(AnalysisYear, Losses)) return false;

    const double LargestFlow = std::fabs(FlowAt(0)) + std::fabs(FlowAt(CurvePoints));
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
