// Opening, redrawing and closing of the viewers.
#include "shell/ViewerEvents.h"

#include "analysis/AnalyseProject.h"
#include "input/FileCommands.h"
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

namespace velorix {
namespace {

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
        Viewer.lblYear.Caption = std::to_string(CalendarYear(PlotYear));
    };
    HelpOn(Viewer.sscHelp, 5000);
    ConnectSurface(Viewer.picGraph, "The pipeline profile was copied to the clipboard", ReadOut);
    ConnectPointer(Viewer);
}

void ShowPlotStateOn(ProfileViewer& Viewer)
{
    ShowPlotState(Viewer.hscYears, Viewer.lblYear, Viewer.chkHydraulic);
}

// The viewer as it opens: the whole profile, the first year.
void LoadProfileView()
{
    frmView.LoadHidden();
    TakeProfileForPlot();
    FillDistances(frmView.comBegin, frmView.comEnd);
    HideGradeline = 0;
    ShowPlotStateOn(frmView);
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
    ShowPlotStateOn(frmViewRoughness);
    DrawRoughnessProfilePlot();
}

void CloseRoughnessView()
{
    frmViewRoughness.Unload();
    frmRoughness.Visible = true;
}

void ClosePumpView()
{
    frmPumpView.Unload();
    ShowInputScreen();
}

} // namespace

void ViewProfile()
{
    PlotYear = 1;
    if (!SaveToViewProfile() || !SolveForProfile(Tables::Filled)) return;

    LoadProfileView();
    DrawProfilePlot();
    MDIProject.mnuRoughness.Visible = true;
    frmLCC.Visible = false;
    frmView.Visible = true;
}

void ShowProfileAgain()
{
    const bool TickFollows = frmView.chkHydraulic.Value != (HideGradeline == 0);
    ShowPlotStateOn(frmView);
    frmView.Visible = true;
    if (TickFollows) DrawProfilePlot(); // as on any change of the tick; another year waits for its button
}

void ViewPumpCurve()
{
    if (!TakePumpCurve()) return;
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
