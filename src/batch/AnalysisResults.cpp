// The results by the names that the domain gives them.
#include "batch/AnalysisResults.h"

#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/YearlySupply.h"
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

#define VELORIX_NAMED(Variable) #Variable, Variable
#define VELORIX_YEARS(Variable) #Variable, FirstEntries(Variable, wLife)
#define VELORIX_ROWS(Variable) #Variable, FirstEntries(Variable, NodeCount)

// Points from the table's first row up to NodeCount, for each year.
template <typename Table>
NamedTable TableOf(const std::string& Name, const Table& Values)
{
    constexpr int First = Table::Column::FirstIndex;
    NamedTable Result{Name, First, {}};
    for (int Year = 1; Year <= wLife; ++Year)
        Result.Years.push_back(FirstEntries(Values.Year(Year), NodeCount - First + 1));
    return Result;
}

} // namespace

AnalysisResults CollectResults(const std::vector<Message>& Shown)
{
    const int ConstructionYears = wSupplyStart - wBaseYear;
    AnalysisResults Results;
    Results.Messages = Shown;
    Results.Counts = {{VELORIX_NAMED(Analysed)},         {VELORIX_NAMED(AnalysisAborted)},
                      {VELORIX_NAMED(HydraulicsFailed)}, {VELORIX_NAMED(HighPointAdjusted)},
                      {VELORIX_NAMED(NodeCount)},        {VELORIX_NAMED(ElevationFactor)}};
    Results.Scalars = {{VELORIX_NAMED(UpstreamLevel)},
                       {VELORIX_NAMED(DownstreamLevel)},
                       {VELORIX_NAMED(LiningLoss)},
                       {VELORIX_NAMED(KsNewM)},
                       {VELORIX_NAMED(KsOldM)},
                       {VELORIX_NAMED(DemandFactor)},
                       {VELORIX_NAMED(WaterSalesFactor)},
                       {VELORIX_NAMED(PipeSupplyCost)},
                       {VELORIX_NAMED(LayingCost)},
                       {VELORIX_NAMED(EscalationBase)},
                       {VELORIX_NAMED(EscalationAmount)},
                       {VELORIX_NAMED(ConsultingFees)},
                       {VELORIX_NAMED(SupervisionCost)},
                       {VELORIX_NAMED(TotalCapitalCost)},
                       {VELORIX_NAMED(NpvCost)},
                       {VELORIX_NAMED(NpvIncome)},
                       {VELORIX_NAMED(Irr)}};
    Results.ByYear = {{VELORIX_YEARS(Flow)},
                      {VELORIX_YEARS(KsYear)},
                      {VELORIX_YEARS(DemandFlow)},
                      {VELORIX_YEARS(Shortage)},
                      {VELORIX_YEARS(PumpingHours)},
                      {VELORIX_YEARS(HoursOffpeakS)},
                      {VELORIX_YEARS(HoursStandardS)},
                      {VELORIX_YEARS(HoursPeakS)},
                      {VELORIX_YEARS(HoursOffpeakW)},
                      {VELORIX_YEARS(HoursStandardW)},
                      {VELORIX_YEARS(HoursPeakW)},
                      {VELORIX_YEARS(Efficiency)},
                      {VELORIX_YEARS(PumpHead)},
                      {VELORIX_YEARS(PumpFlow)},
                      {VELORIX_YEARS(PumpEfficiencyByYear)},
                      {VELORIX_YEARS(IncomeSeries)},
                      {VELORIX_YEARS(MaintPipeline)},
                      {VELORIX_YEARS(MaintMechanical)},
                      {VELORIX_YEARS(MaintElectrical)},
                      {VELORIX_YEARS(MaintTotal)},
                      {VELORIX_YEARS(OperationalCost)},
                      {VELORIX_YEARS(EnergyCost)}};
    Results.ByCalendarYear = {{"CapitalSeries", FirstEntries(CapitalSeries, ConstructionYears)},
                              {"CostSeries", FirstEntries(CostSeries, ConstructionYears + wLife)}};
    Results.ByRow = {{VELORIX_ROWS(InternalDiameter)}, {VELORIX_ROWS(SectionLength)},
                     {VELORIX_ROWS(ExcavationCost)},   {VELORIX_ROWS(BeddingCost)},
                     {VELORIX_ROWS(BlanketCost)},      {VELORIX_ROWS(BackfillCost)},
                     {VELORIX_ROWS(PipeLayingCost)}};
    Results.ByYearAndRow = {TableOf("Lambda", Lambda), TableOf("FrictionLoss", FrictionLoss),
                            TableOf("SecondaryHeadLoss", SecondaryHeadLoss), TableOf("Gradeline", Gradeline)};
    return Results;
}

#undef VELORIX_NAMED
#undef VELORIX_YEARS
#undef VELORIX_ROWS

} // namespace velorix
