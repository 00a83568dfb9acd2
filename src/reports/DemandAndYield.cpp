// What is asked of the pipeline in each design year, and what it gives.
#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "reports/ResultReports.h"
#include "results/FlowCaptions.h"
#include "results/SupplyPlots.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int Columns[] = {5, 15, 30, 45, 60, 75}; // the last of a pumping system
constexpr PageBreaks Breaks = {27, 27, 81};

Cells YearRow(int Year)
{
    const Single Demand = DemandOfYear(Year);
    std::vector<std::string> Texts = {std::to_string(CalendarYear(Year)),
                                      FigureText(CapacityOfYear(Year), "#0.000"),
                                      FigureText(Demand - Shortage[Year], "#0.000"),
                                      FigureText(Shortage[Year], "#0.000"), FigureText(Demand, "#0.000")};
    if (IsPumping()) Texts.push_back(FigureText(PumpingHours[Year], "#0.00"));
    return RowAt(Columns, Texts);
}

// Rows stand in the bold type of the page head here. The pumping hours have a heading on the first page only.
void BeginDemandPage(bool First)
{
    PrintPageHead();
    Printer.FontSize = 13;
    PrintTitle(30, "SYSTEM ANALYSIS (DEMAND & YIELD)");
    Printer.FontSize = 6;
    Printer.Print();
    UseType("Courier New", 11);
    Cells Heading[] = {RowAt(Columns, {"Year", "Yield", "Demand", "Demand", "Total"}),
                       {{30, "supplied"}, {45, "shortage"}, {60, "demand"}}};
    if (First && IsPumping()) {
        Heading[0].push_back({75, "Pumping"});
        Heading[1].push_back({75, "hours"});
    }
    PrintTableHeading(Heading);
}

void PrintNote()
{
    Printer.PrintCells({{15, "All units are: " + DemandUnit()}});
}

} // namespace

void PrintDemandAndYield()
{
    const int Years = std::min<int>(wLife, MaxYears);
    std::vector<Cells> Rows;
    for (int Year = 1; Year <= Years; ++Year) Rows.push_back(YearRow(Year));

    BeginDemandPage(true);
    for (int Year = 1; Year <= Years; ++Year) {
        Printer.PrintCells(Rows.at(static_cast<std::size_t>(Year - 1)));
        if (Year == Years) PrintNote();
        if (!Breaks.IsBehind(Year)) continue;
        PrintNote();
        PrintPageFootAt(BreakFoot);
        BeginDemandPage(false);
    }
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
