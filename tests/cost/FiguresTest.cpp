// Figures alone against all tables, over whole projects.
#include "cost/Figures.h"

#include "base/Failure.h"
#include "cost/CostTest.h"
#include "model/SampleRecords.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <random>
#include <type_traits>

namespace velorix {
namespace {

// A project of every kind, its numbers pulled about. Every fourth has a number or two that no real one has.
ProjectFields AnyRecord(unsigned Seed)
{
    std::mt19937 Random(Seed);
    const auto Part = [&] { return std::uniform_real_distribution<double>(0, 1)(Random); };
    const auto Up = [&](int Most) { return std::uniform_int_distribution<int>(1, Most)(Random); };
    const int Rows = Seed % 50 == 0 ? 120 : 1 + Up(12);
    ProjectFields Record = Seed % 3 == 0 ? GravityRecord(Rows) : PumpCurveRecord(Rows);
    Record.PumpDetails = Seed % 3 == 1 ? 1 : 0;
    Record.PumpOperatingFlowrate = 0.3 * Part();
    Record.PumpOperatingFlowrateUnits = 1; // m3/s
    Record.Life = static_cast<std::int16_t>(Seed % 100 == 0 ? 100 : 1 + Up(3));
    Record.SupplyStart = static_cast<std::int16_t>(Record.BaseYear + Up(5) - 1);
    Record.VaryingDemand = Seed % 2;
    for (int Year = 1; Year <= Record.Life; ++Year) Record.Demand[Year] = 200 * Part();
    for (Single* Each : {&Record.TRWL, &Record.BRWL, &Record.KsOld, &Record.KsOldYears, &Record.WaterSales,
                         &Record.Flowrate, &Record.EnergyEscalation, &Record.DiscountRate})
        *Each *= 0.5 + Part();
    for (int Row = 1; Row <= Rows; ++Row) {
        Record.Elevation[Row] *= 0.9 + 0.2 * Part();
        Record.Diameter[Row] *= 0.7 + Part();
    }
    const double Special[] = {
        NAN, HUGE_VAL, -HUGE_VAL, 0, 3e38, -50, std::numeric_limits<float>::signaling_NaN()};
    Single* const Places[] = {
        &Record.TRWL,       &Record.BRWL,        &Record.Diameter[1],    &Record.Elevation[2],
        &Record.KsNew,      &Record.KsOldYears,  &Record.PumpCurve[7],   &Record.PumpCurve[8],
        &Record.WaterSales, &Record.PipeCost[1], &Record.PumpCurve[17],  &Record.DiscountRate,
        &Record.Escalation, &Record.Supervision, &Record.PumpEfficiency, &Record.AccLength[2]};
    for (int i = Seed % 4 == 0 ? Up(2) : 0; i > 0; --i)
        *Places[Up(static_cast<int>(std::size(Places))) - 1] =
            Special[Up(static_cast<int>(std::size(Special))) - 1];
    return Record;
}

// Calls Visit(variable) for all that is stored but for the tables.
template <typename Visitor>
void ForEachFigure(Visitor Visit)
{
    ForEachResult([&](const ResultInfo&, auto& Value) {
        using Shape = std::decay_t<decltype(Value)>;
        constexpr bool Table = std::is_same_v<Shape, ByCurvePoint> || std::is_same_v<Shape, SystemCurves> ||
                               std::is_same_v<Shape, ByRate> || std::is_same_v<Shape, ByRateInFull>;
        if constexpr (!Table) Visit(Value);
    });
}

// How the calculation ends, and the bytes of all figures.
std::string FiguresOf(const ProjectFields& Record, Tables Wanted)
{
    ForEachFigure([](auto& Value) { SetToZero(Value); });
    OpenRecord(Record);
    std::string Bytes;
    try {
        Bytes = ComputeFigures(Wanted) ? "stand" : "aborted";
    } catch (const Failure&) {
        Bytes = "failed";
    }
    ForEachFigure([&](auto& Value) { Bytes.append(reinterpret_cast<const char*>(&Value), sizeof Value); });
    return Bytes;
}

TEST(FiguresTest, WithoutTheTablesTheFiguresAreTheSame)
{
    std::map<char, int> Ends;
    for (unsigned Seed = 0; Seed < 1000; ++Seed) {
        const ProjectFields Record = AnyRecord(Seed);
        const std::string Alone = FiguresOf(Record, Tables::LeftOut);
        ASSERT_TRUE(Alone == FiguresOf(Record, Tables::Filled)) << Seed;
        ++Ends[Alone[0]];
    }
    for (const char End : {'s', 'a', 'f'}) EXPECT_GT(Ends[End], 20) << End;
}

} // namespace
} // namespace velorix
