// Going through the import wizard: instructions, paste, review.
#include "shell/ImportEvents.h"

#include "input/Session.h"
#include "input/ViewState.h"
#include "platform/Platform.h"
#include "screens/ImportWizard.h"
#include "screens/Lcc.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"
#include "tools/ImportAdvice.h"
#include "tools/ProfileImport.h"

#include <initializer_list>

namespace velorix {
namespace {

constexpr int NodeDescriptionCol = 7;

int WizardFrame = 1; // the next picture of each animation
int PasteFrame = 1;

void ShowStep(Frame& Step)
{
    for (Frame* Each : {&frmImport.fraStep1, &frmImport.fraStep2, &frmImport.fraStep3})
        Each->Visible = Each == &Step;
}

void WizardTick()
{
    frmImport.imgWizard.Picture = frmImport.imgWiz[WizardFrame].Picture.Get();
    WizardFrame = WizardFrame % WizardPictures + 1;
}

void PasteTick()
{
    frmImport.imgWizard2.Picture = frmImport.imgWiz[PasteFrame].Picture.Get();
    if (++PasteFrame > WizardPictures) frmImport.tmrPaste.Enabled = false;
}

void WizardLoads()
{
    HideScreens();
    WizardFrame = 1;
    frmImport.tmrWizard.Enabled = true;
}

void PastePressed()
{
    PasteFrame = 1;
    frmImport.tmrPaste.Enabled = true;
    if (TakeClipText(System().ClipboardText())) {
        frmImport.lblPaste.Visible = true;
        return System().SetFocus(frmImport.sscNext);
    }
    System().Show({.Text = "There was nothing on the clipboard to paste",
                   .Title = "Velorix: Error",
                   .Icon = MessageIcon::Question});
    frmImport.lblPaste.Visible = false;
}

ParseOutcome Parse()
{
    if (!frmImport.lblPaste.Visible) {
        Warn("There was no data on the clipboard to paste.  Select the data and click on the paste button.",
             "Error !");
        return ParseOutcome::NothingPasted;
    }
    const ParseOutcome Outcome = ParseClipText();
    if (Outcome == ParseOutcome::TooManyColumns) {
        Warn("The table selection made in the spreadsheet has more than five columns", "Error !");
        frmImport.lblPaste.Visible = false;
    } else if (Outcome != ParseOutcome::Taken) {
        Warn("Nothing could be pasted please check that your copied data is as specified in the help file.",
             "Error !");
    }
    return Outcome;
}

void FillReview()
{
    Grid& Table = frmImport.msgFImport;
    Table.SetRows(ImportRows + 1);
    Table.SetText(0, 0, "Node");
    Table.SetText(0, NodeDescriptionCol, "Node description");
    for (int Col = 1; Col <= ImportColumnCount; ++Col) {
        Table.SetText(0, Col, ImportHeading(Col));
        for (int Row = 1; Row <= ImportRows; ++Row) Table.SetText(Row, Col, ImportedText(Row, Col));
    }
    for (int Row = 1; Row <= ImportRows; ++Row) Table.SetText(Row, NodeDescriptionCol, "Node");
}

// Whatever the parse has come to, the review shows what the cells hold.
void Review(ParseOutcome Outcome)
{
    FillReview();
    const Advice Told = ImportAdvice(Outcome);
    frmImport.lblAdvice.Caption = Told.Text;
    frmImport.lblAdvice.Visible = !Told.Text.empty();
    ShowStep(frmImport.fraStep3);
    frmImport.sscNext.Caption = "&Finish";
    if (Told.Row <= ImportRows) frmImport.msgFImport.Select(Told.Row, Told.Col);
    System().SetFocus(Told.Text.empty() ? frmImport.sscNext : frmImport.sscPrevious);
}

void LeaveWizard()
{
    frmImport.Unload();
    RestoreScreens();
}

void Finish()
{
    CommitImport();
    GridFilled(frmLCC.msgProfile);
    MarkChanged();
    LeaveWizard();
}

void NextPressed()
{
    frmImport.tmrWizard.Enabled = false;
    if (frmImport.fraStep1.Visible) {
        ShowStep(frmImport.fraStep2);
        frmImport.sscPrevious.Visible = true;
        System().SetFocus(frmImport.lblPaste.Visible ? frmImport.sscNext : frmImport.sscPaste);
    } else if (frmImport.fraStep2.Visible) {
        Review(Parse());
    } else {
        Finish();
    }
}

void PreviousPressed()
{
    if (frmImport.fraStep3.Visible) {
        ShowStep(frmImport.fraStep2);
        frmImport.sscNext.Caption = "&Next";
        return;
    }
    ShowStep(frmImport.fraStep1);
    System().SetFocus(frmImport.sscNext); // else it would go on to Cancel
    frmImport.sscPrevious.Visible = false;
    frmImport.tmrWizard.Enabled = true;
}

} // namespace

void ConnectImportWizard()
{
    frmImport.Load = WizardLoads;
    frmImport.Close = frmImport.sscCancel.Click = LeaveWizard;
    frmImport.sscPaste.Click = PastePressed;
    frmImport.sscNext.Click = NextPressed;
    frmImport.sscPrevious.Click = PreviousPressed;
    frmImport.tmrWizard.Tick = WizardTick;
    frmImport.tmrPaste.Tick = PasteTick;
    HelpOn(frmImport.sscHelp, 3030);
}

} // namespace velorix
