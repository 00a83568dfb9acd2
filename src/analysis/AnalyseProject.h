// The whole analysis of the open project, from the working set to the results.
#pragma once

#include "hydraulics/Flows.h"

namespace velorix {

// Hydraulics, yearly supply, costs, present values, and the filling of the results screen, hidden. Sets
// Analysed when results stand. A failure anywhere is told to the user and ends the analysis; what was
// computed stays. The tables that only graphs need, and the graphs that stand ready when the screen opens,
// are for whoever shows some.
void AnalyseProject(Tables Wanted);

// What the user is told of a flow solution, and the dialog of a year without a duty point: for every caller
// of SolveFlows that stands before a user.
FlowEvents TellingOfFlows();

// What the profile viewer needs of an analysis: the flows of the working set. False after a year without a
// duty point.
bool SolveForProfile(Tables Wanted);

// Fills the cost tables and the chainage lists of the results screen once more, as it opens.
void RefreshResults();

} // namespace velorix
