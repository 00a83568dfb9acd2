// The order of an analysis.
#include "analysis/AnalyseProject.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/YearlySupply.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/CostTable.h"
#include "results/Headlines.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
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

void HandOverToResults()
{
    ShowHeadlines();
    ShowAnalysisProgress(75);
    ShowDutyCommand();
    ShowAnalysisProgress(80);
    FillCapitalCostTable();
    ShowAnalysisProgress(85);
    FillCombos();
    ShowAnalysisProgress(90);
    TakeProfileForPlot();
    ShowAnalysisProgress(95);
    ShowAnalysisProgress(100);
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

void RunAnalysis()
{
    AnalysisAborted = 0;
    NormaliseInputs();
    ReadLayingRates();
    LoadResultsHidden();
    ShowAnalysisProgress(55);

    HighPointAdjusted = 0;
    SolveFlows();
    if (AnalysisAborted == -1) return;

    SupplyDemand();
    ShowAnalysisProgress(60);
    SplitPumpingHours();
    ShowAnalysisProgress(65);
    ComputeIncome();
    ShowAnalysisProgress(70);
    ComputeCapitalCost();
    ComputeAnnualCosts();
    ComputePresentValues();
    ScanRateOfReturn();

    HandOverToResults();
    if (HighPointAdjusted == 1) TellOfHighPoint();
    Analysed = 1;
}

} // namespace

void RefreshResults()
{
    FillCapitalCostTable();
    FillCombos();
}

void AnalyseProject()
{
    Analysed = 0;
    ClearArithmeticFlags();
    try {
        RunAnalysis();
    } catch (const Failure&) {
        Warn("Could not determine the flow for each year.", "Velorix Error");
        return;
    }
    if (Analysed == 1 && AnalysisAborted == -1) {
        Analysed = 0;
        frmAnalyse.Unload();
        frmLCC.Visible = true;
    }
}

} // namespace velorix
