// Numbers out of grid cells, where an unreadable cell is no failure.
#pragma once

#include "base/Single.h"
#include "platform/Grid.h"

#include <cstdint>

namespace velorix {

// Takes the number at the start of the cell's text; 0 when there is none. A cell that isn't there, and a
// number too large for its target, leave the target as it was.
void ReadCell(const Grid& Table, int Row, int Col, Single& Target);
void ReadCell(const Grid& Table, int Row, int Col, std::int16_t& Target);

} // namespace velorix
