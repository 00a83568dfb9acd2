// The yearly money of the operating years: income, maintenance, operation and energy.
#pragma once

namespace velorix {

// Income of every year from the smaller of supply and demand.
void ComputeIncome();

// Maintenance, operation and energy of every year; the capital cost and the pumping hours must stand. Throws
// ArithmeticFailure for a pump efficiency of 0; the years before keep their energy cost.
void ComputeAnnualCosts();

} // namespace velorix
