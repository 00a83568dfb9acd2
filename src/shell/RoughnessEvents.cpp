// The way from the profile view to the roughness screen, on to its plot, and back.
#include "shell/RoughnessEvents.h"

#include "roughness/ScenarioScreen.h"
#include "screens/RoughnessScreen.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"
#include "shell/ViewerEvents.h"

namespace velorix {
namespace {

void ViewGraph()
{
    frmViewRoughness.LoadHidden();
    frmViewRoughness.Visible = true;
    frmRoughness.Visible = false;
}

void BackToProfile()
{
    TakeChanges();
    frmRoughness.Unload();
    ShowProfileAgain();
}

void MoveToScenario()
{
    ScenarioChanged();
    GridFilled(frmRoughness.msgRoughness);
}

} // namespace

void ShowRoughness()
{
    const bool OpensAnew = !frmRoughness.IsLoaded();
    const bool FromPlot = frmViewRoughness.IsLoaded();
    if (FromPlot) frmViewRoughness.Unload();
    const bool WasLeft = !OpensAnew && !FromPlot && !frmRoughness.Visible;
    if (WasLeft) EmptyResults(); // they may be those of another profile by now
    frmView.Visible = false;
    frmRoughness.LoadHidden();
    frmRoughness.Visible = true;
    // The first length is ready to be chosen; until then the cell under the list is empty.
    ComboBox& Lengths = frmRoughness.comAccLength;
    if (OpensAnew && !Lengths.List.Get().empty()) Lengths.ListIndex.Restore(0);
}

void ConnectRoughness()
{
    frmRoughness.Load = LoadRoughness;
    frmRoughness.Shown = [] { SettleGridEditor(frmRoughness.msgRoughness); };
    frmRoughness.hscScenario.Change = MoveToScenario;
    frmRoughness.sscCalculate.Click = CalculatePressed;
    frmRoughness.sscViewGraph.Click = ViewGraph;
    frmRoughness.sscPrint.Click = [] {}; // has no action
    frmRoughness.sscPrevious.Click = frmRoughness.Close = BackToProfile;
    HelpOn(frmRoughness.sscHelp, 3060);
}

} // namespace velorix
