// Opening, redrawing and closing of the viewers.
#include "shell/ViewerEvents.h"

#include "analysis/AnalyseProject.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "hydraulics/Flows.h"
#include "hydraulics/Normalise.h"
#include "input/FileCommands.h"
#include "input/InputFields.h"
#include "input/ViewState.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/CurvePlots.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/ReadOuts.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "screens/RoughnessScreen.h"
#include "screens/Viewers.h"
#include "shell/Help.h"
#include "shell/SurfaceEvents.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int PumpPoints = 6;

void ConnectProfileViewer(ProfileViewer& Viewer, void (*Draw)(), void (*ReadOut)(double, double))
{
    ConnectRedraw(Viewer.sscView, Draw);
    ConnectRedraw(Viewer.sscChangeView, Draw);
    Viewer.chkHydraulic.Click = [&Viewer, Draw] {
        HideGradeline = Viewer.chkHydraulic.Value ? 0 : 1;
        Draw();
    };
    Viewer.hscYears.Change = [&Viewer] {
        PlotYear = static_cast<std::int16_t>(Viewer.hscYears.Value.Get());
        Viewer.lblYear.Caption = std::to_string(wSupplyStart + PlotYear - 1);
    };
    HelpOn(Viewer.sscHelp, 5000);
    ConnectSurface(Viewer.picGraph, "The pipeline profile was copied to the clipboard", ReadOut);
    ConnectPointer(Viewer);
}

// The viewer as it opens: the whole profile, the first year.
void LoadProfileView()
{
    frmView.LoadHidden();
    TakeProfileForPlot();
    FillDistances(frmView.comBegin, frmView.comEnd);
    frmView.hscYears.Max = wLife;
    frmView.lblYear.Caption = std::to_string(wSupplyStart);
    HideGradeline = 0;
    frmResults.chkGradeline.Value.Restore(true);
}

void CloseProfileView()
{
    MDIProject.mnuRoughness.Visible = false;
    frmView.Unload();
    ShowInputScreen();
}

// The whole profile, in the year and with the gradeline that the views show by now.
void LoadRoughnessView()
{
    TakeProfileForPlot();
    FillDistances(frmViewRoughness.comBegin, frmViewRoughness.comEnd);
    frmViewRoughness.hscYears.Max = wLife;
    frmViewRoughness.hscYears.Value.Restore(PlotYear);
    frmViewRoughness.lblYear.Caption = std::to_string(wSupplyStart + PlotYear - 1);
    frmViewRoughness.chkHydraulic.Value.Restore(HideGradeline == 0);
    DrawRoughnessProfilePlot();
}

void CloseRoughnessView()
{
    frmViewRoughness.Unload();
    frmRoughness.LoadHidden();
    frmRoughness.Visible = true;
}

void ClosePumpView()
{
    frmPumpView.Unload();
    ShowInputScreen();
}

bool AnyBoxIsEmpty()
{
    const auto IsEmpty = [](const TextBox& Box) { return Box.Text.Get().empty(); };
    return std::any_of(frmLCC.txtH.begin(), frmLCC.txtH.end(), IsEmpty) ||
           std::any_of(frmLCC.txtQ.begin(), frmLCC.txtQ.end(), IsEmpty) ||
           std::any_of(frmLCC.txtEfficiency.begin(), frmLCC.txtEfficiency.end(), IsEmpty);
}

} // namespace

void ViewProfile()
{
    PlotYear = 1;
    if (!SaveToViewProfile()) return;
    AnalysisAborted = 0;
    NormaliseInputs();
    SolveFlows(Tables::Filled, TellingOfFlows());
    if (AnalysisAborted == -1) return;

    LoadProfileView();
    DrawProfilePlot();
    MDIProject.mnuRoughness.Visible = true;
    frmLCC.Visible = false;
    frmView.Visible = true;
}

void ViewPumpCurve()
{
    if (AnyBoxIsEmpty())
        return Warn("The pump curve data must be completed before it can be viewed.", "Velorix : ERROR");

    Array1<Single, 3 * PumpPoints> Curve;
    for (int Point = 0; Point < PumpPoints; ++Point) {
        Curve[3 * Point + 1] = LeadingNumber(frmLCC.txtH[Point].Text.Get());
        Curve[3 * Point + 2] = LeadingNumber(frmLCC.txtQ[Point].Text.Get());
        Curve[3 * Point + 3] = LeadingNumber(frmLCC.txtEfficiency[Point].Text.Get());
    }
    if (std::all_of(Curve.begin(), Curve.end(), [](Single Each) { return Each == 0; }))
        return Warn("All the pump data cannot be zero !", "Velorix : ERROR !");

    wPumpCurve = Curve;
    TakeUnit(frmLCC.comHeadUnits, wHeadUnits);
    TakeUnit(frmLCC.comFlowUnits, wFlowUnits);
    frmPumpView.LoadHidden();
    DrawPumpCurve();
    if (!frmPumpView.IsLoaded()) return; // it could not be drawn
    frmLCC.Visible = false;
    frmPumpView.Visible = true;
}

void ConnectViewers()
{
    frmLCC.sscViewProfile.Click = ViewProfile;
    frmLCC.sscViewCurve.Click = ViewPumpCurve;
    ConnectProfileViewer(frmView, DrawProfilePlot, ReadProfilePlot);
    ConnectProfileViewer(frmViewRoughness, DrawRoughnessProfilePlot, ReadRoughnessProfilePlot);
    frmView.sscOK.Click = frmView.Close = CloseProfileView;
    frmViewRoughness.Load = LoadRoughnessView;
    frmViewRoughness.sscOK.Click = frmViewRoughness.Close = CloseRoughnessView;
    frmPumpView.sscOK.Click = frmPumpView.Close = ClosePumpView;
    HelpOn(frmPumpView.sscHelp, 5000);
    ConnectSurface(frmPumpView.picGraph, "The pump curve was copied to the clipboard", ReadPumpCurve);
    ConnectPointer(frmPumpView);
}

} // namespace velorix
