// From the record in memory to the figures: all that the engine does, in its order.
#pragma once

#include "hydraulics/Flows.h"
#include "model/WorkingSet.h"

namespace velorix {

// What has just been worked out.
enum class Milestone { Inputs, Supply, Hours, Income };

// What those above may do while the figures are worked out. A screen that holds a newer supervision fee than
// the working set gives it when it is asked for; what it throws ends the routine there.
struct FigureEvents {
    FlowEvents Flows;
    std::function<void(Milestone)> Reached = [](Milestone) {};
    std::function<Single()> Supervision = [] { return wSupervision; };
};

// Works out every result of the open project from the working set: hydraulics, supply, costs, present values
// and rate of return; the tables that graphs are drawn from only when they are wanted. False when a year had
// no duty point: what comes after the flows stays undone then. Failed flows alone don't end it, as
// HydraulicsFailed tells. Throws Failure for any other step that can't be worked; the steps before it stand.
bool ComputeFigures(Tables Wanted, const FigureEvents& Events = {});

} // namespace velorix
