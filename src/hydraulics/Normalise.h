// The project in metres and cubic metres a second, as all calculations use it.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"

#include <cstdint>

namespace velorix {

constexpr int MaxRows = 500;
constexpr int MaxYears = 100;

using ByRow = Array1<Single, MaxRows>;
using ByYear = Array1<Single, MaxYears>;
using ByRowAndYear = YearTable<Single, 1, MaxRows, MaxYears>;

extern Single UpstreamLevel;   // water level at the start of the pipeline (m)
extern Single DownstreamLevel; // water level at its end (m)
extern std::int16_t
    ElevationFactor;           // whole-number factor from the elevation unit to metres: 1, 1000, 0, 1609
extern ByRow InternalDiameter; // bore inside lining and walls (m)
extern Single LiningLoss;      // twice the lining thickness, 0 without lining (m)
extern ByRow SectionLength;    // from row i to row i + 1 (m); NodeCount - 1 entries are written
extern Single KsNewM;          // absolute roughness of a new pipe (m)
extern Single KsOldM;          // absolute roughness of an old pipe (m)

extern Single DemandFactor;        // from the unit of the demand in use to m3/s
extern ByYear DemandFlow;          // demand of each operating year (m3/s)
extern Single HeadFactor;          // from the unit of the pump curve's heads to m
extern Single FlowFactor;          // from the unit of its flows to m3/s
extern Single OperatingFlowFactor; // from the unit of the given operating flow to m3/s
extern Single WaterSalesFactor;    // applied to a flow in m3/s for the unit of the water tariff

// Fills the values above from the working set. From the demand factors onward a failure ends the routine
// quietly, and the remaining values stay as they were. Before that a failure is thrown.
void NormaliseInputs();

// Head above ground behind a section when nothing is lost on the way (m): the upstream level less the ground
// level of the row that the section leads to. The level is scaled by ElevationFactor alone.
double StaticHead(int Section);

void ResetNormalise();

} // namespace velorix
