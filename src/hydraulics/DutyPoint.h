// The point where the pump curve crosses the system curve of a year.
#pragma once

#include "hydraulics/Tables.h"

namespace velorix {

// Solves AnalysisYear, whose Lambda must stand: writes OperatingFlow and DutyEfficiency, and the tables that
// are wanted. False, with both as they were, when the curves don't cross. Throws SubscriptFailure for a
// crossing on the first segment of the pump curve, and ArithmeticFailure.
bool FindDutyPoint(Tables Wanted);

} // namespace velorix
