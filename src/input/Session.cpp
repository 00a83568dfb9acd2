// Session state, new project defaults and the load step.
#include "input/Session.h"

#include "base/Text.h"
#include "input/InputScreen.h"
#include "input/Progress.h"
#include "input/ViewState.h"
#include "model/NewProject.h"
#include "model/ProjectFile.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"

namespace velorix {

std::int16_t ProjectOpen = 0;
std::int16_t NewProject = 0;
std::int16_t Saved = 0;
std::int16_t Analysed = 0;
std::int16_t SaveAs = 0;
std::int16_t Committing = 0;
std::int16_t ViewState = 1;
std::string FileName;
bool RedrawProfileView = false;
TextBox* PointedOut = nullptr;
Handler ProjectLoaded;

bool HasFile()
{
    return frmLCC.lblFileName.Caption.Get() != NewProjectCaption;
}

void ShowTitle()
{
    MDIProject.tmrWelcome.Enabled = false; // it would write over the title
    const bool Named = HasFile() && !wProject.empty();
    MDIProject.Caption = Named ? ProgramTitle + " (" + wProject + ")" : ProgramTitle;
}

void NewProjectDefaults()
{
    NewProject = 1;
    SaveAs = 0;
    frmLCC.lblFileName.Caption = NewProjectCaption;
    StartNewRecord(System().Today());
    LoadProject();
}

void ReadProjectRecord()
{
    ProjectRecord = ReadProjectFile(FileName);
}

void LoadProject()
{
    PointedOut = nullptr;
    ShowProgress(0);
    if (NewProject == 0) {
        try {
            ReadProjectRecord();
        } catch (...) { // undone, and thrown on
            HideProgress();
            throw;
        }
    }
    ShowProgress(10);
    CopyRecordToWorkingSet();
    frmLCC.sstInput.TabVisible = std::vector<bool>(frmLCC.sstInput.TabCaptions.size(), true);
    if (NewProject == 0) {
        frmLCC.lblFileName.Caption = Trim(FileName);
        ShowTitle();
    }
    NewProject = 0;

    ShowProgress(50);
    FillInputScreen();
    ShowProgress(70);
    ShowProgress(100);

    if (Analysed == 1) frmResults.Unload();
    Analysed = 0;
    ProjectOpen = 1;
    TellWayOn();
    Saved = 1;
    SaveAs = 0;
    RedrawProfileView = true;
    HideProgress();
    frmLCC.Visible = true;
    ProjectLoaded();
}

void MarkChanged()
{
    if (Analysed == 1) frmResults.Unload();
    Analysed = 0;
    Saved = 0;
}

void ResetSession()
{
    ProjectOpen = NewProject = Saved = Analysed = SaveAs = Committing = 0;
    ViewState = 1;
    FileName.clear();
    RedrawProfileView = false;
    PointedOut = nullptr;
}

} // namespace velorix
