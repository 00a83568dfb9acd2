// What the profile and gradeline plots show: the profile as they hold it, the year and the range.
#pragma once

#include "hydraulics/HydraulicResults.h"
#include "platform/Controls.h"

namespace velorix {

extern ByRow Chainage;        // accumulated length of a node, in the project's unit
extern ByRow GroundLevel;     // ground level of a node, in the project's unit
extern std::int16_t PlotYear; // year shown, 1 to wLife

// The year that stands on a plot since it was last drawn; PlotYear may have gone on.
extern std::int16_t HydraulicYearDrawn; // frmResults
extern std::int16_t ProfileYearDrawn;   // frmView
extern std::int16_t RoughnessYearDrawn; // frmViewRoughness

extern std::int16_t HideGradeline;  // 1: the plots leave the gradeline out
extern std::int16_t HideComponents; // 1: the results plot leaves the symbols out

// The point of the gradeline that plot and table show for a node.
int GradelinePoint(int Node);

// One entry for each node: the chainages that the last plot copied.
std::vector<std::string> DistanceEntries();

// Lists them; the first and the last are selected.
void FillDistances(ComboBox& Begin, ComboBox& End);

// FillDistances for the results screen, and the starting state of the plots.
void FillCombos();

// What every drawing of a profile plot begins with: the nodes counted from the profile grid, the profile
// copied to Chainage and GroundLevel.
void TakeProfileForPlot();

// The year and the gradeline that all profile plots share, shown by the controls of one of them. Draws
// nothing.
void ShowPlotState(ScrollBar& Years, Label& Year, CheckBox& GradelineTick);

void ResetPlotState();

} // namespace velorix
