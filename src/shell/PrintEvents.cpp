// The selection of what to print.
#include "shell/PrintEvents.h"

#include "input/Session.h"
#include "input/ViewState.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "reports/PrintRun.h"
#include "reports/ResultReports.h"
#include "reports/Sections.h"
#include "screens/MainWindow.h"
#include "shell/Help.h"

namespace velorix {
namespace {

void SelectionLoads()
{
    HideScreens();
    frmPrint.tmrCheck.Enabled = true;
}

void EnableWhatStands()
{
    for (const PrintSection& Each : PrintSections()) Each.Box.Enabled = Stands(Each.Needed);
    frmPrint.tmrCheck.Enabled = false;
}

void SelectionCancelled()
{
    frmPrint.Unload();
    if (ProjectOpen == 1) ShowInputScreen();
}

// The hydraulic report is printed for one year.
void HydraulicTicked()
{
    PrintYear = 1;
    if (frmPrint.chkTextHydraulic.Value) System().ShowModal(frmSelectYear);
}

void ConnectSelectYear(SelectYearScreen& Target, std::int16_t& Year)
{
    Target.Load = [&Target] {
        std::vector<std::string> Years;
        for (int Index = 1; Index <= wLife; ++Index)
            Years.push_back("Year " + std::to_string(CalendarYear(Index)));
        Target.comYear.List = Years;
        Target.comYear.ListIndex = 0;
    };
    Target.sscOK.Click = [&Target, &Year] {
        Year = static_cast<std::int16_t>(Target.comYear.ListIndex + 1);
        Target.Unload();
    };
}

// Buttons have hints of their own.
void ConnectPointerOverSelection()
{
    for (Control* Each : frmPrint.Controls)
        if (!dynamic_cast<CommandButton*>(Each))
            Each->MouseMove = [] { MDIProject.StatusText.Caption = "Select the components to print"; };
}

} // namespace

void ConnectPrinting()
{
    frmPrint.Load = SelectionLoads;
    frmPrint.Close = SelectionCancelled;
    frmPrint.tmrCheck.Tick = EnableWhatStands;
    frmPrint.chkTextHydraulic.Click = HydraulicTicked;
    frmPrint.sscPrint.Click = frmPrint.sscPrint1.Click = PrintTicked;
    frmPrint.sscCancel.Click = SelectionCancelled;
    frmPrint.sscSetup.Click = SetUpPrinter;
    HelpOn(frmPrint.sscHelp, 4500);
    ConnectPointerOverSelection();
    ConnectSelectYear(frmSelectYear, PrintYear);
    ConnectSelectYear(frmSelectYear1, PrintGraphYear);
    for (const DirectPrint& Each : DirectPrints()) Each.Button.Click = [&Each] { PrintDirectly(Each); };
}

} // namespace velorix
