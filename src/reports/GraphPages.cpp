// Head, facts, picture, legend and foot of each graph.
#include "reports/GraphPages.h"

#include "base/NumberText.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"
#include "platform/Printer.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "results/FlowCaptions.h"
#include "results/PlotState.h"
#include "screens/Pictures.h"
#include "screens/Results.h"
#include "screens/Surfaces.h"
#include "screens/Viewers.h"

#include <algorithm>
#include <initializer_list>

namespace velorix {
namespace {

constexpr double WideFoot = 165; // where the foot of a page on its side begins (mm)

// Columns of the facts.
constexpr int CaptionColumn = 8;
constexpr int ValueColumn = 28;
constexpr int YearColumn = 80;

// Beside a profile: a size in which distances end ahead of the picture's labels, the column where these
// begin, and that of a value below its caption.
constexpr double NarrowSize = 9;
constexpr int LabelColumn = 44;
constexpr int BelowColumn = 10;

void PrintGraphTitle(const char* Title)
{
    Printer.FontSize = 13;
    Printer.FontBold = true;
    Printer.Print({Tab{7}, Title});
    Printer.FontBold = false;
    Printer.FontSize = 11;
}

void BeginUprightPage(const char* Title)
{
    PrintPageHead();
    PrintGraphTitle(Title);
}

// The title follows close below the head's rule, clear of the picture.
void BeginWidePage(const char* Title)
{
    PrintGraphPageHead();
    Printer.FontSize = 1;
    Printer.Print();
    PrintGraphTitle(Title);
}

void EndWidePage()
{
    Printer.SetCurrentY(WideFoot);
    PrintGraphPageFoot();
}

void PrintFact(const char* Caption, const std::string& Value, int Column)
{
    Printer.Print({Tab{CaptionColumn}, Caption, Tab{Column}, Value});
}

// Values that would reach the column End are set smaller.
void PrintRange(const ComboBox& From, const ComboBox& To, int End)
{
    for (const auto& [Caption, List] : {std::pair{"Begin distance:", &From}, {"End distance:", &To}})
        Printer.PrintCells(
            {{CaptionColumn, Caption}, {ValueColumn, List->Text() + " " + LengthUnit()}, {End, ""}});
}

std::string YearFact(int Year)
{
    return "Year: " + std::to_string(CalendarYear(Year));
}

std::string RoughnessFact(int Year)
{
    constexpr double MillimetresPerMetre = 1000;
    constexpr double InchesPerMetre = 39.3700787;
    return wUnits == 0 ? FigureWithUnit(KsYear[Year] * MillimetresPerMetre, "mm")
                       : FigureWithUnit(KsYear[Year] * InchesPerMetre, "''");
}

void BeginLegend(double Y)
{
    Printer.SetCurrentY(Y);
    Printer.FontSize = 9;
    Printer.FontBold = true;
    Printer.Print({Tab{8}, "LEGEND:"});
    Printer.FontBold = false;
}

// A line of a legend, at the height of what it explains.
void PrintLegendLine(double Y, std::initializer_list<PrintItem> Items)
{
    Printer.SetCurrentY(Y);
    Printer.Print(Items);
}

constexpr double SymbolScale = 0.6; // of a symbol on paper, so that it ends ahead of its text

double SymbolHeight(const StoredPicture& Symbol)
{
    return SymbolScale * Symbol.Height / TwipsPerMillimetre;
}

void PaintSymbol(const StoredPicture& Symbol, double X, double Y)
{
    Printer.PaintPicture(Symbol, X, Y, SymbolScale * Symbol.Width / TwipsPerMillimetre, SymbolHeight(Symbol));
}

void PrintSymbolLegend()
{
    constexpr double Columns[] = {15, 65, 115};
    constexpr double Rows[] = {206, 213};
    BeginLegend(200);
    for (std::size_t Index = 0; Index < imgCPP.size(); ++Index)
        PaintSymbol(imgCPP.at(Index), Columns[Index % 3], Rows[Index / 3]);
    PrintLegendLine(Rows[0], {Tab{20}, "- Air valve", Tab{60}, "- Non-return", Tab{95}, "- Isolating"});
    PrintLegendLine(Rows[1], {Tab{20}, "- Reservoir", Tab{60}, "- Pumpstation"});
}

// An entry of the narrow legend beside a profile: a symbol or a stroke, and up to two lines of text.
struct NarrowEntry {
    const StoredPicture* Symbol;
    Color Stroke;
    std::initializer_list<const char*> Lines;
};

void PrintNarrowEntry(const NarrowEntry& Entry)
{
    constexpr double Left = 12;
    constexpr double StrokeLength = 5;
    constexpr double HalfLine = 1.8;
    constexpr double Between = 1.2;
    constexpr int TextColumn = 17;
    const double Top = Printer.CurrentY();
    double Bottom = Top;
    if (Entry.Symbol) {
        PaintSymbol(*Entry.Symbol, Left, Top);
        Bottom += SymbolHeight(*Entry.Symbol);
    } else
        Printer.FillBox(Left, Top + HalfLine, StrokeLength, 0, Entry.Stroke);
    for (const char* Each : Entry.Lines) Printer.Print({Tab{TextColumn}, Each});
    Printer.SetCurrentY(std::max(Bottom, Printer.CurrentY()) + Between);
}

void PrintProfileLegend()
{
    BeginLegend(102);
    Printer.SetCurrentY(Printer.CurrentY() + 1);
    for (const NarrowEntry& Each : {NarrowEntry{&imgCPP[0], {}, {"Air valve"}},
                                    {&imgCPP[1], {}, {"Non-return", "valve"}},
                                    {&imgCPP[2], {}, {"Isolating"}},
                                    {&imgCPP[3], {}, {"Reservoir"}},
                                    {&imgCPP[4], {}, {"Pumpstation"}},
                                    {nullptr, GroundInk, {"Pipeline", "profile"}}})
        PrintNarrowEntry(Each);
    if (HideGradeline == 0) PrintNarrowEntry({nullptr, GradelineInk, {"Hydraulic", "gradeline"}});
}

void PrintProfilePage(const ProfileViewer& Viewer, int YearDrawn)
{
    BeginWidePage("PROFILE PLOT:");
    Printer.FontSize = NarrowSize;
    PrintRange(Viewer.comBegin, Viewer.comEnd, LabelColumn);
    if (HideGradeline == 0) {
        PrintFact("Absolute roughness:", RoughnessFact(YearDrawn), BelowColumn);
        Printer.Print({Tab{CaptionColumn}, YearFact(YearDrawn)});
        PrintFact("Flow rate:", FactsOfYear(YearDrawn).Flow, BelowColumn);
    } else
        for (int Line = 1; Line <= 3; ++Line) Printer.Print();
    Printer.PaintPicture(Viewer.picGraph.Image(), 50, 55, 215, 98);
    PrintProfileLegend();
    EndWidePage();
}

// Boxes of a legend below the picture, side by side in the colours of the labels.
void PaintColors(double X, double Y, std::initializer_list<const Label*> Colors)
{
    constexpr double Width = 8;
    constexpr double Height = 3.2;
    const double Each = Width / static_cast<double>(Colors.size());
    for (const Label* Shown : Colors) {
        Printer.FillBox(X, Y, Each, Height, Shown->BackColor);
        X += Each;
    }
}

constexpr double FirstRow = 155; // of the legend below a system graph
constexpr double SecondRow = 160;

// Supplied and short demand stand on one bar, so they share a box.
void PrintDemandLegend()
{
    PaintColors(30, FirstRow, {&frmResults.lblDemandColor, &frmResults.lblShortageColor});
    PaintColors(125, FirstRow, {&frmResults.lblYieldColor});
    PrintLegendLine(FirstRow, {Tab{33}, frmResults.lblDemandText.Caption, frmResults.lblDemand.Caption,
                               Tab{108}, frmResults.lblYield.Caption});
}

void PrintIncomeLegend()
{
    PaintColors(30, FirstRow, {&frmResults.picIncomeColor});
    PaintColors(100, FirstRow, {&frmResults.picCapitalColor});
    PaintColors(170, FirstRow, {&frmResults.picMaintenanceColor});
    PaintColors(30, SecondRow, {&frmResults.picOperationalColor});
    if (IsPumping()) PaintColors(100, SecondRow, {&frmResults.picEnergyColor});
    PrintLegendLine(FirstRow,
                    {Tab{33}, frmResults.lblIncome.Caption, Tab{88}, frmResults.lblCapitalExpenditure.Caption,
                     Tab{143}, frmResults.lblMaintenance.Caption});
    PrintLegendLine(SecondRow,
                    {Tab{33}, frmResults.lblOperational.Caption, Tab{88}, frmResults.lblEnergy.Caption});
}

std::string RateFact(const ScrollBar& Bar)
{
    return GeneralText(Bar.Value / 100.0) + " %";
}

} // namespace

void PrintHydraulicGraph()
{
    BeginUprightPage("PROFILE PLOT:");
    PrintRange(frmResults.comBegin, frmResults.comEnd, YearColumn);
    const FlowFacts Facts = FactsOfYear(HydraulicYearDrawn);
    if (IsPumping()) PrintFact("Flow rate:", Facts.Flow, ValueColumn);
    Printer.Print({Tab{CaptionColumn}, IsPumping() ? "Pumping head:" : "Flow rate:", Tab{ValueColumn},
                   IsPumping() ? Facts.Head : Facts.Flow, Tab{YearColumn}, YearFact(HydraulicYearDrawn)});
    FitBodyAbove(115);
    Printer.PaintPicture(frmResults.picHydraulic.Image(), 16, 115, 170, 90);
    PrintSymbolLegend();
    Printer.SetCurrentY(LastFoot);
    PrintPageFoot();
}

void PrintPumpCurveGraph()
{
    constexpr double LegendRow = 208;
    BeginUprightPage("PUMP CURVE:");
    FitBodyAbove(100);
    Printer.PaintPicture(frmPumpView.picGraph.Image(), 16, 100, 170, 90);
    BeginLegend(200);
    Printer.PaintPicture(imgPumpCurve, 15, LegendRow);
    Printer.PaintPicture(imgEfficiencyCurve, 65, LegendRow);
    PrintLegendLine(LegendRow, {Tab{23}, "- Pump curve", Tab{60}, "- Efficiency curve"});
    Printer.SetCurrentY(BreakFoot);
    PrintPageFoot();
}

void PrintProfileGraph()
{
    PrintProfilePage(frmView, ProfileYearDrawn);
}

void PrintRoughnessProfileGraph()
{
    PrintProfilePage(frmViewRoughness, RoughnessYearDrawn);
}

void PrintIrrGraph()
{
    constexpr int RateColumn = 26;
    BeginWidePage("IRR GRAPH:");
    PrintFact("Begin IRR:", RateFact(frmIRRView.hsbBegin), RateColumn);
    PrintFact("End IRR:", RateFact(frmIRRView.hsbEnd), RateColumn);
    PrintFact("Calculated IRR:", FigureWithUnit(Irr, "%"), RateColumn);
    Printer.PaintPicture(frmIRRView.picIRR.Image(), 50, 55, 190, 100);
    EndWidePage();
}

void PrintSystemGraph()
{
    constexpr double Top = 57;
    constexpr double Height = FirstRow - Top - 1;
    const DisplayList& Picture = frmResults.picSystem.Image();
    const bool Demand = frmResults.ssoDemandCapacity.Value;
    BeginWidePage(Demand ? "System Analysis: Demand & Capacity" : "System Analysis: Income & Expenditure");
    Printer.PaintPicture(Picture, 10, Top, Height * Picture.Width / Picture.Height, Height);
    BeginLegend(FirstRow);
    Demand ? PrintDemandLegend() : PrintIncomeLegend();
    EndWidePage();
}

} // namespace velorix
