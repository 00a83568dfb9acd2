// The rate of return scan of the longest project, beside its plain version.
#include "cost/RateScanReference.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int LongestLife = 100;
constexpr int ConstructionYears = 5;

// Ends with a proof that the stored results are those of the plain scan, bit for bit.
void FastScan(benchmark::State& State)
{
    velorix::DescribeScheme(LongestLife, ConstructionYears);
    for (auto _ : State) {
        velorix::ScanRateOfReturn();
        benchmark::DoNotOptimize(velorix::Irr);
    }
    if (!velorix::SameAsStored(velorix::PlainScan(0))) State.SkipWithError("differs from the plain scan");
}
BENCHMARK(FastScan)->Unit(benchmark::kMillisecond);

void FoundFromBounds(benchmark::State& State)
{
    velorix::DescribeScheme(LongestLife, ConstructionYears);
    for (auto _ : State) {
        velorix::FindRateOfReturn();
        benchmark::DoNotOptimize(velorix::Irr);
    }
    if (velorix::Irr.Bits() != velorix::PlainScan(0).Return.Bits())
        State.SkipWithError("differs from the plain scan");
}
BENCHMARK(FoundFromBounds)->Unit(benchmark::kMicrosecond);

void PlainScan(benchmark::State& State)
{
    velorix::DescribeScheme(LongestLife, ConstructionYears);
    for (auto _ : State) benchmark::DoNotOptimize(velorix::PlainScan(0));
}
BENCHMARK(PlainScan)->Unit(benchmark::kMillisecond);

} // namespace
