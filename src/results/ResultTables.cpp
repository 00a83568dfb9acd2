// Rows of the tables.
#include "results/ResultTables.h"

#include "base/Arithmetic.h"
#include "base/Format.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "input/InputScreen.h"
#include "model/Components.h"
#include "model/WorkingSet.h"
#include "results/FlowCaptions.h"
#include "results/PlotState.h"
#include "results/SupplyPlots.h"
#include "screens/Results.h"

#include <algorithm>

namespace velorix {
namespace {

// A table that is hidden while it is being filled.
class Filling {
public:
    Filling(Grid& Filled, int Rows, int Cols)
        : Table(Filled)
    {
        ClearArithmeticFlags();
        Table.Visible = false;
        Table.SetRows(
            std::max(Rows, Table.FixedRows)); // no year at all when supply ends before the base year
        Table.SetCols(Cols);
    }
    ~Filling() { Table.Visible = true; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

    void Row(int Index, const std::vector<std::string>& Texts)
    {
        for (int Col = 0; Col < Table.Cols(); ++Col)
            Table.SetText(Index, Col, Texts.at(static_cast<std::size_t>(Col)));
    }

private:
    Grid& Table;
};

// An amount of year k of a series; "0" where the year has none.
std::string AmountOfYear(bool HasAmount, Single Amount)
{
    return HasAmount ? FigureText(Amount, "###,###,###,###,###,##0") : "0";
}

std::vector<std::string> DemandRow(int y)
{
    return {std::to_string(CalendarYear(y)), FigureText(CapacityOfYear(y), "#0.000"),
            FigureText(DemandOfYear(y) - Shortage[y], "#0.000"), FigureText(Shortage[y], "#0.000"),
            FigureText(PumpingHours[y], "#0.00")};
}

// Calendar year k, of which the first is the base year.
std::vector<std::string> IncomeRow(int k)
{
    const int y = k - ConstructionYears(); // operating year
    const auto Annual = [y](const ByYear& Series) {
        const bool Has = y >= 1 && y <= ByYear::LastIndex;
        return AmountOfYear(Has, Has ? Series[y] : Single(0));
    };
    const bool HasCapital = k <= decltype(CapitalSeries)::LastIndex;
    return {std::to_string(wBaseYear + k - 1),
            Annual(IncomeSeries),
            AmountOfYear(true, CostAt(k)),
            AmountOfYear(HasCapital, HasCapital ? CapitalSeries[k] : Single(0)),
            Annual(MaintTotal),
            Annual(OperationalCost),
            Annual(EnergyCost)};
}

} // namespace

void FillHydraulicTable()
{
    const std::string Elevation = InBrackets(ElevationUnit());
    Filling Table(frmResults.msgHydraulic, NodeCount + 1, 6);
    Table.Row(0, {"Number", "Accumulated length " + InBrackets(LengthUnit()), "Elevation " + Elevation,
                  "Hydraulic gradeline " + Elevation, "Pressure " + Elevation, "Component"});
    for (int i = 1; i <= NodeCount; ++i) {
        const double Level = Gradeline(GradelinePoint(i), PlotYear) / ElevationFactor;
        Table.Row(i, {std::to_string(i), GeneralText(wAccLength[i]), GeneralText(wElevation[i]),
                      FigureText(Level, "###.000"), FigureText(Level - wElevation[i], "###.000"),
                      Trim(ComponentText(wNodeDesc[i]))});
    }
}

void FillDemandTable()
{
    const std::string Unit = DemandUnit();
    Filling Table(frmResults.msgSystem, wLife + 2, IsPumping() ? 5 : 4);
    Table.Row(0, {"Year", "Yield", "Demand supplied", "Demand shortage", "Pumping hours"});
    Table.Row(1, {"", Unit, Unit, Unit, ""});
    for (int y = 1; y <= wLife; ++y) Table.Row(y + 1, DemandRow(y));
}

void FillIncomeTable()
{
    const std::string Sign = CurrencySign();
    Filling Table(frmResults.msgSystem, YearsOfIncome() + 2, IsPumping() ? 7 : 6);
    Table.Row(0, {"Year", "Income", "Total expenditure", "Capital cost", "Maintenance cost",
                  "Operational cost", "Energy cost"});
    Table.Row(1, {"", Sign, Sign, Sign, Sign, Sign, Sign});
    for (int k = 1; k <= YearsOfIncome(); ++k) Table.Row(k + 1, IncomeRow(k));
}

} // namespace velorix
