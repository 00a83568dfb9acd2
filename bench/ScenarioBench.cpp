// One scenario: a record in memory to its present values, rate of return, flows and shortages, over 30 years.
// Beside each case the same with the whole tables that graphs are drawn from.
#include "cost/CostResults.h"
#include "cost/Figures.h"
#include "model/SampleRecords.h"

#include <benchmark/benchmark.h>

namespace velorix {
namespace {

ProjectFields Over30Years(ProjectFields Record)
{
    Record.Life = 30;
    return Record;
}

ProjectFields GivenFlowRecord(int Rows)
{
    ProjectFields Record = PumpCurveRecord(Rows);
    Record.PumpDetails = 0;
    Record.PumpOperatingFlowrate = 120.0;
    Record.PumpOperatingFlowrateUnits = 2; // l/s
    return Record;
}

// What a scenario is asked for.
struct Answer {
    Single Cost = NpvCost;
    Single Income = NpvIncome;
    Single Return = Irr;
    ByYear Flows = Flow;
    ByYear Shortages = Shortage;

    bool operator==(const Answer&) const = default;
};

Answer Analysed(const ProjectFields& Record, Tables Wanted)
{
    ResetResults();
    OpenRecord(Record);
    ComputeFigures(Wanted);
    return {};
}

void Run(benchmark::State& State, const ProjectFields& Record, Tables Wanted)
{
    if (Analysed(Record, Tables::LeftOut) != Analysed(Record, Tables::Filled) || NpvIncome == 0.0 ||
        Irr == 0.0)
        return State.SkipWithError("the answers differ, or there is none");
    for (auto _ : State) {
        OpenRecord(Record);
        ComputeFigures(Wanted);
        benchmark::DoNotOptimize(Irr);
    }
}

void Register(const std::string& Name, const ProjectFields& Record)
{
    const auto Add = [&](const std::string& Of, Tables Wanted) {
        benchmark::RegisterBenchmark(Of.c_str(), Run, Over30Years(Record), Wanted)
            ->Unit(benchmark::kMicrosecond);
    };
    Add(Name, Tables::LeftOut);
    Add(Name + "Plain", Tables::Filled);
}

[[maybe_unused]] const bool Registered = [] {
    Register("GivenFlow10", GivenFlowRecord(10));
    Register("Gravity10", GravityRecord(10));
    Register("PumpCurve30", PumpCurveRecord(30));
    return true;
}();

} // namespace
} // namespace velorix
