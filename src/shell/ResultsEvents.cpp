// Plots, tables and frames of the results screen, the IRR graph, the dialog of a missing duty point.
#include "shell/ResultsEvents.h"

#include "base/Format.h"
#include "hydraulics/HydraulicResults.h"
#include "input/InputScreen.h"
#include "input/Session.h"
#include "input/ViewState.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/CostTable.h"
#include "results/CurvePlots.h"
#include "results/IrrPlot.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/ReadOuts.h"
#include "results/ResultTables.h"
#include "results/SupplyPlots.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/Results.h"
#include "screens/Viewers.h"
#include "shell/Help.h"
#include "shell/SurfaceEvents.h"

namespace velorix {
namespace {

// Which screen the IRR graph has hidden.
enum class Hidden { None, InputScreen, ResultsScreen };
Hidden HiddenByGraph = Hidden::None;

// The bar only chooses the year of the next plot.
void YearOfPlotChosen()
{
    PlotYear = static_cast<std::int16_t>(frmResults.hscYears.Value.Get());
    frmResults.lblYear.Caption = std::to_string(CalendarYear(PlotYear));
}

// A tick box of the plot keeps its flag, and the plot follows.
void ConnectTick(CheckBox& Box, std::int16_t& Hide)
{
    Box.Click = [&Box, &Hide] {
        Hide = Box.Value ? 0 : 1;
        const BusyPointer Drawing;
        DrawHydraulicPlot();
    };
}

// A table that is filled hides meanwhile, and would lose the focus.
void ConnectFrame(CommandButton& Show, CommandButton& Hide, Frame& Target, void (*Fill)(), Control* First)
{
    Show.Click = [&Target, Fill, First] {
        Target.Visible = true;
        if (Fill) Fill();
        if (First) System().SetFocus(*First);
    };
    Hide.Click = [&Target] { Target.Visible = false; };
}

void FillTableOfYear()
{
    frmResults.lblYear1.Caption = "Year: " + frmResults.lblYear.Caption.Get();
    FillHydraulicTable();
}

void FillTableOfYears()
{
    const bool OfDemand = frmResults.ssoDemandCapacity.Value;
    frmResults.fraViewTable.Caption = OfDemand ? "Demand and capacity" : "Income and expenditure";
    OfDemand ? FillDemandTable() : FillIncomeTable();
}

void YearOfDutyChosen()
{
    AnalysisYear = static_cast<std::int16_t>(frmResults.hscDuty.Value.Get());
    DrawDutyYear();
}

void ShowDutyPoints()
{
    FillDutyTable();
    AnalysisYear = 1;
    frmResults.hscDuty.Min = 1;
    frmResults.hscDuty.Max = wLife;
    frmResults.hscDuty.Value.Restore(1); // drawn below, moved or not
    DrawDutyYear();
}

void BackToInput()
{
    if (ProjectOpen != 1) return Warn("No project has been opened.", "Velorix Error");
    CloseViewers();
    ShowInputScreen();
    frmLCC.Enabled = true;
}

void ConnectHydraulicPage()
{
    frmResults.hscYears.Change = YearOfPlotChosen;
    ConnectRedraw(frmResults.sscView, DrawHydraulicPlot);
    ConnectRedraw(frmResults.sscChangeView, DrawHydraulicPlot);
    ConnectTick(frmResults.chkComponents, HideComponents);
    ConnectTick(frmResults.chkGradeline, HideGradeline);
    ConnectFrame(frmResults.sscComponents, frmResults.sscHide, frmResults.fraComponents, nullptr,
                 &frmResults.chkComponents);
    ConnectFrame(frmResults.sscViewHydraulicTable, frmResults.sscHideHydraulicTable, frmResults.fraTable,
                 FillTableOfYear, &frmResults.msgHydraulic);
    ConnectFrame(frmResults.sscDutypoint, frmResults.sscHideDuty, frmResults.fraDuty, ShowDutyPoints,
                 &frmResults.hscDuty);
    frmResults.hscDuty.Change = YearOfDutyChosen;
    ConnectSurface(frmResults.picHydraulic, "The graph was copied to the clipboard", ReadHydraulicPlot);
}

void ConnectSystemPage()
{
    frmResults.ssoDemandCapacity.Click = DrawDemandCapacity;
    frmResults.ssoIncomeExpenditure.Click = DrawIncomeExpenditure;
    ConnectFrame(frmResults.sscViewTable, frmResults.sscHideTable, frmResults.fraViewTable, FillTableOfYears,
                 &frmResults.msgSystem);
    ConnectSurface(frmResults.picSystem, "The graph was copied to the clipboard");
}

void ConnectRateBar(ScrollBar& Bar, Label& Reading)
{
    Bar.Change = [&Bar, &Reading] { Reading.Caption = PercentCaption(Bar.Value); };
}

void ShowIrrGraph()
{
    // The results stand in front when a dialog over this graph has brought the input screen back behind them.
    HiddenByGraph = frmResults.Visible ? Hidden::ResultsScreen
                    : frmLCC.Visible   ? Hidden::InputScreen
                                       : Hidden::None;
    OpenIrrGraph();
    for (const auto& [Bar, Reading] : {std::pair{&frmIRRView.hsbBegin, &frmIRRView.lblBeginIRR},
                                       std::pair{&frmIRRView.hsbEnd, &frmIRRView.lblEndIRR}})
        Reading->Caption = PercentCaption(Bar->Value);
    frmLCC.Visible = false;
    frmResults.Visible = false;
    frmIRRView.Visible = true;
    DrawIrrGraph();
}

void CloseIrrGraph()
{
    frmIRRView.Unload();
    if (HiddenByGraph == Hidden::InputScreen) frmLCC.Visible = true;
    if (HiddenByGraph == Hidden::ResultsScreen) frmResults.Visible = true;
    HiddenByGraph = Hidden::None;
}

void ConnectIrrView()
{
    ConnectRateBar(frmIRRView.hsbBegin, frmIRRView.lblBeginIRR);
    ConnectRateBar(frmIRRView.hsbEnd, frmIRRView.lblEndIRR);
    frmIRRView.sscView.Click = DrawIrrGraph;
    frmIRRView.sscOK.Click = CloseIrrGraph;
    frmIRRView.Close = CloseIrrGraph;
    HelpOn(frmIRRView.sscHelp, 5000);
    ConnectSurface(frmIRRView.picIRR, "The Internal Rate of Return graph was copied to the clipboard",
                   ReadIrrGraph);
}

void ConnectDutyDialog()
{
    frmDutyPoint.Load = [] { DrawDutyCurves(frmDutyPoint.picDuty, frmDutyPoint.lblGridColor.BackColor); };
    frmDutyPoint.sscOK.Click = [] { frmDutyPoint.Unload(); };
}

} // namespace

void ConnectResults()
{
    frmResults.sscInput.Click = BackToInput;
    ConnectHydraulicPage();
    ConnectSystemPage();
    frmResults.hsbAnnual.Change = ShowAnnualCost;
    frmResults.sscIRR.Click = ShowIrrGraph;
    ConnectIrrView();
    ConnectDutyDialog();
    for (Screen* Each : std::initializer_list<Screen*>{&frmResults, &frmIRRView}) ConnectPointer(*Each);
}

} // namespace velorix
