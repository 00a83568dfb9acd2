// The flow at which a gravity pipeline clears its high points.
#pragma once

#include "base/Single.h"

namespace velorix {

constexpr int MostCutbacks = 10000000; // of 0.000001 m3/s each

// The first flow Start - s / 1000000 (m3/s), s = 1 to MostCutbacks, at which no pressure head behind a
// section but the last row's is -1 m or less. When there is none it is the last flow tried, which may lie
// below zero. Needs the year's Lambda. Throws ArithmeticFailure when a flow up to the first that clears can't
// be worked.
Single FlowClearOfHighPoints(int Year, Single Start);

} // namespace velorix
