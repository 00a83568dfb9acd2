// A project put together row by row, in metres and m3/s, for the tests and benchmarks of the hydraulics.
#pragma once

#include "hydraulics/Flows.h"
#include "hydraulics/HydraulicResults.h"
#include "hydraulics/Normalise.h"
#include "hydraulics/YearlySupply.h"
#include "model/WorkingSet.h"

#include <array>

namespace velorix::sample {

// Every module at the program's start, and all lengths and flows in m and m3/s.
inline void Reset()
{
    ResetWorkingSet();
    ForEachHydraulicResult([](const ResultInfo&, auto& Value) { SetToZero(Value); });
    wDiameterUnits = wWallThicknessUnits = wLiningThicknessUnits = wKsNewUnits = wKsOldUnits = 1;
    wFlowrateUnits = wDemandUnits = 2;
    wFlowUnits = wPumpOperatingFlowrateUnits = 1;
}

struct Node {
    double Elevation; // m
    double AccLength; // m
    double Diameter;  // m
    double SecondaryLoss = 0;
};

inline void AddNode(const Node& New)
{
    ++NodeCount;
    wElevation[NodeCount] = New.Elevation;
    wAccLength[NodeCount] = New.AccLength;
    wDiameter[NodeCount] = New.Diameter;
    wSecondaryLoss[NodeCount] = New.SecondaryLoss;
}

inline void SetAgeing(double KsNew, double KsOld, double Years)
{
    wKsNew = KsNew;
    wKsOld = KsOld;
    wKsOldYears = Years;
}

// Each point: head, flow, efficiency.
inline void SetPumpCurve(const std::array<std::array<double, 3>, 6>& Points)
{
    wSystemType = 1;
    wPumpDetails = 1;
    for (int i = 0; i < 18; ++i) wPumpCurve[i + 1] = Points[i / 3][i % 3];
}

} // namespace velorix::sample
