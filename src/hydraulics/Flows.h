// Wall roughness, friction factors, flow, head losses and gradeline of every year.
#pragma once

#include "hydraulics/HydraulicResults.h"
#include "hydraulics/Tables.h"

#include <functional>

namespace velorix {

// What SolveFlows raises while it runs, for those who tell the user. An empty one tells nobody.
struct FlowEvents {
    std::function<void()> DutyPointMissing; // in AnalysisYear; AnalysisAborted is set when it returns
    std::function<void()> Failed;           // HydraulicsFailed is set
};

// Solves all years. Its own failure stands in HydraulicsFailed, a missing duty point in AnalysisAborted; it
// returns normally in every case.
void SolveFlows(Tables Wanted, const FlowEvents& Events = {});

} // namespace velorix
