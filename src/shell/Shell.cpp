// Start-up and the connecting of all screens.
#include "shell/Shell.h"

#include "analysis/AnalyseDialog.h"
#include "analysis/Program.h"
#include "input/FileCommands.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "shell/ConverterEvents.h"
#include "shell/GridEditor.h"
#include "shell/GuideEvents.h"
#include "shell/Help.h"
#include "shell/Hints.h"
#include "shell/ImportEvents.h"
#include "shell/InputEvents.h"
#include "shell/MainCommands.h"
#include "shell/Notices.h"
#include "shell/Preferences.h"
#include "shell/PrintEvents.h"
#include "shell/ResultsEvents.h"
#include "shell/RoughnessEvents.h"
#include "shell/ViewerEvents.h"

namespace velorix {
namespace {

void ConnectKindOfSystem()
{
    frmLCCType.Close = LccTypeCancel;
    frmLCCType.sscContinue.Click = LccTypeContinue;
    frmLCCType.sscCancel.Click = LccTypeCancel;
    HelpOn(frmLCCType.sscHelp, 3000);
}

void ConnectAnalyseDialog()
{
    frmAnalyse.Load = AnalyseDialogLoads;
    frmAnalyse.Close = AnalyseCancelled;
    frmAnalyse.tmrStopMatrix.Tick = EndDecoration;
    frmAnalyse.sscAnalyse.Click = AnalysePressed;
    frmAnalyse.sscCancel.Click = AnalyseCancelled;
    HelpOn(frmAnalyse.sscHelp, 5000);
}

} // namespace

void ConnectScreens()
{
    ConnectHints();
    ConnectGuide();
    ConnectImportWizard();
    ConnectPrinting();
    ConnectConverter();
    ConnectRoughness();
    ConnectMainWindow();
    ConnectInputScreen();
    ConnectGridEditors();
    ConnectPreferences();
    ConnectNotices();
    ConnectKindOfSystem();
    ConnectAnalyseDialog();
    ConnectResults();
    ConnectViewers();
}

bool StartProgram()
{
    if (!AgreementAccepted()) {
        System().EndProgram();
        return false;
    }
    MainWindowLoads();
    StartSession();
    System().SetFocus(frmLCC.txtProject);
    MDIProject.StatusText.Caption = "Open a project or start a new project"; // in place of the box's own hint
    return true;
}

} // namespace velorix
