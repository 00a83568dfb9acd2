// Demand of each year against what the pipeline can carry.
#pragma once

#include "hydraulics/Normalise.h"

namespace velorix {

extern ByYear Shortage;     // demand not met, in the demand's own unit
extern ByYear PumpingHours; // pumping hours a day

// Hours of the day in each rate class of the summer and winter patterns.
extern Single CntOffpeakS, CntStandardS, CntPeakS;
extern Single CntOffpeakW, CntStandardW, CntPeakW;

// Pumping hours a day in each rate class.
extern ByYear HoursOffpeakS, HoursStandardS, HoursPeakS;
extern ByYear HoursOffpeakW, HoursStandardW, HoursPeakW;

// Shortage, and for a pumping system the pumping hours, of every year. A flow of zero in a pumping system
// throws ArithmeticFailure.
void SupplyDemand();

// Splits the pumping hours over the rate classes, the cheapest first. The running values go on from year to
// year: a class that a year doesn't reach keeps the hours of the year before.
// In a gravity system it splits the PumpingHours that an earlier pumping project has left, and nobody reads
// them.
void SplitPumpingHours();

void ResetYearlySupply();

} // namespace velorix
