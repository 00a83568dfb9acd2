// Wall roughness, friction factors, flow, head losses and gradeline of every year.
#pragma once

#include "hydraulics/Normalise.h"
#include "hydraulics/Tables.h"

namespace velorix {

extern ByYear KsYear;                  // absolute roughness of the wall (m)
extern ByRowAndYear Lambda;            // Darcy friction factor of row i in year y
extern ByRowAndYear FrictionLoss;      // friction head loss of section i in year y (m)
extern ByRowAndYear SecondaryHeadLoss; // secondary head loss at row i in year y (m)

// Head along the pipeline (m above datum), points 0 to 500. Gravity: point 0 is the head at row 1, point i
// the head just downstream of section i. Pumping: point i is the head at row i, point 0 the ground at the
// station.
extern YearTable<Single, 0, MaxRows, MaxYears> Gradeline;

extern ByYear Flow;                    // flow that the pipeline carries (m3/s)
extern std::int16_t HighPointAdjusted; // 1 once a year's gravity flow was cut back for a high point
extern std::int16_t HydraulicsFailed;  // 1 after a failure of SolveFlows, 0 after a clean run

// Solves all years. Its own failure is told to the user and stands in HydraulicsFailed, a missing duty point
// in AnalysisAborted; it returns normally in every case.
void SolveFlows(Tables Wanted = Tables::Filled);

void ResetFlows();

} // namespace velorix
