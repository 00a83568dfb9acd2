// The results by the names that the domain gives them.
#include "batch/AnalysisResults.h"

#include "cost/CostResults.h"
#include "input/Session.h"
#include "model/WorkingSet.h"

#include <algorithm>

namespace velorix {
namespace {

// The first entries of an array that starts at 1; a count beyond the array ends at its last entry.
template <typename Array>
std::vector<Single> FirstEntries(const Array& Values, int Count)
{
    const int Held = std::clamp(Count, 0, Array::Count);
    return {Values.begin(), Values.begin() + Held};
}

// Sorts the quantities by their shape.
class Collector {
public:
    explicit Collector(AnalysisResults& Target)
        : Results(Target)
    {
    }

    template <typename Shape>
    void operator()(const InnerInfo&, const Shape&)
    {
    }

    void operator()(const ResultInfo& Of, std::int16_t Value) { Results.Counts.emplace_back(Of.Name, Value); }
    void operator()(const ResultInfo& Of, const Single& Value)
    {
        Results.Scalars.emplace_back(Of.Name, Value);
    }
    void operator()(const ResultInfo& Of, const ByYear& Values)
    {
        Results.ByYear.push_back({Of.Name, FirstEntries(Values, wLife)});
    }
    void operator()(const ResultInfo& Of, const ByConstructionYear& Values)
    {
        Results.ByCalendarYear.push_back({Of.Name, FirstEntries(Values, ConstructionYears())});
    }
    void operator()(const ResultInfo& Of, const ByCostYear& Values)
    {
        Results.ByCalendarYear.push_back({Of.Name, FirstEntries(Values, ConstructionYears() + wLife)});
    }
    void operator()(const ResultInfo& Of, const ByRow& Values)
    {
        Results.ByRow.push_back({Of.Name, FirstEntries(Values, NodeCount)});
    }

    // Points from the table's first row up to NodeCount, for each year.
    template <int First>
    void operator()(const ResultInfo& Of, const YearTable<Single, First, MaxRows, MaxYears>& Values)
    {
        NamedTable Table{Of.Name, First, {}};
        for (int Year = 1; Year <= wLife; ++Year)
            Table.Years.push_back(FirstEntries(Values.Year(Year), NodeCount - First + 1));
        Results.ByYearAndRow.push_back(std::move(Table));
    }

private:
    AnalysisResults& Results;
};

} // namespace

AnalysisResults CollectResults(const std::vector<Message>& Shown)
{
    AnalysisResults Results;
    Results.Messages = Shown;
    ForEachResult(Collector(Results));

    // Two counts that the engine doesn't own, at the places where readers of the output know them.
    Results.Counts.insert(Results.Counts.begin(), {"Analysed", Analysed});
    Results.Counts.insert(Results.Counts.end() - 1, {"NodeCount", NodeCount});
    return Results;
}

} // namespace velorix
