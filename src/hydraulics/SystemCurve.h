// The head that a pipeline asks of its pump at each flow of the pump curve's range.
#pragma once

#include "hydraulics/Kernels.h"

namespace velorix {

// Flow at a point, 0 to CurvePoints, as stored (m3/s): one step above the first flow of the pump curve at
// point 1, on the last at CurvePoints. A failure to work it shows in the status flags.
Single GridFlow(int Point);

// System head of AnalysisYear at the flow Q (m), each quantity stored where its step ends. Throws
// ArithmeticFailure.
Single SystemHeadAt(Single Q);

// The year's data for the kernel. False when a number lies so far out that the kernel might not see a failure
// or might round differently, or that a bound of the heads might not hold.
bool PrepareKernel(SystemHeadProfile& Profile, LossCoefficients& Losses);

// Works the system curve of AnalysisYear on CurvePoints flows between the first and the last flow of the pump
// curve: SystemHead, SystemHeadByYear and SystemFlowByYear, point by point in their order. Needs the year's
// Lambda. Throws ArithmeticFailure; the points before the one that failed stand then.
void StoreSystemCurve();

} // namespace velorix
