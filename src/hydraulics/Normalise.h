// The project in metres and cubic metres a second, as all calculations use it.
#pragma once

#include "hydraulics/HydraulicResults.h"

namespace velorix {

// Fills the levels, lengths, bores, roughnesses, factors and DemandFlow from the working set. From the demand
// factors onward a failure ends the routine quietly, and the remaining values stay as they were. Before that
// a failure is thrown.
void NormaliseInputs();

// Head above ground behind a section when nothing is lost on the way (m): the upstream level less the ground
// level of the row that the section leads to. The level is scaled by ElevationFactor alone.
double StaticHead(int Section);

} // namespace velorix
