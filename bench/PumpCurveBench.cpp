// Solving a pump curve on the largest project: 500 rows, 100 years of ageing pipe, against the plain loops.
#include "LargestProject.h"
#include "hydraulics/PlainReference.h"

#include <benchmark/benchmark.h>

namespace velorix {
namespace {

// The whole solution: friction factors, system curves, duty points and gradelines.
void SolvePumpCurve(benchmark::State& State)
{
    LoadLargestProject();
    for (auto _ : State) SolveFlows(Tables::Filled);
    if (HydraulicsFailed != 0 || AnalysisAborted != 0) State.SkipWithError("the project has no duty point");
}
BENCHMARK(SolvePumpCurve)->Unit(benchmark::kMillisecond);

// The system curves alone, by the plain loops. What they give is held against what SolveFlows stored.
void PlainSystemCurves(benchmark::State& State)
{
    LoadLargestProject();
    SolveFlows(Tables::Filled);
    std::vector<plain::Curve> Curves(MaxYears);
    for (auto _ : State)
        for (int y = 1; y <= MaxYears; ++y) Curves[y - 1] = plain::SystemCurve(y);

    for (int y = 1; y <= MaxYears; ++y)
        for (int i = 1; i <= CurvePoints; ++i)
            if (Curves[y - 1].Head.at(i - 1).Bits() != SystemHeadByYear(i, y).Bits() ||
                Curves[y - 1].Flow.at(i - 1).Bits() != SystemFlowByYear(i, y).Bits())
                return State.SkipWithError("the stored system curves differ");
}
BENCHMARK(PlainSystemCurves)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace velorix
