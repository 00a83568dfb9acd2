// The tables behind the plots: hydraulics of a year along the profile, demand and income of all years.
#pragma once

namespace velorix {

// Each fills its grid anew, hidden while it is being filled. A cell whose value can't be worked out stays
// empty.
void FillHydraulicTable(); // msgHydraulic: one row a node, for PlotYear
void FillDemandTable();    // msgSystem: one row an operating year
void FillIncomeTable();    // msgSystem: one row a calendar year, those of construction first

} // namespace velorix
