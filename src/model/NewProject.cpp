// The rules that the column of defaults in the table of fields names.
#include "model/NewProject.h"

#include "model/WorkingSet.h"

namespace velorix {
namespace {

void Set(std::int16_t& Field, double Value)
{
    Field = static_cast<std::int16_t>(Value);
}

void Set(Single& Field, double Value)
{
    Field = Value;
}

template <typename T, int Count>
void Set(Array1<T, Count>& Fields, double Value)
{
    for (T& Each : Fields) Set(Each, Value);
}

// A rule is called with the field and the date of the day.

constexpr auto Kept = [](const auto&, const Date&) {};

constexpr auto Blank = [](auto& Text, const Date&) { SetText(Text, ""); };

constexpr auto Today = [](auto& Text, const Date& Now) { SetText(Text, ShortDate(Now)); };

constexpr auto AsChosen = [](std::int16_t& SystemType, const Date&) { SystemType = wSystemType; };

constexpr auto Is(double Value)
{
    return [=](auto& Field, const Date&) { Set(Field, Value); };
}

template <typename... Numbers>
constexpr auto Are(Numbers... Values)
{
    return [=](Array1<Single, sizeof...(Values)>& Fields, const Date&) {
        int Entry = 0;
        for (const double Each : {static_cast<double>(Values)...}) Fields[++Entry] = Each;
    };
}

// The later ones are kept.
constexpr auto FirstAre(int Count, double Value)
{
    return [=](auto& Fields, const Date&) {
        for (int Entry = 1; Entry <= Count; ++Entry) Set(Fields[Entry], Value);
    };
}

constexpr auto ByUnits(double Metric, double US)
{
    return [=](auto& Field, const Date&) { Set(Field, ProjectRecord.Units == 1 ? US : Metric); };
}

// The units of the record, but the currency of the working set.
constexpr auto ByUnitsAndCurrency(double MetricRand, double MetricDollar, double USRand, double USDollar)
{
    return [=](auto& Field, const Date& Now) {
        const auto Rule = PaysInDollars() ? ByUnits(MetricDollar, USDollar) : ByUnits(MetricRand, USRand);
        Rule(Field, Now);
    };
}

constexpr auto RowNumbers = [](auto& Fields, const Date&) {
    for (int Row = 1; Row <= Fields.LastIndex; ++Row) Set(Fields[Row], Row);
};

// Rows 1 and 2 are in use, at 0.
constexpr auto TwoNodes = [](auto& Fields, const Date&) {
    Fields.Fill(UnusedNode);
    Fields[1] = Fields[2] = 0.0;
};

} // namespace

void StartNewRecord(const Date& Now)
{
#define VELORIX_INT16(Name, Offset, Count, UsedBy, Allowed, ...) (__VA_ARGS__)(ProjectRecord.Name, Now);
#define VELORIX_OTHER(Name, Offset, Count, UsedBy, ...) (__VA_ARGS__)(ProjectRecord.Name, Now);
    VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_OTHER, VELORIX_OTHER)
#undef VELORIX_INT16
#undef VELORIX_OTHER
}

} // namespace velorix
