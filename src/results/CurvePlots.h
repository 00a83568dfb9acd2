// Head against flow: the pump curve with its efficiency, and the pump curve with a year's system curve.
#pragma once

#include "platform/DrawingSurface.h"

namespace velorix {

// Takes the pump curve from its boxes on the input screen, with its units. False, and told to the user, while
// it isn't complete or all of it is zero.
bool TakePumpCurve();

// The entered pump curve on frmPumpView. Any fault is told to the user, closes the viewer and sets
// HydraulicsFailed.
void DrawPumpCurve();

// Pump and system curve of AnalysisYear, on the results screen or in the dialog of a year without a duty
// point; GridInk is the grid's colour on that screen. A fault stops the drawing where it is.
void DrawDutyCurves(DrawingSurface& Surface, Color GridInk);

// The unit of the pump curve's flows beside the plots.
std::string PumpFlowUnit();

// The duty points of all years in msgDuty of the results screen.
void FillDutyTable();

} // namespace velorix
