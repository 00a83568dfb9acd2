// The point where the pump curve crosses the system curve of a year.
#pragma once

namespace velorix {

// Solves AnalysisYear, whose Lambda must stand: writes OperatingFlow and DutyEfficiency, and all that stands
// with the system curve. False, with both as they were, when the curves don't cross. Throws SubscriptFailure
// for a crossing on the first segment of the pump curve, and ArithmeticFailure.
bool FindDutyPoint();

} // namespace velorix
