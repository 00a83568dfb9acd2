// Present value of income less cost over the rates that were tried.
#pragma once

namespace velorix {

// Redraws frmIRRView.picIRR between the rates of its two bars. Bars that make no range, and a fault in the
// plot, are told to the user.
void DrawIrrGraph();

} // namespace velorix
