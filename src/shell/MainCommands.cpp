// Menus, tool buttons and the welcome line.
#include "shell/MainCommands.h"

#include "input/CostTables.h"
#include "input/FileCommands.h"
#include "input/InputScreen.h"
#include "input/Session.h"
#include "input/ViewState.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/ConverterScreen.h"
#include "screens/Dialogs.h"
#include "screens/ImportWizard.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Print.h"
#include "screens/Results.h"
#include "screens/Viewers.h"
#include "shell/GuideEvents.h"
#include "shell/Help.h"
#include "shell/Hints.h"
#include "shell/RoughnessEvents.h"

namespace velorix {
namespace {

constexpr int WelcomeTicks = 82; // how long the welcome line runs

int TicksDone = 0;
std::size_t LettersShown = 0;

// True when a project is open; otherwise the user is told, and the command ends.
bool RequireProject(const std::string& Otherwise)
{
    if (ProjectOpen == 1) return true;
    Warn(Otherwise);
    return false;
}

// A command that was cancelled has taken the project's name away.
void BringBackTitle()
{
    if (ProjectOpen == 1 && HasFile()) ShowTitle();
}

void RefreshCurrency()
{
    MDIProject.tmrCurrency.Enabled = false;
    ShowCurrencySigns();
    FillCostHeadings();
}

void ConnectMenus()
{
    MDIProject.mnuNew.Click = NewProjectCommand;
    MDIProject.mnuOpen.Click = OpenProjectCommand;
    MDIProject.mnuSave.Click = SaveCommand;
    MDIProject.mnuSaveAs.Click = SaveAsCommand;
    MDIProject.mnuDelete.Click = DeleteCommand;
    MDIProject.mnuImport.Click = ImportCommand;
    MDIProject.mnuGeneral.Click = InputDataCommand;
    MDIProject.mnuResults.Click = ResultsCommand;
    MDIProject.mnuPrint.Click = PrintCommand;
    MDIProject.mnuExit.Click = ExitCommand;
    MDIProject.mnuExit1.Click = ExitCommand;
    MDIProject.mnuAnalyse.Click = AnalyseCommand;
    MDIProject.mnuRoughness.Click = ShowRoughness;
    MDIProject.mnuPreferences.Click = PreferencesCommand;
    MDIProject.mnuContents.Click = [] { ShowHelpTopic(1000); };
    MDIProject.mnuHelpOn.Click = [] { ShowHelpTopic(1000); };
    MDIProject.mnuStep.Click = [] { ShowGuideAt(""); };
    MDIProject.mnuConvert.Click = ConvertCommand;
    MDIProject.mnuMethod.Click = [] { ShowHelpTopic(7000); };
    MDIProject.mnuDisclaimer.Click = DisclaimerCommand;
    MDIProject.mnuAbout.Click = AboutCommand;
}

} // namespace

void ConnectMainWindow()
{
    ConnectMenus();
    MDIProject.sscNew.Click = NewProjectCommand;
    MDIProject.sscOpen.Click = OpenProjectCommand;
    MDIProject.sscSave.Click = SaveCommand;
    MDIProject.sscPrint.Click = PrintCommand;
    HelpOn(MDIProject.sscHelp, 1000);
    MDIProject.tmrWelcome.Tick = WelcomeTick;
    MDIProject.tmrCurrency.Tick = RefreshCurrency;
    MDIProject.sspProject.MouseMove = ClearHint;
}

void MainWindowLoads()
{
    MDIProject.LoadHidden();
    MDIProject.Visible = true;
    ResetMainCommands();
    MDIProject.tmrWelcome.Enabled = true;
    for (Control* Each : std::initializer_list<Control*>{&MDIProject.mnuFile, &MDIProject.mnuMethod,
                                                         &MDIProject.mnuAnalyse, &MDIProject.mnuPreferences,
                                                         &MDIProject.mnuStep, &MDIProject.sspProject})
        Each->Visible = true;
    MDIProject.mnuExit1.Visible = false;
    ViewState = 1;
}

void AnalyseCommand()
{
    LeaveProjectScreens();
    if (!RequireProject("First open an existing project or start a new project")) return;
    System().ShowModal(frmAnalyse);
}

void InputDataCommand()
{
    LeaveProjectScreens();
    if (!RequireProject("No project has been opened.")) return;
    ShowInputScreen();
    BringBackTitle();
}

void ResultsCommand()
{
    if (Analysed != 1) {
        Warn("Project has not been analysed.");
        if (ProjectOpen != 1) return;
        CloseViewers();
        ShowInputScreen();
        return BringBackTitle();
    }
    CloseViewers();
    frmLCC.Visible = false;
    ShowPlotState(frmResults.hscYears, frmResults.lblYear,
                  frmResults.chkGradeline); // a viewer may have set it
    frmResults.Visible = true;
    BringBackTitle();
}

void PrintCommand()
{
    LeaveProjectScreens();
    if (RequireProject("First open an existing project or start a new project and then print the data."))
        System().ShowModal(frmPrint);
}

void ImportCommand()
{
    LeaveProjectScreens();
    if (RequireProject("First open an existing project or start a new project and then import the profile"))
        System().ShowModal(frmImport);
}

void ConvertCommand()
{
    LeaveProjectScreens();
    System().ShowModal(frmConverter);
}

void PreferencesCommand()
{
    System().ShowModal(frmPref);
}

void DisclaimerCommand()
{
    LeaveProjectScreens();
    System().ShowModal(frmDisclaimer);
}

void AboutCommand()
{
    LeaveProjectScreens();
    System().ShowModal(frmAbout);
}

void WelcomeTick()
{
    const std::string Line = MDIProject.lblWelcome.Caption;
    if (++TicksDone >= WelcomeTicks) {
        MDIProject.tmrWelcome.Enabled = false;
        MDIProject.Caption = ProgramTitle;
        return;
    }
    LettersShown = LettersShown < Line.size() ? LettersShown + 1 : 0;
    MDIProject.Caption = Line.substr(0, LettersShown);
}

void ResetMainCommands()
{
    TicksDone = 0;
    LettersShown = 0;
}

} // namespace velorix
