// Numbers out of grid cells.
#include "input/GridReading.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "base/NumberText.h"

namespace velorix {

void ReadCell(const Grid& Table, int Row, int Col, Single& Target)
{
    try {
        Target = LeadingNumber(Table.Text(Row, Col));
    } catch (const Failure&) {
        return; // the one place where a bad cell is meant to pass unseen
    }
}

void ReadCell(const Grid& Table, int Row, int Col, std::int16_t& Target)
{
    try {
        Target = RoundToInt16(LeadingNumber(Table.Text(Row, Col)));
    } catch (const Failure&) {
        return;
    }
}

} // namespace velorix
