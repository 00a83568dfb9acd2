// The losses of all rows at one flow.
#pragma once

#include "hydraulics/HydraulicResults.h"

#include <array>

namespace velorix {

// Entry i - 1 belongs to row i, from 1 to NodeCount (m). Not rounded yet: some steps store a row's loss,
// others a sum that it goes into.
struct RowLosses {
    std::array<double, MaxRows> Friction;
    std::array<double, MaxRows> Secondary;
};

// Works the formulas of all rows at the flow Q (m3/s) with the friction factors of the year. A failure in any
// row shows in the status flags when it returns, and only there.
void WorkRowLosses(int Year, double Q, RowLosses& Losses);

} // namespace velorix
