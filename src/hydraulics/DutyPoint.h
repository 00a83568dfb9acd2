// The system curve of a year and the point where the pump curve crosses it.
#pragma once

#include "hydraulics/Normalise.h"
#include "hydraulics/Tables.h"

namespace velorix {

constexpr int CurvePoints = 10000; // flows on the system curve's grid

using SystemCurves = YearTable<Single, 1, CurvePoints, MaxYears>;

extern Single OperatingFlow;                   // the given flow, or the duty flow of the year solved (m3/s)
extern Array1<Single, CurvePoints> SystemHead; // system head of the year being solved (m)
extern std::int16_t AnalysisYear;     // the year being solved, later the year that the duty plot shows
extern SystemCurves SystemHeadByYear; // (m)
extern SystemCurves SystemFlowByYear; // (m3/s)
extern Single DutyHead;               // the point picked: head (m),
extern Single DutyFlow;               // flow (m3/s)
extern Single DutyEfficiencyPoint;    // and efficiency (percent)
extern Single DutyEfficiency;         // efficiency of the last year solved (percent)
extern ByYear Efficiency;             // percent
extern ByYear PumpHead;               // head over the pump station's ground (m), pump curve only
extern ByYear PumpFlow;               // (m3/s), pump curve only
extern ByYear PumpEfficiencyByYear;   // percent, pump curve only
extern std::int16_t AnalysisAborted;  // -1 after a year without a duty point

// Solves AnalysisYear, whose Lambda must stand: writes OperatingFlow and DutyEfficiency. Without a duty point
// it tells the user, shows the curves and sets AnalysisAborted.
bool FindDutyPoint(Tables Wanted);

void ResetDutyPoint();

} // namespace velorix
