// Demand of each year against what the pipeline can carry.
#pragma once

namespace velorix {

// Shortage, and for a pumping system the pumping hours, of every year. A flow of zero in a pumping system
// throws ArithmeticFailure.
void SupplyDemand();

// Splits the pumping hours over the rate classes, the cheapest first. The running values go on from year to
// year: a class that a year doesn't reach keeps the hours of the year before.
// In a gravity system it splits the PumpingHours that an earlier pumping project has left, and nobody reads
// them.
void SplitPumpingHours();

} // namespace velorix
