// The stores of the roughness tool.
#include "roughness/RoughnessStores.h"

namespace velorix {

Array1<ScenarioReadings, MaxScenarios> Readings;
Array1<ScenarioFlows, MaxScenarios> ScenarioFlow;
std::int16_t CurrentScenario = 1;
Array1<Single, MaxScenarios> ScenarioFlowM3;

#define VELORIX_DEFINE(Name) ByStretch<Single> Name;
VELORIX_ROUGHNESS_RESULTS(VELORIX_DEFINE)
#undef VELORIX_DEFINE

void ResetRoughness()
{
    Readings = {};
    ScenarioFlow = {};
    CurrentScenario = 1;
    ScenarioFlowM3 = {};
    ForEachRoughnessResult([](const char*, ByStretch<Single>& Store) { Store = {}; });
}

} // namespace velorix
