// The desktop's own plots, each for one view of it.
#include "batch/Plots.h"

#include "analysis/AnalyseProject.h"
#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "hydraulics/HydraulicResults.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "results/CurvePlots.h"
#include "results/IrrPlot.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/SupplyPlots.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

#include <cmath>

namespace velorix {
namespace {

void RequireWithin(const std::string& What, double Given, double Least, double Most, const std::string& Unit)
{
    if (Given >= Least && Given <= Most) return; // a NaN is nowhere
    throw Failure(What + " " + GeneralText(Given) + " is outside " + GeneralText(Least) + " to " +
                  GeneralText(Most) + Unit);
}

// The node that stands nearest to the chainage, of two the lower.
int NearestNode(double Given)
{
    RequireWithin("the chainage", Given, Chainage[1], Chainage[NodeCount], " of the profile");
    int Nearest = 1;
    for (int Node = 2; Node <= NodeCount; ++Node)
        if (std::fabs(Chainage[Node] - Given) < std::fabs(Chainage[Nearest] - Given)) Nearest = Node;
    return Nearest;
}

void DrawBetweenNodes(ComboBox& Begin, ComboBox& End, void (*Draw)(), const PlotView& View)
{
    PlotYear = static_cast<std::int16_t>(YearOf(View));
    TakeProfileForPlot();
    FillDistances(Begin, End);
    if (View.Begin) Begin.ListIndex = NearestNode(*View.Begin) - 1;
    if (View.End) End.ListIndex = NearestNode(*View.End) - 1;
    Draw();
}

void DrawProfile(const PlotView& View)
{
    if (HydraulicsFailed == 1) throw Failure("the flows could not be solved");
    DrawBetweenNodes(frmView.comBegin, frmView.comEnd, DrawProfilePlot, View);
}

void DrawHydraulic(const PlotView& View)
{
    DrawBetweenNodes(frmResults.comBegin, frmResults.comEnd, DrawHydraulicPlot, View);
}

void DrawPump(const PlotView&)
{
    if (!TakePumpCurve()) return;
    frmPumpView.LoadHidden();
    DrawPumpCurve();
}

void DrawDuty(const PlotView& View)
{
    AnalysisYear = static_cast<std::int16_t>(YearOf(View));
    FillDutyTable(); // as whatever opens the plot does
    DrawDutyYear();
}

void DrawDemand(const PlotView&)
{
    DrawDemandCapacity();
}

void DrawIncome(const PlotView&)
{
    DrawIncomeExpenditure();
}

void SetRate(ScrollBar& Bar, double Percent)
{
    constexpr int StepsPerPercent = 100;
    RequireWithin("the rate", Percent, Bar.Min / StepsPerPercent, Bar.Max / StepsPerPercent, " %");
    Bar.Value = RoundToInt32(Percent * StepsPerPercent);
}

void DrawIrr(const PlotView& View)
{
    frmIRRView.LoadHidden();
    SetRate(frmIRRView.hsbBegin, View.Begin.value_or(0));
    SetRate(frmIRRView.hsbEnd, View.End.value_or(200));
    DrawIrrGraph();
}

bool Always()
{
    return true;
}

bool HasPumpCurve()
{
    return IsPumping() && wPumpDetails == 1;
}

// clang-format off
const Plot Plots[] = {
    {"profile", "Pipeline profile", frmView.picGraph,
     PlotBasis::Flows, true, PlotRange::Chainage, Always, DrawProfile},
    {"hydraulic", "Hydraulic gradeline", frmResults.picHydraulic,
     PlotBasis::Results, true, PlotRange::Chainage, Always, DrawHydraulic},
    {"pump-curve", "Pump curve", frmPumpView.picGraph,
     PlotBasis::Inputs, false, PlotRange::None, HasPumpCurve, DrawPump},
    {"duty", "Pump and system curve", frmResults.picDuty,
     PlotBasis::ResultsWithTables, true, PlotRange::None, HasPumpCurve, DrawDuty},
    {"demand", "Demand and capacity", frmResults.picSystem,
     PlotBasis::Results, false, PlotRange::None, Always, DrawDemand},
    {"income", "Income and expenditure", frmResults.picSystem,
     PlotBasis::Results, false, PlotRange::None, Always, DrawIncome},
    {"irr", "Internal rate of return", frmIRRView.picIRR,
     PlotBasis::ResultsWithTables, false, PlotRange::Rate, Always, DrawIrr},
};
// clang-format on

} // namespace

const char* const NothingToDraw = "the figures leave nothing to draw";

std::span<const Plot> AllPlots()
{
    return Plots;
}

int YearOf(const PlotView& View)
{
    const int Year = View.Year.value_or(1);
    RequireWithin("the year", Year, 1, wLife, " of the design life");
    return Year;
}

bool WorkOut(PlotBasis Basis)
{
    if (Basis == PlotBasis::Inputs) return true;
    if (Basis >= PlotBasis::Results) {
        AnalyseProject(Basis == PlotBasis::ResultsWithTables ? Tables::Filled : Tables::LeftOut);
        if (Analysed == 1) RefreshResults(); // as the screen of the results opens
        return Analysed == 1;
    }
    ClearArithmeticFlags();
    try {
        return SolveForProfile(Tables::LeftOut);
    } catch (const Failure& Problem) {
        Warn(Problem.what());
        return false;
    }
}

const DisplayList& DrawPlot(const Plot& Wanted, const PlotView& View, const ScriptedPlatform& Windows)
{
    if (!Wanted.Applies()) throw Failure("the system has no pump curve");
    const std::size_t Told = Windows.Messages.size();
    Wanted.Surface.Clear(); // of what the analysis, or another plot, has drawn there
    Wanted.Draw(View);
    if (Windows.Messages.size() > Told) throw Failure(Windows.Messages.back().Text);
    if (Wanted.Surface.Image().Items.empty()) throw Failure(NothingToDraw);
    return Wanted.Surface.Image();
}

} // namespace velorix
