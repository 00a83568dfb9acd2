// Present value of income less cost over the rates that were tried.
#pragma once

namespace velorix {

// Redraws frmIRRView.picIRR between the rates of its two bars. Bars that make no range, and a fault in the
// plot, are told to the user.
void DrawIrrGraph();

// Loads the screen of the graph, hidden, with its bars at all rates.
void OpenIrrGraph();

// Loads it and draws where nobody is there to choose the rates: all, or those around the rate of return of
// which the amounts fit the axis.
void OpenIrrGraphForPaper();

} // namespace velorix
