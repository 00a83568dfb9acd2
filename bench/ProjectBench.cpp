// A typical project as a whole: a pump curve, 30 rows, 30 years.
#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "analysis/SampleRecords.h"
#include "cost/RateScanReference.h"
#include "hydraulics/PlainReference.h"
#include "platform/ScriptedPlatform.h"
#include "project/Session.h"
#include "project/WorkingSet.h"

#include <benchmark/benchmark.h>

namespace velorix {
namespace {

ScriptedPlatform Windows;

void OpenTypicalProject()
{
    InstallPlatform(&Windows);
    ResetProgram();
    StartSession();
    ProjectRecord = PumpCurveRecord(30);
    ProjectRecord.Life = 30;
    NewProject = 1;
    LoadProject();
}

void AnalyseTypicalProject(benchmark::State& State)
{
    OpenTypicalProject();
    for (auto _ : State) AnalyseProject();
    if (Analysed != 1) State.SkipWithError("the analysis doesn't stand");
}
BENCHMARK(AnalyseTypicalProject)->Unit(benchmark::kMillisecond);

// The two parts that take the time, as plain loops over the same project; all else is left out.
void PlainCurvesAndRates(benchmark::State& State)
{
    OpenTypicalProject();
    AnalyseProject();
    for (auto _ : State) {
        for (int Year = 1; Year <= wLife; ++Year) benchmark::DoNotOptimize(plain::SystemCurve(Year));
        benchmark::DoNotOptimize(PlainScan(Irr));
    }
    if (!SameAsStored(PlainScan(Irr))) State.SkipWithError("the rates differ");
}
BENCHMARK(PlainCurvesAndRates)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velorix
