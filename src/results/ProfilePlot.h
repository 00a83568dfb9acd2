// The ground profile with the gradeline of a year and the symbols of the components: on the results screen,
// in the profile viewer and in the roughness viewer.
#pragma once

namespace velorix {

// Each redraws its surface for PlotYear between the chosen begin and end nodes. A choice that makes no range
// is told to the user, and the old picture stays. Any other fault stops the drawing where it is.
void DrawHydraulicPlot();        // frmResults.picHydraulic
void DrawProfilePlot();          // frmView.picGraph
void DrawRoughnessProfilePlot(); // frmViewRoughness.picGraph, with the scenarios' measured gradelines

} // namespace velorix
