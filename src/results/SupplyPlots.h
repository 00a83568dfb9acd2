// Bar charts of the years on picSystem: demand and capacity, income and expenditure.
#pragma once

#include "base/Single.h"

namespace velorix {

// What the pipeline can deliver in an operating year, and what is asked of it, in the unit of the demand.
double CapacityOfYear(int Year);
Single DemandOfYear(int Year);

// Years on the income plot: those of construction and those of supply.
int YearsOfIncome();

// Income of operating year k, 0 past the design life; costs of calendar year k, of which the first is the
// base year, 0 past the end of the series.
Single IncomeAt(int k);
Single CostAt(int k);

// Each redraws picSystem and shows its legend in place of the other's. A fault in the demand plot is told to
// the user; one in the income plot stops the drawing where it is.
void DrawDemandCapacity();
void DrawIncomeExpenditure();

} // namespace velorix
