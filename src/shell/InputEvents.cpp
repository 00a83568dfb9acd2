// What the controls of the input screen do.
#include "shell/InputEvents.h"

#include "input/Commit.h"
#include "input/CostTables.h"
#include "input/FileCommands.h"
#include "input/HourPattern.h"
#include "input/InputFields.h"
#include "input/InputScreen.h"
#include "input/ProfileTable.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "shell/DeleteRow.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"
#include "shell/Hints.h"
#include "shell/Shell.h"

namespace velorix {
namespace {

// What is typed and chosen stays on the screen until the commit reads it.
void ConnectEdits()
{
    for (Control* Each : frmLCC.Controls) {
        if (auto* Box = dynamic_cast<TextBox*>(Each)) Box->Change = MarkChanged;
        if (auto* Selector = dynamic_cast<ComboBox*>(Each)) Selector->Change = MarkChanged;
    }
    frmLCC.dtpDate.Change = MarkChanged;
}

// The table shows the profile as it was last read. Not so when the load step has set the selector, to the
// unit that is stored or, for a unit that the list doesn't know, to none: it fills the table itself.
void DiameterUnitsChosen()
{
    MarkChanged();
    const int Chosen = frmLCC.comDiameterUnits.ListIndex;
    if (Chosen < 0 || Chosen == wDiameterUnits) return;
    TakeUnit(frmLCC.comDiameterUnits, wDiameterUnits);
    FillProfileGrid();
    GridFilled(frmLCC.msgProfile);
}

// The commit reads the selector of the gravity frame for both kinds of system.
void PumpDemandUnitsChosen()
{
    MarkChanged();
    TakeUnit(frmLCC.comPumpVaryingDemandUnits, wDemandUnits);
    frmLCC.comVaryingDemandUnits.ListIndex = frmLCC.comPumpVaryingDemandUnits.ListIndex.Get();
}

// The reports read the selectors of the gravity frame for both kinds of system.
void ConnectLevelUnits(ComboBox& Pumping, ComboBox& Gravity)
{
    Pumping.Change = [&] {
        MarkChanged();
        Gravity.ListIndex = Pumping.ListIndex.Get();
    };
}

void ConnectKeys()
{
    for (const InputField& Each : InputFields)
        if (Each.Filter) FilterKeys(*Each.Box, *Each.Filter);
}

// A bar shows its value and stores it at once.
void ConnectBars()
{
    for (const InputField& Each : InputFields) {
        if (!Each.Bar) continue;
        TellBounds(*Each.Bar, Each.BarCaption);
        Each.Bar->Change = [&Each] {
            MarkChanged();
            Each.Moved();
            if (Each.Refilled) GridFilled(*Each.Refilled);
        };
    }
}

void ConnectOption(OptionButton& Option, void (*ShowOption)())
{
    Option.Click = [ShowOption] {
        MarkChanged();
        ShowOption();
    };
}

// A box that goes out of use is left with a number: the commit reads it all the same, and the user couldn't
// reach it to mend it. An editor over a table that goes out of use closes.
void ConnectChoiceOfBoxes(OptionButton& Option, void (*ShowOption)())
{
    Option.Click = [ShowOption] {
        MarkChanged();
        ShowOption();
        FillUnusedBoxes();
        for (const Grid* Each : {&frmLCC.msgDemand, &frmLCC.msgPumpDemand}) SettleGridEditor(*Each);
    };
}

void ConnectOptions()
{
    ConnectChoiceOfBoxes(frmLCC.optGSpecifiedFlowrate, ShowGravityDemandOption);
    ConnectChoiceOfBoxes(frmLCC.optGCalculatedFlowrate, ShowGravityDemandOption);
    ConnectChoiceOfBoxes(frmLCC.optPumpFixed, ShowPumpDemandOption);
    ConnectChoiceOfBoxes(frmLCC.optPumpVarying, ShowPumpDemandOption);
    ConnectChoiceOfBoxes(frmLCC.optFlowrate, ShowPumpingOption);
    ConnectChoiceOfBoxes(frmLCC.optPumpDetails, ShowPumpingOption);
    ConnectOption(frmLCC.optCopon, ShowLiningOption);
    ConnectOption(frmLCC.optMortar, ShowLiningOption);
}

// The pattern isn't marked as an edit; the commit reads it from the colours.
void ConnectHours()
{
    for (auto* Season : {&frmLCC.lblSummerHour, &frmLCC.lblWinterHour})
        for (Label& Each : *Season)
            Each.Click = [&Each] {
                CycleHour(Each);
                ShowHint(Each);
            };
}

// A pane stands in for the content of its page.
void ShowPane(Frame& Pane, bool Shown)
{
    Pane.Visible = Shown;
    GoToPointedOut();
}

void CloseLaying()
{
    frmLCC.txtLaying.Visible = false;
    ShowPane(frmLCC.fraLaying, false);
}

void ConnectPages()
{
    frmLCC.sstInput.Change = GoToPointedOut;
    frmLCC.sscPumpcurve.Click = [] { ShowPane(frmLCC.fraPumpDetails, true); };
    frmLCC.sscOK.Click = [] { ShowPane(frmLCC.fraPumpDetails, false); };
    frmLCC.sscLaying.Click = [] { ShowPane(frmLCC.fraLaying, true); };
    frmLCC.sscHideLaying.Click = [] {
        const auto Before = wLaying;
        ReadLayingGrid();
        if (wLaying != Before) MarkChanged(); // cells that were typed ahead of an analysis
        CloseLaying();
    };
    frmLCC.sscCancelLaying.Click = CloseLaying; // what was typed stays in the grid
}

void ConnectRows()
{
    frmLCC.sscAdd.Click = [] { ChangeProfileRows(InsertProfileRow); };
    frmLCC.sscDelete.Click = AskToDeleteRow;
    MDIProject.mnuFGridAddRow.Click = [] { ChangeProfileRows(AddProfileRow); };
    MDIProject.mnuFGridInsRow.Click = [] { ChangeProfileRows(InsertProfileRow); };
    MDIProject.mnuFGridDelRow.Click = [] { ChangeProfileRows(DeleteLastProfileRow); };
    MDIProject.mnuFGridExtrRow.Click = [] { ChangeProfileRows(DeleteProfileRow); };
    ConnectDeleteRow();
}

void ConnectHelp()
{
    HelpOn(frmLCC.sscHelp, 3050);
    HelpOn(frmLCC.sscHelp1, 3060);
    HelpOn(frmLCC.sscHelp3, 3065);
    HelpOn(frmLCC.sscHelp2, 3070);
    HelpOn(frmLCC.sscMechanical, 3090);
    HelpOn(frmLCC.sscElectrical, 3100);
}

} // namespace

void ConnectInputScreen()
{
    ConnectEdits();
    frmLCC.comDiameterUnits.Change = DiameterUnitsChosen;
    frmLCC.comPumpVaryingDemandUnits.Change = PumpDemandUnitsChosen;
    ConnectLevelUnits(frmLCC.comPPRWLUnits, frmLCC.comTRWLUnits);
    ConnectLevelUnits(frmLCC.comPERWLUnits, frmLCC.comBRWLUnits);
    ConnectKeys();
    ConnectBars();
    ConnectOptions();
    ConnectHours();
    ConnectPages();
    ConnectRows();
    ConnectHelp();
}

} // namespace velorix
