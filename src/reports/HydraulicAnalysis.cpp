// Levels and pressures along the pipeline in one year.
#include "base/NumberText.h"
#include "hydraulics/HydraulicResults.h"
#include "model/Components.h"
#include "model/WorkingSet.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "reports/ResultReports.h"
#include "results/FlowCaptions.h"
#include "results/PlotState.h"

namespace velorix {

std::int16_t PrintYear = 1;

namespace {

constexpr int Columns[] = {5, 11, 24, 36, 49, 61};
constexpr PageBreaks Breaks = {27, 27, 459};

Cells TopLine()
{
    const FlowFacts Facts = FactsOfYear(PrintYear);
    return {{9, "Flow rate: " + Facts.Flow},
            {60, IsPumping() ? "Pumping head: " + Facts.Head : ""},
            {110, "Year: " + std::to_string(CalendarYear(PrintYear))}};
}

void BeginHydraulicPage(const Cells& Top, Color TopInk)
{
    Printer.FontBold = false;
    PrintPageHead();
    Printer.FontSize = 13;
    PrintTitle(40, "HYDRAULIC ANALYSIS");
    Printer.FontSize = 6;
    Printer.Print();
    Printer.FontSize = 10;
    Printer.ForeColor = TopInk;
    Printer.PrintCells(Top);
    Printer.ForeColor = Black;

    UseType("Courier New", 11);
    const std::string Elevation = InBrackets(ElevationUnit());
    const Cells Heading[] = {
        RowAt(Columns, {"Node", "Accumulated", "Elevation", "Hydraulic", "Pressure", "Description"}),
        {{5, "nr"}, {11, "length"}, {36, "gradeline"}, {49, "head"}},
        {{11, InBrackets(LengthUnit())}, {24, Elevation}, {36, Elevation}, {49, Elevation}}};
    PrintTableHeading(Heading);
    Printer.FontBold = false;
}

// With the places that a sign before it and a separator behind it take.
std::string PlainNumber(Single Value)
{
    const std::string Text = GeneralText(Value);
    return (Text.starts_with('-') ? "" : " ") + Text + " ";
}

Cells NodeRow(int Node)
{
    const double Level = Gradeline(GradelinePoint(Node), PrintYear) / ElevationFactor;
    return RowAt(Columns, {std::to_string(Node), PlainNumber(wAccLength[Node]), PlainNumber(wElevation[Node]),
                           FigureText(Level, "##0.000"), FigureText(Level - wElevation[Node], "##0.000"),
                           ComponentText(wNodeDesc[Node])});
}

} // namespace

void PrintHydraulicAnalysis()
{
    const Cells Top = TopLine();
    std::vector<Cells> Rows;
    for (int Node = 1; Node <= NodeCount; ++Node) Rows.push_back(NodeRow(Node));

    BeginHydraulicPage(Top, PureRed);
    for (int Node = 1; Node <= NodeCount; ++Node) {
        Printer.PrintCells(Rows.at(static_cast<std::size_t>(Node - 1)));
        if (!Breaks.IsBehind(Node)) continue;
        PrintPageFootAt(BreakFoot);
        BeginHydraulicPage(Top, Black);
    }
    PrintPageFootAt(LastFoot);
}

void ResetPrintYear()
{
    PrintYear = 1;
}

} // namespace velorix
