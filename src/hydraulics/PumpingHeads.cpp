// The backward sum and the lift.
#include "hydraulics/PumpingHeads.h"

#include "base/Arithmetic.h"
#include "model/WorkingSet.h"

namespace velorix {
namespace {

// Lowest row's pressure head, but -1 at the most.
Single LowestPressure(const HeadList& Head)
{
    Single Lowest = -1;
    for (int j = 1; j <= NodeCount; ++j) {
        const Single Pressure = Checked(Head[j] - wElevation[j]);
        if (Ordered(Pressure) < Lowest) Lowest = Pressure;
    }
    return Lowest;
}

} // namespace

void StorePumpingHeads(const ByRow& Friction, const ByRow& Secondary, HeadList& Head)
{
    Head[NodeCount] = DownstreamLevel;
    for (int j = NodeCount - 1; j >= 1; --j) Head[j] = Checked(Head[j + 1] + Friction[j] + Secondary[j]);

    const Single Lowest = LowestPressure(Head);
    if (Lowest >= -1) return;
    for (int j = 1; j <= NodeCount; ++j) Head[j] = Checked(Head[j] - (Lowest + 1));
}

} // namespace velorix
