// The flow that the available head drives through a gravity pipeline.
#pragma once

#include "base/Single.h"

namespace velorix {

// Flow of the year (m3/s) between reservoirs that lie H (m) apart, by bisection between 0.000001 and 100
// m3/s, cut back where the gradeline passes more than a metre below ground. Sets HighPointAdjusted when it
// was. Needs the year's Lambda. A head that drives no flow, or more than 100 m3/s, gives a flow next to 100.
// Throws SubscriptFailure from 100 rows on, and ArithmeticFailure.
Single GravityFlow(int Year, Single H);

} // namespace velorix
