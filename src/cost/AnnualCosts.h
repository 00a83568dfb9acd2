// The yearly money of the operating years: income, maintenance, operation and energy.
#pragma once

#include "hydraulics/Normalise.h"

namespace velorix {

// Year 1 is priced at today's money; each series rises from there by its own rate.
extern ByYear IncomeSeries;    // from water sales
extern ByYear MaintPipeline;   // maintenance of the pipeline, laid
extern ByYear MaintMechanical; // maintenance of the mechanical works
extern ByYear MaintElectrical; // maintenance of the electrical works
extern ByYear MaintTotal;      // the three together
extern ByYear OperationalCost; // staff and expenses
extern ByYear EnergyCostWork;  // energy as it is being worked out; a gravity system leaves it alone
extern ByYear EnergyCost;      // energy, 0 for a gravity system

// Income of every year from the smaller of supply and demand.
void ComputeIncome();

// Maintenance, operation and energy of every year; the capital cost and the pumping hours must stand. Throws
// ArithmeticFailure for a pump efficiency of 0; the years before keep their energy cost.
void ComputeAnnualCosts();

void ResetAnnualCosts();

} // namespace velorix
