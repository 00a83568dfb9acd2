// What the profile and gradeline plots show: the profile as they hold it, the year and the range.
#pragma once

#include "hydraulics/HydraulicResults.h"

namespace velorix {

extern ByRow Chainage;              // accumulated length of a node, in the project's unit
extern ByRow GroundLevel;           // ground level of a node, in the project's unit
extern std::int16_t PlotYear;       // year shown, 1 to wLife
extern std::int16_t HideGradeline;  // 1: the plots leave the gradeline out
extern std::int16_t HideComponents; // 1: the results plot leaves the symbols out

// One entry for each node in comBegin and comEnd, the first and the last selected, and the starting state of
// the plots. The entries are the chainages that the last plot copied.
void FillCombos();

// What every drawing of the hydraulic plot begins with: the nodes counted from the profile grid, the profile
// copied to Chainage and GroundLevel, the range of hscYears.
void TakeProfileForPlot();

void ResetPlotState();

} // namespace velorix
