// A typical project as a whole: a pump curve, 30 rows, 30 years.
#include "cost/Figures.h"
#include "cost/RateScanReference.h"
#include "hydraulics/PlainReference.h"
#include "model/SampleRecords.h"

#include <benchmark/benchmark.h>

namespace velorix {
namespace {

void OpenTypicalProject()
{
    ProjectFields Record = PumpCurveRecord(30);
    Record.Life = 30;
    OpenRecord(Record);
}

void AnalyseTypicalProject(benchmark::State& State)
{
    OpenTypicalProject();
    bool Stand = true;
    for (auto _ : State) Stand = Stand && ComputeFigures(Tables::Filled);
    if (!Stand) State.SkipWithError("the analysis doesn't stand");
}
BENCHMARK(AnalyseTypicalProject)->Unit(benchmark::kMillisecond);

bool SameAsStored(const plain::Curve& Points, int Year)
{
    if (Points.Head.size() != CurvePoints) return false;
    for (int i = 1; i <= CurvePoints; ++i)
        if (Points.Head.at(i - 1).Bits() != SystemHeadByYear(i, Year).Bits() ||
            Points.Flow.at(i - 1).Bits() != SystemFlowByYear(i, Year).Bits())
            return false;
    return true;
}

// The two parts that take the time, as plain loops over the same project; all else is left out. What they
// give is held against what the analysis stored.
void PlainCurvesAndRates(benchmark::State& State)
{
    OpenTypicalProject();
    ComputeFigures(Tables::Filled);
    Array1<plain::Curve, MaxYears> Curves;
    for (auto _ : State) {
        for (int Year = 1; Year <= wLife; ++Year) Curves[Year] = plain::SystemCurve(Year);
        benchmark::DoNotOptimize(PlainScan(Irr));
    }
    for (int Year = 1; Year <= wLife; ++Year)
        if (!SameAsStored(Curves[Year], Year)) return State.SkipWithError("the system curves differ");
    if (!SameAsStored(PlainScan(Irr))) State.SkipWithError("the rates differ");
}
BENCHMARK(PlainCurvesAndRates)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velorix
