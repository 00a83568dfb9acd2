// The head that a pipeline asks of its pump at each flow of the pump curve's range.
#pragma once

namespace velorix {

// Works the system curve of AnalysisYear on CurvePoints flows between the first and the last flow of the pump
// curve: SystemHead, SystemHeadByYear and SystemFlowByYear, point by point in their order. Needs the year's
// Lambda. Throws ArithmeticFailure; the points before the one that failed stand then.
void StoreSystemCurve();

} // namespace velorix
