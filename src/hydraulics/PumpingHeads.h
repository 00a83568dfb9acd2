// Heads along a pumping pipeline, worked from its end back to the pump.
#pragma once

#include "base/Arithmetic.h"
#include "hydraulics/HydraulicResults.h"

namespace velorix {

using HeadList = ByPointAndYear::Column; // point i is the head at row i (m); point 0 is the caller's

// From DownstreamLevel at the last row back to row 1, each section's losses on top. Where a row would lie
// more than a metre of head below ground, the whole list is lifted until the lowest has a pressure head of -1
// m. The losses of the last row take no part. Steps is EachStep, which throws ArithmeticFailure with the
// heads before the one that failed standing, or AsBlock.
template <typename Steps>
void WorkPumpingHeads(const ByRow& Friction, const ByRow& Secondary, HeadList& Head);

extern template void WorkPumpingHeads<EachStep>(const ByRow&, const ByRow&, HeadList&);
extern template void WorkPumpingHeads<AsBlock>(const ByRow&, const ByRow&, HeadList&);

} // namespace velorix
