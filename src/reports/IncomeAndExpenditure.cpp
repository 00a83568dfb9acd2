// The money of each year from the base year on, those before supply included.
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "reports/ResultReports.h"
#include "results/FlowCaptions.h"
#include "results/SupplyPlots.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int Columns[] = {5, 12, 28, 44, 60, 76, 92}; // the last of a pumping system
constexpr PageBreaks Breaks = {32, 32, 96};
constexpr const char* Pattern = "###,###,###,###,###,##0";

// The year after the base year is the first.
Cells YearRow(int k)
{
    const int Year = k - ConstructionYears(); // of supply
    const auto Annual = [Year](const ByYear& Series) {
        return Year < 1 ? "0" : FigureText(Series[Year], Pattern);
    };
    std::vector<std::string> Texts = {
        std::to_string(wBaseYear + k),         Annual(IncomeSeries), FigureText(CostSeries[k], Pattern),
        FigureText(CapitalSeries[k], Pattern), Annual(MaintTotal),   Annual(OperationalCost)};
    if (IsPumping()) Texts.push_back(Annual(EnergyCost));
    return RowAt(Columns, Texts);
}

// Rows stand in the bold type of the page head here.
void BeginIncomePage(double Size, const std::vector<Cells>& Rows)
{
    PrintPageHead();
    Printer.FontSize = 13;
    PrintTitle(27, "SYSTEM ANALYSIS (INCOME & EXPENDITURE)");
    Printer.FontSize = 6;
    Printer.Print();
    Cells Heading[] = {RowAt(Columns, {"Year", "Income", "Total", "Capital", "Maintenance", "Operational"}),
                       {{28, "expenditure"}, {44, "cost"}, {60, "cost"}, {76, "cost"}}};
    if (IsPumping()) {
        Heading[0].push_back({92, "Energy"});
        Heading[1].push_back({92, "cost"});
    }
    UseType("Courier New", Size);
    Printer.FontSize = std::min(Printer.SizeThatFits(Size, Heading), Printer.SizeThatFits(Size, Rows));
    PrintTableHeading(Heading);
}

} // namespace

void PrintIncomeAndExpenditure()
{
    constexpr double FirstSize = 8;
    constexpr double NextSize = 11; // of the pages that follow, as far as their last column leaves room
    const int Years = YearsOfIncome();
    std::vector<Cells> Rows;
    for (int k = 1; k <= Years; ++k) Rows.push_back(YearRow(k));

    BeginIncomePage(FirstSize, Rows);
    for (int k = 1; k <= Years; ++k) {
        Printer.PrintCells(Rows.at(static_cast<std::size_t>(k - 1)));
        if (!Breaks.IsBehind(k)) continue;
        Printer.PrintCells({{15, "All units are: " + CurrencySign()}});
        PrintPageFootAt(BreakFoot);
        BeginIncomePage(NextSize, Rows);
    }
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
