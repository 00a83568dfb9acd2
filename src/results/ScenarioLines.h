// The measured gradelines of the roughness scenarios, as the profile view draws them. The roughness
// calculation writes them, and they outlive its screen.
#pragma once

#include "hydraulics/HydraulicResults.h"
#include "screens/Viewers.h"

namespace velorix {

constexpr int MaxScenarios = ScenarioCount;
constexpr int MaxStretches = 4; // between the measuring points of a scenario

template <typename T>
using ByStretch = Array1<Array1<T, MaxStretches>, MaxScenarios>; // [scenario][stretch]

extern ByStretch<std::int16_t> StretchValid; // -1: the stretch takes part
extern ByStretch<std::int16_t> StretchStart; // profile row of its first point
extern ByStretch<std::int16_t> StretchEnd;   // and of its last
extern ByStretch<ByRow> MeasuredGradeline;   // head at each row of the stretch (m)

void ResetScenarioLines();

} // namespace velorix
