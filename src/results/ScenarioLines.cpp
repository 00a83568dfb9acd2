// The stores of the measured gradelines.
#include "results/ScenarioLines.h"

namespace velorix {

ByStretch<std::int16_t> StretchValid;
ByStretch<std::int16_t> StretchStart;
ByStretch<std::int16_t> StretchEnd;
ByStretch<ByRow> MeasuredGradeline;

void ResetScenarioLines()
{
    StretchValid = StretchStart = StretchEnd = {};
    MeasuredGradeline = {};
}

} // namespace velorix
