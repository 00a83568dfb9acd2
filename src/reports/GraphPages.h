// Graphs on paper: the surface's picture as last drawn, between facts and legend. Each prints one page.
#pragma once

namespace velorix {

void PrintHydraulicGraph();
void PrintPumpCurveGraph();
void PrintProfileGraph();
void PrintRoughnessProfileGraph();
void PrintIrrGraph();
void PrintSystemGraph(); // demand or income, by the option that is set on the results screen

} // namespace velorix
