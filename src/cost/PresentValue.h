// Present values of costs and income at the project's discount rate, and the series of all costs.
#pragma once

#include "hydraulics/Normalise.h"

namespace velorix {

constexpr int MaxCostYears = 2 * MaxYears; // construction years and operating years

extern Single NpvCost;                          // present value of all costs
extern Single NpvIncome;                        // present value of the income
extern Array1<Single, MaxCostYears> CostSeries; // cost of each year, the construction years first

// Discounts the capital cost and the yearly series to the base year. With n construction years, the first of
// them carries no discount and operating year y carries n + y - 1 years. Throws ArithmeticFailure for a
// discount rate of -100 percent; what was summed before stands.
void ComputePresentValues();

void ResetPresentValue();

} // namespace velorix
