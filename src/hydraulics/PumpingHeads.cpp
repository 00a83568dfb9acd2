// The backward sum and the lift.
#include "hydraulics/PumpingHeads.h"

#include "model/WorkingSet.h"

namespace velorix {
namespace {

// Lowest row's pressure head, but -1 at the most.
template <typename Steps>
Single LowestPressure(const HeadList& Head)
{
    Single Lowest = -1;
    for (int j = 1; j <= NodeCount; ++j) {
        const Single Pressure = Steps::Stored(Head[j] - wElevation[j]);
        if (Steps::Compared(Pressure) < Lowest) Lowest = Pressure;
    }
    return Lowest;
}

} // namespace

template <typename Steps>
void WorkPumpingHeads(const ByRow& Friction, const ByRow& Secondary, HeadList& Head)
{
    Head[NodeCount] = DownstreamLevel;
    for (int j = NodeCount - 1; j >= 1; --j)
        Head[j] = Steps::Stored(Head[j + 1] + Friction[j] + Secondary[j]);

    const Single Lowest = LowestPressure<Steps>(Head);
    if (Lowest >= -1) return;
    for (int j = 1; j <= NodeCount; ++j) Head[j] = Steps::Stored(Head[j] - (Lowest + 1));
}

template void WorkPumpingHeads<EachStep>(const ByRow&, const ByRow&, HeadList&);
template void WorkPumpingHeads<AsBlock>(const ByRow&, const ByRow&, HeadList&);

} // namespace velorix
