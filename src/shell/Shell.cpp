// Start-up and the connecting of all screens.
#include "shell/Shell.h"

#include "analysis/AnalyseDialog.h"
#include "analysis/Program.h"
#include "input/FileCommands.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/CostTable.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"
#include "shell/Hints.h"
#include "shell/InputEvents.h"
#include "shell/MainCommands.h"
#include "shell/Notices.h"
#include "shell/Preferences.h"

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

// The bar only chooses the year of the next plot.
void YearOfPlotChosen()
{
    PlotYear = static_cast<std::int16_t>(frmResults.hscYears.Value.Get());
    frmResults.lblYear.Caption = std::to_string(wSupplyStart + PlotYear - 1);
}

void ConnectResults()
{
    frmDutyPoint.sscOK.Click = [] { frmDutyPoint.Unload(); };
    frmResults.hsbAnnual.Change = ShowAnnualCost;
    frmResults.hscYears.Change = YearOfPlotChosen;
}

} // namespace

Handler ShowPrintScreen;
Handler ShowImportWizard;
Handler ShowConverter;
Handler ShowGuide;
Handler ShowRoughness;
Handler ShowProfile;
Handler ShowPumpCurve;

void ConnectScreens()
{
    ConnectHints();
    ConnectMainWindow();
    ConnectInputScreen();
    ConnectGridEditors();
    ConnectPreferences();
    ConnectNotices();
    ConnectKindOfSystem();
    ConnectAnalyseDialog();
    ConnectResults();
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
