// What was measured along the pipeline in operation, and the roughness that follows from it. The stores
// outlive their screen; those that the plot over the profile shows as well stand in results/ScenarioLines.h.
#pragma once

#include "results/ScenarioLines.h"

namespace velorix {

constexpr int MaxPoints = MaxStretches + 1; // where a scenario's pressures are measured

// The values of a point, in the units of the profile and of the pressure list.
enum Reading { AtLength, AtElevation, AtPressure };
constexpr int ReadingsOfPoint = 3;
using ScenarioReadings = Array0<Array1<Single, MaxPoints>, ReadingsOfPoint>;
extern Array1<ScenarioReadings, MaxScenarios> Readings; // [scenario][value][point]

// The flow of a scenario, the index of its unit and that of the unit of the pressures.
enum FlowValue { TheFlow, TheFlowUnit, ThePressureUnit };
using ScenarioFlows = Array0<Single, 3>;
extern Array1<ScenarioFlows, MaxScenarios> ScenarioFlow;

extern std::int16_t CurrentScenario;                // the one on the screen
extern Array1<Single, MaxScenarios> ScenarioFlowM3; // m3/s

// What a calculation gives for each stretch from one point to the next, all 0 when it begins. The order is
// that of the output.
// clang-format off
#define VELORIX_ROUGHNESS_RESULTS(RESULT)                                                   \
    RESULT(KsColebrook)     /* absolute roughness (m) by Colebrook and White */             \
    RESULT(KsBarr)          /* by Barr */                                                   \
    RESULT(KsKarman)        /* by Karman and Prandtl, for the fully rough pipe */           \
    RESULT(HazenC)          /* coefficient of Hazen and Williams */                         \
    RESULT(AverageDiameter) /* bore, weighed by length (m) */                               \
    RESULT(AverageVelocity) /* half of flow by area (m/s), as all figures that hang on it */ \
    RESULT(Reynolds)                                                                        \
    RESULT(HeadDifference)  /* head lost (m) */                                             \
    RESULT(StretchLength)   /* m */                                                         \
    RESULT(Slope)           /* head lost per metre */
// clang-format on

#define VELORIX_DECLARE(Name) extern ByStretch<Single> Name;
VELORIX_ROUGHNESS_RESULTS(VELORIX_DECLARE)
#undef VELORIX_DECLARE

// Calls Visit(name, store) for each of them.
template <typename Visitor>
void ForEachRoughnessResult(Visitor&& Visit)
{
#define VELORIX_VISIT(Name) Visit(#Name, Name);
    VELORIX_ROUGHNESS_RESULTS(VELORIX_VISIT)
#undef VELORIX_VISIT
}

void ResetRoughness();

} // namespace velorix
