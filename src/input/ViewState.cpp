// Showing and hiding of the main window's screens.
#include "input/ViewState.h"

#include "input/Session.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "screens/RoughnessScreen.h"
#include "screens/Viewers.h"

namespace velorix {

void HideScreens()
{
    if (frmLCC.Visible) {
        frmLCC.Visible = false;
        ViewState = 1;
    }
    if (frmResults.Visible) {
        frmResults.Visible = false;
        ViewState = 2;
    }
}

void RestoreScreens()
{
    if (ProjectOpen != 1) return; // a deleted project stays away
    frmLCC.Visible = true;
    if (ViewState == 1)
        frmResults.Visible = false;
    else
        MDIProject.tmrCurrency.Enabled = true;
}

void CloseViewers()
{
    for (Screen* Viewer :
         std::initializer_list<Screen*>{&frmView, &frmPumpView, &frmIRRView, &frmViewRoughness})
        if (Viewer->IsLoaded()) Viewer->Unload();
    frmRoughness.Visible = false; // keeps what was typed into it
    MDIProject.mnuRoughness.Visible = false;
}

void LeaveProjectScreens()
{
    if (ProjectOpen != 1) return;
    frmLCC.Visible = false;
    CloseViewers();
    if (Analysed == 1) frmResults.Visible = false;
}

void TellWayOn()
{
    MDIProject.lblWayOn.Caption = ProjectOpen == 1
                                      ? "File, View, Input Data shows the project again"
                                      : "File, New Project starts a project; File, Open Project opens one";
}

void ShowInputScreen()
{
    frmResults.Visible = false;
    frmLCC.Visible = true;
}

} // namespace velorix
