// The way from the profile view to the roughness screen, on to its plot, and back.
#include "shell/RoughnessEvents.h"

#include "roughness/ScenarioScreen.h"
#include "screens/RoughnessScreen.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"

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
    frmRoughness.Unload();
    frmView.Visible = true;
}

void MoveToScenario()
{
    ScenarioChanged();
    GridFilled(frmRoughness.msgRoughness);
}

} // namespace

void ShowRoughness()
{
    if (frmViewRoughness.IsLoaded()) frmViewRoughness.Unload();
    frmRoughness.LoadHidden();
    frmRoughness.Visible = true;
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
