// Present values of costs and income at the project's discount rate, and the series of all costs.
#pragma once

namespace velorix {

// Discounts the capital cost and the yearly series to the base year. With n construction years, the first of
// them carries no discount and operating year y carries n + y - 1 years. Throws ArithmeticFailure for a
// discount rate of -100 percent; what was summed before stands.
void ComputePresentValues();

} // namespace velorix
