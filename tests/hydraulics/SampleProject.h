// A project put together row by row, in metres and m3/s, for the tests and benchmarks of the hydraulics.
#pragma once

#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/Normalise.h"
#include "hydraulics/YearlySupply.h"
#include "project/WorkingSet.h"

#include <array>

namespace velorix::sample {

// Every module at the program's start, and all lengths and flows in m and m3/s.
inline void Reset()
{
    ResetWorkingSet();
    ResetNormalise();
    ResetFlows();
    ResetDutyPoint();
    ResetYearlySupply();
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

struct PumpPoint {
    double Head;
    double Flow;
    double Efficiency;
};

inline void SetPumpCurve(const std::array<PumpPoint, 6>& Points)
{
    wSystemType = 1;
    wPumpDetails = 1;
    for (int p = 1; p <= 6; ++p) {
        wPumpCurve[3 * p - 2] = Points[p - 1].Head;
        wPumpCurve[3 * p - 1] = Points[p - 1].Flow;
        wPumpCurve[3 * p] = Points[p - 1].Efficiency;
    }
}

} // namespace velorix::sample
