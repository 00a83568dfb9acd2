// The five small tables of the input screen: demand, laying, staff and expenses.
#pragma once

#include "platform/Grid.h"

namespace velorix {

// Working set to grid.
void FillDemandGrid(Grid& Table); // msgDemand or msgPumpDemand: one row for each year of the life
void FillLayingGrid();
void FillStaffGrid();
void FillExpensesGrid();

// The headings that follow the currency and the units of the working set.
void FillCostHeadings();

// Grid to working set; what the grid doesn't hold becomes 0.
void ReadDemandGrid();
void ReadPumpDemandGrid();
void ReadLayingGrid();
void ReadStaffGrid();
void ReadExpensesGrid();

} // namespace velorix
