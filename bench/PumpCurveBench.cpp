// Solving a pump curve on the largest project: 500 rows, 100 years of ageing pipe, against the plain loops.
#include "hydraulics/PlainReference.h"
#include "hydraulics/SampleProject.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace velorix {
namespace {

// 10 km of 600 mm main that rises 60 m; the roughness grows in every one of the 100 years.
void LoadLargestProject()
{
    sample::Reset();
    for (int i = 0; i < MaxRows; ++i)
        sample::AddNode({20.0 + 0.08 * i + 3 * std::sin(i * 0.7), 20.0 * i + std::sin(i * 1.3),
                         0.6 + 0.0002 * (i % 50), 0.1 * (i % 3)});
    wTRWL = 40;
    wBRWL = 100;
    sample::SetAgeing(0.00005, 0.001, 100);
    sample::SetPumpCurve(
        {{{115, 0.0, 0}, {110, 0.1, 55}, {100, 0.2, 70}, {80, 0.3, 80}, {58, 0.4, 75}, {30, 0.5, 60}}});
    wLife = MaxYears;
    NormaliseInputs();
}

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
