// The system curve of a year: the plain formulas of a point, and the blocks of points that stand in for them.
#include "hydraulics/SystemCurve.h"

#include "base/Arithmetic.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/Kernels.h"
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

// Lowest row's pressure head, but -1 at the most.
Single LowestPressure(const ByRow& Head)
{
    Single Lowest = -1;
    for (int j = 1; j <= NodeCount; ++j) {
        const Single Pressure = Checked(Head[j] - wElevation[j]);
        if (Ordered(Pressure) < Lowest) Lowest = Pressure;
    }
    return Lowest;
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

Single SystemHeadAt(Single Q)
{
    ByRow Friction, Secondary;
    for (int i = 1; i <= NodeCount; ++i) {
        const double D = InternalDiameter[i];
        Friction[i] = Checked(FrictionHead(Q, D, SectionLength[i], Lambda(i, AnalysisYear)));
        Secondary[i] = Checked(SecondaryHead(Q, D, wSecondaryLoss[i]));
    }

    ByRow Head;
    Head[NodeCount] = DownstreamLevel;
    for (int j = NodeCount - 1; j >= 1; --j) Head[j] = Checked(Head[j + 1] + Friction[j] + Secondary[j]);

    const Single Lowest = LowestPressure(Head);
    if (Lowest < -1)
        for (int j = 1; j <= NodeCount; ++j) Head[j] = Checked(Head[j] - (Lowest + 1));
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
