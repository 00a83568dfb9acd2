// The results of an analysis on paper. Each prints whole pages.
#pragma once

#include <cstdint>

namespace velorix {

extern std::int16_t PrintYear; // design year of the hydraulic report and its graph, from 1

void PrintHydraulicAnalysis();    // every node, in the year PrintYear
void PrintDemandAndYield();       // a row for each design year
void PrintCostAnalysis();         // capital cost, present values, annual cost of the first year
void PrintIncomeAndExpenditure(); // a row for each year from the base year on
void PrintPumpAndSystemCurve();   // the curves as last drawn on the results screen, and all duty points

void ResetPrintYear();

} // namespace velorix
