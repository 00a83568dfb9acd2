// The capital cost table and the annual cost table of the results screen.
#pragma once

namespace velorix {

// Fills the capital cost table, whose sub totals are worked out anew and rounded to 32 bits each, and lays
// out the annual cost table with the amounts of year 1.
void FillCapitalCostTable();

// The annual costs of the year that hsbAnnual stands on.
void ShowAnnualCost();

} // namespace velorix
