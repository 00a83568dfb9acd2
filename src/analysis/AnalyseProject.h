// The whole analysis of the open project, from the working set to the results.
#pragma once

namespace velorix {

// Hydraulics, yearly supply, costs, present values, and the filling of the results screen, hidden. Sets
// Analysed when results stand. A failure anywhere is told to the user and ends the analysis; what was
// computed stays.
void AnalyseProject();

// Fills the cost tables and the chainage lists of the results screen once more, as it opens.
void RefreshResults();

} // namespace velorix
