// The page of what describes a project as a whole, and the list of its yearly demand.
#include "base/NumberText.h"
#include "base/Text.h"
#include "model/WorkingSet.h"
#include "reports/InputReports.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "results/FlowCaptions.h"
#include "screens/Lcc.h"

#include <sstream>

namespace velorix {
namespace {

constexpr PageBreaks DemandBreaks = {23, 25, 98};

// The demand as the options of the kind of system have it.
struct DemandInput {
    bool Varies;
    const Grid& List;
    const ComboBox& ListUnits;
    const TextBox& Fixed;
    const ComboBox& FixedUnits;
};

DemandInput DemandOfSystem()
{
    if (IsPumping())
        return {wVaryingDemand == 1, frmLCC.msgPumpDemand, frmLCC.comPumpVaryingDemandUnits,
                frmLCC.txtPFlowrate, frmLCC.comPFlowrateUnits};
    return {!frmLCC.optGSpecifiedFlowrate.Value, frmLCC.msgDemand, frmLCC.comVaryingDemandUnits,
            frmLCC.txtGFlowrate, frmLCC.comGFlowrateUnits};
}

std::string WithUnit(const TextBox& Box, const ComboBox& Units)
{
    return Box.Text.Get() + " " + Units.Text();
}

void BeginGeneralPage()
{
    BeginTitledPage("GENERAL PROJECT DATA: " + KindOfSystem());
    Printer.FontBold = false;
    Printer.FontSize = 12;
}

void PrintDemandHeading(const DemandInput& Demand)
{
    PrintBold({{7, Demand.List.Text(0, 0)},
               {25, Demand.List.Text(0, 1) + " " + InBrackets(Demand.ListUnits.Text())}});
}

// A page that is full goes over to the next one, even when no row is left for that.
void PrintDemandList(const DemandInput& Demand)
{
    PrintDemandHeading(Demand);
    for (int Row = 1; Row < Demand.List.Rows(); ++Row) {
        Printer.PrintCells({{9, Demand.List.Text(Row, 0)}, {30, Demand.List.Text(Row, 1)}});
        if (!DemandBreaks.IsBehind(Row)) continue;
        PrintPageFootAt(BreakFoot);
        BeginGeneralPage();
        PrintDemandHeading(Demand);
    }
}

void PrintDemand()
{
    const DemandInput Demand = DemandOfSystem();
    Printer.PrintCells({{7, "Preferred option:"}, {30, Demand.Varies ? "Varying demand" : "Fixed demand"}});
    if (Demand.Varies)
        PrintDemandList(Demand);
    else
        Printer.PrintCells({{7, "Demand: " + WithUnit(Demand.Fixed, Demand.FixedUnits)}});
}

void PrintOperatingFlow()
{
    Printer.PrintCells({{7, "Preferred option:"}, {30, "Specified operating Flow rate"}});
    Printer.PrintCells({{9, "Operating flow rate:"},
                        {30, Trim(frmLCC.txtPumpOperatingFlowrate.Text.Get()) + " " +
                                 Trim(frmLCC.comPumpOperatingFlowrateUnits.Text())}});
    Printer.PrintCells({{9, "Pump efficiency:"}, {30, Trim(frmLCC.txtPumpEfficiency.Text.Get()) + " %"}});
}

// Line by line as it was typed, without empty lines; one paragraph when the page has no room for so many.
void PrintPumpDescription()
{
    constexpr std::size_t MostLines = 12;
    std::vector<std::string> Lines;
    std::istringstream Typed(wPumpDescription);
    for (std::string Line; std::getline(Typed, Line);) Lines.push_back(Line);
    if (Lines.size() > MostLines) Lines = {wPumpDescription};
    for (const std::string& Each : Lines) Printer.PrintWrapped(Tab{7}, Each);
}

void PrintPump()
{
    constexpr int Columns[] = {9, 30, 51}; // head, flow rate, efficiency
    Printer.PrintCells({{7, "Preferred option:"}, {30, "Specified pump curve"}});
    Printer.PrintCells(RowAt(Columns, {"Head", "Flow rate", "Efficiency"}));
    Printer.PrintCells(RowAt(Columns, {frmLCC.comHeadUnits.Text(), frmLCC.comFlowUnits.Text(), "%"}));
    for (int Value = 1; Value <= wPumpCurve.LastIndex; Value += 3)
        Printer.PrintCells(RowAt(Columns, {GeneralText(wPumpCurve[Value]), GeneralText(wPumpCurve[Value + 1]),
                                           GeneralText(wPumpCurve[Value + 2])}));
    Printer.Print();
    Printer.PrintCells({{7, "Pump type: " + Trim(wPumptype)}});
    Printer.PrintCells({{7, "Configuration:"}});
    PrintPumpDescription();
    Printer.Print();
}

void PrintPumpingSystem()
{
    PrintBold({{7, "Reservoir levels"}});
    Printer.PrintCells(
        {{9, "Pumpstation reservoir water level:"}, {45, WithUnit(frmLCC.txtPPRWL, frmLCC.comTRWLUnits)}});
    Printer.PrintCells(
        {{9, "End reservoir water level:"}, {45, WithUnit(frmLCC.txtPERWL, frmLCC.comBRWLUnits)}});
    PrintBold({{7, "Pumping system"}});
    if (frmLCC.optPumpDetails.Value)
        PrintPump();
    else
        PrintOperatingFlow();
}

void PrintGravitySystem()
{
    PrintBold({{7, "Reservoir levels"}});
    Printer.PrintCells(
        {{9, "Top reservoir water level:"}, {40, WithUnit(frmLCC.txtTRWL, frmLCC.comTRWLUnits)}});
    Printer.PrintCells(
        {{9, "Bottom reservoir water level:"}, {40, WithUnit(frmLCC.txtBRWL, frmLCC.comBRWLUnits)}});
}

} // namespace

void PrintGeneralData()
{
    BeginGeneralPage();
    Printer.PrintCells({{7, "Design life:"}, {30, frmLCC.lblLife.Caption}});
    Printer.PrintCells({{7, "Starting year:"}, {30, frmLCC.lblBaseYear.Caption}});
    Printer.PrintCells({{7, "Supply start year:"}, {30, frmLCC.lblSupplyStart.Caption}});
    PrintDemand();
    if (IsPumping())
        PrintPumpingSystem();
    else
        PrintGravitySystem();
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
