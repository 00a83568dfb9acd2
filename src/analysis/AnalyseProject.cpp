// The order of an analysis.
#include "analysis/AnalyseProject.h"

#include "base/Arithmetic.h"
#include "base/NumberText.h"
#include "cost/Figures.h"
#include "hydraulics/Normalise.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/CostTable.h"
#include "results/Headlines.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/SupplyPlots.h"
#include "screens/Analyse.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

namespace velorix {
namespace {

void ShowAnalysisProgress(int Percent)
{
    frmAnalyse.proBar.Value = Percent;
    System().Repaint();
}

void LoadResultsHidden()
{
    frmResults.LoadHidden();
    frmResults.hscYears.Value = 1;
    frmResults.lblYear.Caption = std::to_string(wSupplyStart);
}

void ShowDutyCommand()
{
    frmResults.sscDutypoint.Visible = IsPumping() && wPumpDetails == 1;
    frmResults.fraDuty.Visible = false;
}

void HandOverToResults(Tables Wanted)
{
    ShowHeadlines();
    ShowAnalysisProgress(75);
    ShowDutyCommand();
    ShowAnalysisProgress(80);
    FillCapitalCostTable();
    ShowAnalysisProgress(85);
    FillCombos();
    ShowAnalysisProgress(90);
    if (Wanted == Tables::Filled) DrawHydraulicPlot();
    ShowAnalysisProgress(95);
    if (Wanted == Tables::Filled) DrawDemandCapacity();
    ShowAnalysisProgress(100);
}

// Comes within the year: the dialog shows the curves as they stand.
void TellOfMissingDutyPoint()
{
    Warn("The pump curve does not intersect the system curve for year " + std::to_string(AnalysisYear),
         "Error");
    System().ShowModal(frmDutyPoint);
}

void TellOfFailedFlows()
{
    Warn("Could not determine the hydraulic gradeline. Please check input data", "Velorix Error");
}

void TellOfHighPoint()
{
    System().Show({.Text =
                       "A local high point in the pipeline profile resulted in the adjustment of the flow.  "
                       "In other words there will be additional head available after this point.  "
                       "Reduced diameter sizes might be an option to consider.",
                   .Title = "Velorix: comment",
                   .Icon = MessageIcon::Information});
}

// The fee as it stands in its box, which may hold another text than the record.
Single SupervisionOnScreen()
{
    return ParseSingle(frmLCC.txtSupervision.Text.Get());
}

void FollowFigures(Milestone Reached)
{
    switch (Reached) {
    case Milestone::Inputs: LoadResultsHidden(); return ShowAnalysisProgress(55);
    case Milestone::Supply: return ShowAnalysisProgress(60);
    case Milestone::Hours: return ShowAnalysisProgress(65);
    case Milestone::Income: return ShowAnalysisProgress(70);
    }
}

void RunAnalysis(Tables Wanted)
{
    const bool Stand = ComputeFigures(
        Wanted, {.Flows = TellingOfFlows(), .Reached = FollowFigures, .Supervision = SupervisionOnScreen});
    if (!Stand) return;
    HandOverToResults(Wanted);
    if (HighPointAdjusted == 1) TellOfHighPoint();
    Analysed = 1;
}

} // namespace

FlowEvents TellingOfFlows()
{
    return {.DutyPointMissing = TellOfMissingDutyPoint, .Failed = TellOfFailedFlows};
}

bool SolveForProfile(Tables Wanted)
{
    AnalysisAborted = 0;
    NormaliseInputs();
    SolveFlows(Wanted, TellingOfFlows());
    return AnalysisAborted != -1;
}

void RefreshResults()
{
    FillCapitalCostTable();
    FillCombos();
}

void AnalyseProject(Tables Wanted)
{
    Analysed = 0;
    if (!Stands([&] { RunAnalysis(Wanted); }))
        return Warn("Could not determine the flow for each year.", "Velorix Error");
    if (Analysed == 1 && AnalysisAborted == -1) {
        Analysed = 0;
        frmAnalyse.Unload();
        frmLCC.Visible = true;
    }
}

} // namespace velorix
