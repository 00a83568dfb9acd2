// Cutting a gravity flow back for a high point, against the plain scan.
#include "hydraulics/HighPoint.h"
#include "hydraulics/PlainReference.h"
#include "hydraulics/SampleProject.h"

#include <benchmark/benchmark.h>

namespace velorix {
namespace {

constexpr int Rows = 99;
constexpr double StartFlow = 0.6; // m3/s, above what clears

// 10 km of falling main with a hill in the middle, almost as high as the upper reservoir.
void LoadHill(double Hill)
{
    sample::Reset();
    for (int i = 0; i < Rows; ++i)
        sample::AddNode(
            {100 - 0.8 * i + (i == 50 ? Hill : 0), 100.0 * i, 0.5 + 0.001 * (i % 7), 0.1 * (i % 3)});
    wTRWL = 110;
    wBRWL = 25;
    sample::SetAgeing(0.0001, 0.001, 20);
    wLife = 2;
    NormaliseInputs();
    for (int i = 1; i <= Rows; ++i) Lambda(i, 1) = 0.016 + 0.00001 * i;
}

void CutBackForHill(benchmark::State& State)
{
    LoadHill(45);
    for (auto _ : State) benchmark::DoNotOptimize(FlowClearOfHighPoints(1, StartFlow));
}
BENCHMARK(CutBackForHill)->Unit(benchmark::kMillisecond);

void PlainCutBackForHill(benchmark::State& State)
{
    LoadHill(45);
    Single Plain;
    for (auto _ : State) Plain = plain::FlowClearOfHighPoints(1, StartFlow, MostCutbacks);
    State.counters["cutback"] = StartFlow - Plain;
    if (Plain.Bits() != FlowClearOfHighPoints(1, StartFlow).Bits()) State.SkipWithError("the flows differ");
}
BENCHMARK(PlainCutBackForHill)->Unit(benchmark::kMillisecond);

// A hill above the reservoir: no flow clears it, and all ten million would be tried.
void NoFlowClears(benchmark::State& State)
{
    LoadHill(60);
    for (auto _ : State) benchmark::DoNotOptimize(FlowClearOfHighPoints(1, StartFlow));
}
BENCHMARK(NoFlowClears)->Unit(benchmark::kMillisecond);

// The worst that data can do: losses that cancel but for a millionth, and a hill that no flow clears by as
// little. Hardly a range of flows is decided as a whole, and all ten million are tried.
void NothingDecidedAsAWhole(benchmark::State& State)
{
    LoadHill(0);
    for (int i = 1; i <= Rows; ++i) {
        SectionLength[i] = 0;
        wSecondaryLoss[i] = i % 2 == 1 ? -99999.9 : 100000;
        InternalDiameter[i] = 0.5;
        wElevation[i] = i % 2 == 1 ? 111 : 100;
    }
    Single Q;
    for (auto _ : State) Q = FlowClearOfHighPoints(1, StartFlow);
    if (Q != Single(StartFlow - 10)) State.SkipWithError("a flow cleared");
}
BENCHMARK(NothingDecidedAsAWhole)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace velorix
