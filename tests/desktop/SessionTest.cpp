// The whole program under a user's hands: its window, its dialogs and its grids, by keyboard.
#include "desktop/DialogLayouts.h"
#include "desktop/MainWindowTest.h"
#include "model/ProjectFile.h"
#include "screens/Dialogs.h"

namespace velorix {
namespace {

// Answers the save dialog with a path, the dialog of a new project with its keys for a pumping system, and
// every question with No unless told otherwise. Cancels the dialog that opens a file.
class SavingPlatform : public NotingPlatform {
public:
    std::filesystem::path Target;
    Answer Reply = Answer::No;

    std::optional<std::filesystem::path> AskFileToOpen(const FileDialog&) override { return {}; }
    std::optional<std::filesystem::path> AskFileToSave(const FileDialog&) override { return Target; }

    Answer Show(const Message& Box) override
    {
        NotingPlatform::Show(Box);
        return Reply;
    }

    void ShowModal(Screen& Shown) override
    {
        QTimer::singleShot(0, [&Shown] {
            QWidget* const Dialog = QApplication::activeModalWidget();
            if (!QTest::qWaitForWindowActive(Dialog)) return Shown.CloseByFrame();
            EXPECT_FALSE(FocusTarget(MDIProject.lblWayOn)->isVisible()); // no menu can be reached
            QTest::keyClick(FocusTarget(frmLCCType.optPumping), Qt::Key_Space);
            QTest::keyClick(Dialog, Qt::Key_Return);
        });
        NotingPlatform::ShowModal(Shown);
    }
};

class SessionTest : public MainWindowTest {
protected:
    SessionTest()
    {
        InstallPlatform(&Saving);
        RegisterDialogs(Saving);
        Saving.Target = Folder.filePath("ridge.vlx").toStdString();
    }

    // Keys go where the focus is.
    void Press(Qt::Key Key, Qt::KeyboardModifiers Held = Qt::NoModifier)
    {
        QTest::keyPress(QApplication::focusWidget(), Key, Held);
        // The press may have moved the focus, or shown a dialog.
        if (QWidget* const Now = QApplication::focusWidget()) QTest::keyRelease(Now, Key, Held);
        QCoreApplication::processEvents();
    }

    void Type(const QString& Text)
    {
        for (const QChar Each : Text) QTest::keyClick(QApplication::focusWidget(), Each.toLatin1());
        QCoreApplication::processEvents();
    }

    void Fill(TextBox& Box, const QString& Text)
    {
        FocusTarget(Box)->setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(Text);
    }

    // The profile stands on the second page.
    void TypeIntoProfile(const QString& Text)
    {
        frmLCC.sstInput.Tab = 1;
        FocusTarget(frmLCC.msgProfile)->setFocus();
        Type(Text);
    }

    // A row from its first column on, each cell left by the arrow; Enter ends the last one.
    void TypeRow(const std::vector<QString>& Cells)
    {
        for (std::size_t Col = 0; Col < Cells.size(); ++Col) {
            Type(Cells[Col]);
            if (Col + 1 < Cells.size()) Press(Qt::Key_Right);
        }
    }

    SavingPlatform Saving;
    QTemporaryDir Folder;
};

TEST_F(SessionTest, WhatIsTypedFromNothingIsWhatTheFileHolds)
{
    TypeIntoProfile("12");
    Press(Qt::Key_N, Qt::ControlModifier); // over an open cell
    Main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Main.get()));
    EXPECT_FALSE(frmLCC.txtCell.Visible);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 1), "0");
    EXPECT_EQ(Saved, 1);
    EXPECT_EQ(MDIProject.lblSystem.Caption.Get(), "Pumping system");
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.txtProject));
    const std::pair<TextBox*, const char*> GeneralPage[] = {
        {&frmLCC.txtProject, "Ridge main"}, {&frmLCC.txtDesigner, "M. Naidoo"},
        {&frmLCC.txtPFlowrate, "35"},       {&frmLCC.txtPPRWL, "1201.5"},
        {&frmLCC.txtPERWL, "1260"},         {&frmLCC.txtPumpOperatingFlowrate, "150"}};
    for (const auto& [Box, Text] : GeneralPage) Fill(*Box, Text);

    TypeIntoProfile("");
    TypeRow({"1200", "0", "300", "6", "850"});
    Press(Qt::Key_Down);
    for (int Step = 0; Step < 4; ++Step) Press(Qt::Key_Left);
    TypeRow({"1215", "400", "300", "6", "850"});
    Press(Qt::Key_Return); // on the last row: one row more, and its first cell
    ASSERT_EQ(frmLCC.msgProfile.Rows(), 4);
    EXPECT_EQ(frmLCC.msgProfile.Row(), 3);
    EXPECT_EQ(frmLCC.msgProfile.Col(), 1);
    TypeRow({"1258.25", "900"});
    EXPECT_TRUE(frmLCC.txtCell.Visible);
    Press(Qt::Key_S, Qt::ControlModifier); // with the cell still open

    ASSERT_TRUE(Saving.Messages.empty() || Saving.Messages.back().Text == "Do you want to save the project ?")
        << Saving.Messages.back().Text;
    const ProjectFields Stored = ReadProjectFile(Saving.Target);
    EXPECT_EQ(Stored.SystemType, 1);
    EXPECT_EQ(TextOf(Stored.Project), "Ridge main");
    EXPECT_THAT((std::vector<double>{Stored.TRWL, Stored.PumpOperatingFlowrate, Stored.Elevation[2],
                                     Stored.Elevation[3], Stored.AccLength[3]}),
                testing::ElementsAre(1201.5, 150, 1215, 1258.25, 900));
    EXPECT_EQ(Stored.Diameter[3], 300); // copied from the row before
    EXPECT_EQ(Stored.Elevation[4], UnusedNode);
    EXPECT_EQ(Main->windowTitle(), "  Velorix (Ridge main)");
}

// Nothing changes at the save any more. The accent of a letter goes, signs fall into their parts, and one
// step takes all of it back.
TEST_F(SessionTest, BoxesShowForeignCharactersAsTheFileWillHoldThem)
{
    for (TextBox* Each : {&frmLCC.txtProject, &frmLCC.txtDescription}) {
        FocusTarget(*Each)->setFocus();
        Type("xyz");
        Press(Qt::Key_Left);
        Press(Qt::Key_Left);
        QApplication::clipboard()->setText("Ōta 90° Mu\u0308ller pro\uFB01le \u03BB \U0001F600");
        Press(Qt::Key_V, Qt::ControlModifier);
        Type("!");
        EXPECT_EQ(Each->Text.Get(), "xOta 90° Müller profile ? ?!yz") << Each->ToolTip;
        Press(Qt::Key_Z, Qt::ControlModifier);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_THAT(Each->Text.Get(), testing::AnyOf("xyz", "")) << Each->ToolTip; // by how it groups steps
    }
}

TEST_F(SessionTest, TheFocusStaysAtHandWhenAScreenOrAPageGoes)
{
    TypeIntoProfile("77");
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from a dialog, with the cell's editor closed
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.msgProfile));

    // Results that go out of sight take no key along from the screen on top.
    ShowResults();
    frmResults.sscDutypoint.Click();
    Press(Qt::Key_F6);
    FocusTarget(frmLCC.msgProfile)->setFocus();
    frmResults.Unload();
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.msgProfile));

    frmLCC.txtDiscountRate.Text = "";
    Saving.SetFocus(frmLCC.txtDiscountRate); // on a page that doesn't show
    EXPECT_FALSE(FocusTarget(frmLCC.txtDiscountRate)->hasFocus());
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3);
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), frmLCC.txtDiscountRate.ToolTip);
}

// A box inside a frame that the load hides, in either kind of system, and one that isn't.
TEST_F(SessionTest, ASaveUnderAnotherNameLeavesTheFocusWhereItWas)
{
    for (int SystemType : {0, 1}) {
        Start(SystemType);
        frmLCC.sstInput.Tab = 0;
        frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
        for (TextBox* Each : {&frmLCC.txtDesigner, SystemType == 0 ? &frmLCC.txtTRWL : &frmLCC.txtPPRWL}) {
            FocusTarget(*Each)->setFocus();
            Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_TRUE(FocusTarget(*Each)->hasFocus()) << Each->ToolTip;
            EXPECT_EQ(MDIProject.StatusText.Caption.Get(), Each->ToolTip);
        }

        // A pane that stands open on another page is closed by the load, and hands its focus to nobody.
        frmLCC.sstInput.Tab = 1;
        frmLCC.sscLaying.Click();
        frmLCC.sstInput.Tab = 3;
        FocusTarget(frmLCC.txtDiscountRate)->setFocus();
        Press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(FocusTarget(frmLCC.txtDiscountRate)->hasFocus());
    }
}

// By Tab, by a change of the page and back, and by a save that finds no number in the box.
TEST_F(SessionTest, WhatIsTypedIntoALineThatGetsTheFocusReplacesItsText)
{
    frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
    const std::pair<TextBox*, std::function<void()>> Ways[] = {
        {&frmLCC.txtDesigner, [this] { Press(Qt::Key_Tab); }},
        {&frmLCC.txtBRWL,
         [this] {
             FocusTarget(frmLCC.txtBRWL)->setFocus(Qt::MouseFocusReason);
             Press(Qt::Key_Tab, Qt::ControlModifier);
             Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
         }},
        {&frmLCC.txtTRWL, [this] { Press(Qt::Key_S, Qt::ControlModifier); }}};
    for (const auto& [Box, Go] : Ways) {
        FocusTarget(frmLCC.txtProject)->setFocus();
        Box->Text = Box == &frmLCC.txtTRWL ? "10 m" : "10";
        Go();
        Type("12");
        EXPECT_EQ(Box->Text.Get(), "12") << Box->ToolTip;
    }
    frmLCC.txtDescription.Text = "10";
    frmLCC.hscLife.Value = 10;
    for (const auto& [Field, Then] :
         {std::pair<Control*, QString>(&frmLCC.txtDescription, "12"), {&frmLCC.hscLife, "12"}}) {
        Saving.SetFocus(*Field);
        Type(Then);
    }
    Press(Qt::Key_Return);
    EXPECT_EQ(frmLCC.txtDescription.Text.Get(), "1210"); // a box of several lines selects nothing
    EXPECT_EQ(frmLCC.hscLife.Value, 12);
}

TEST_F(SessionTest, TheEmptyWorkspaceTellsHowToGoOn)
{
    const QWidget* const Line = FocusTarget(MDIProject.lblWayOn);
    EXPECT_FALSE(Line->isVisible());
    Press(Qt::Key_O, Qt::ControlModifier); // cancelled
    EXPECT_TRUE(Line->isVisible());
    EXPECT_EQ(MDIProject.lblWayOn.Caption.Get(), "File, View, Input Data shows the project again");
    Press(Qt::Key_F6);
    EXPECT_TRUE(frmLCC.Visible);

    frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
    Press(Qt::Key_S, Qt::ControlModifier);
    Saving.Reply = Answer::Yes;
    MDIProject.mnuDelete.Click();
    EXPECT_TRUE(Line->isVisible());
    EXPECT_THAT(MDIProject.lblWayOn.Caption.Get(),
                testing::AllOf(testing::HasSubstr("New"), testing::HasSubstr("Open")));
}

// What a box or a cell doesn't take, typed key by key or pasted; the hint comes back with the next focus.
TEST_F(SessionTest, WhatCannotBeTypedIsTold)
{
    const std::string NumbersOnly = "Only digits and a decimal point can be typed here";
    const auto Told = [] { return MDIProject.StatusText.Caption.Get(); };
    frmLCC.sstInput.Tab = 1;
    Fill(frmLCC.txtKsNew, "-12,75");
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "1275");
    EXPECT_EQ(Told(), NumbersOnly);
    FocusTarget(frmLCC.txtKsOld)->setFocus();
    EXPECT_EQ(Told(), frmLCC.txtKsOld.ToolTip);
    Press(Qt::Key_A, Qt::ControlModifier);
    for (const auto& [Text, Sentence] :
         {std::pair("12.5 ", frmLCC.txtKsOld.ToolTip), {"12,5", NumbersOnly}}) {
        QApplication::clipboard()->setText(Text);
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Told(), Sentence);
    }
    EXPECT_EQ(frmLCC.txtKsOld.Text.Get(),
              "12.512,5"); // a paste is not filtered, but for the blanks around it

    FocusTarget(frmLCC.msgProfile)->setFocus();
    Type("-");
    EXPECT_EQ(Told(), NumbersOnly);
    Type("5");
    EXPECT_EQ(Told(), frmLCC.txtCell.ToolTip);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Told(), NumbersOnly);

    // A block goes into the cells, not into the editor of one.
    const int Row = frmLCC.msgProfile.Row();
    const int Col = frmLCC.msgProfile.Col();
    QApplication::clipboard()->setText("9\t8\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(frmLCC.txtCell.Visible);
    EXPECT_EQ(frmLCC.msgProfile.Text(Row, Col) + "|" + frmLCC.msgProfile.Text(Row, Col + 1), "9|8");

    frmLCC.sstInput.Tab = 3;
    Saving.SetFocus(frmLCC.hscMPipeline);
    Type("1,5");
    EXPECT_EQ(Told(), "Only a number from 0.00% to 20.00% can be typed here");
}

TEST_F(SessionTest, EnterPressesAButtonAndEscapeClosesWhatStandsOpen)
{
    Start(1);
    frmLCC.sstInput.Tab = 1;
    frmLCC.msgProfile.Select(1, 7);
    QWidget* const List = FocusTarget(frmLCC.comNode);
    List->setFocus(Qt::TabFocusReason);
    frmLCC.sscLaying.Click();
    frmLCC.msgLaying.Select(9, 1);
    Type("5");
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Nothing can be typed into a heading");
    frmLCC.msgLaying.Select(11, 1);
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), frmLCC.msgLaying.ToolTip);
    Type("5");
    Press(Qt::Key_Escape); // takes the typing back
    EXPECT_TRUE(frmLCC.fraLaying.Visible && frmLCC.txtLaying.Visible);
    Press(Qt::Key_Up);
    frmLCC.msgLaying.Select(1, 1);
    Type("987\r");
    EXPECT_EQ(frmLCC.msgLaying.Text(1, 1), "987");
    Press(Qt::Key_Escape);
    EXPECT_NE(wLaying[1], 987.0); // as Cancel does
    EXPECT_FALSE(frmLCC.fraLaying.Visible || QApplication::activePopupWidget());
    EXPECT_TRUE(List->hasFocus());

    ShowResults();
    frmResults.sscDutypoint.Visible = true; // as with a pump curve
    const struct {
        int Page;
        CommandButton& Show;
        Frame& Pane;
        Control& First;
    } Panes[] = {{0, frmResults.sscDutypoint, frmResults.fraDuty, frmResults.hscDuty},
                 {0, frmResults.sscViewHydraulicTable, frmResults.fraTable, frmResults.msgHydraulic},
                 {1, frmResults.sscViewTable, frmResults.fraViewTable, frmResults.msgSystem}};
    for (const auto& [Page, Show, Pane, First] : Panes) {
        SCOPED_TRACE(Show.ToolTip);
        frmResults.sstResults.Tab = Page;
        FocusTarget(Show)->setFocus();
        Press(Qt::Key_Enter);
        EXPECT_TRUE(Pane.Visible && FocusTarget(First)->hasFocus());
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Pane.Visible);
    }
}

// The page stays. The box waits until the page, or the pane over it, is the right one.
TEST_F(SessionTest, ABoxThatFailsItsCheckGetsTheFocusOnceItShows)
{
    struct Case {
        TextBox& Box;
        int Page;
        Frame* Over; // a pane that stands over the box
    };
    const Case Cases[] = {{frmLCC.txtPPRWL, 0, nullptr},
                          {frmLCC.txtKsNew, 1, nullptr},
                          {frmLCC.txtWPeak, 2, nullptr},
                          {frmLCC.txtEnergyEscalation, 3, nullptr},
                          {frmLCC.txtDesigner, 0, &frmLCC.fraPumpDetails},
                          {frmLCC.txtKsOld, 1, &frmLCC.fraLaying}};
    for (const Case& Each : Cases) {
        SCOPED_TRACE(Each.Box.ToolTip);
        Start(1);
        frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
        frmLCC.optPumpDetails.Value = true;
        if (Each.Over) Each.Over->Visible = true;
        Each.Box.Text = "";
        const int Elsewhere = Each.Page == 1 ? 0 : 1;
        frmLCC.sstInput.Tab = Elsewhere;
        Press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(Saving.Messages.back().Title, "Error !");
        EXPECT_EQ(frmLCC.sstInput.Tab, Elsewhere);
        for (int Page = 0; Page < 4; ++Page) {
            Press(Qt::Key_Tab, Qt::ControlModifier);
            const bool Shows = frmLCC.sstInput.Tab == Each.Page && !Each.Over;
            EXPECT_EQ(FocusTarget(Each.Box)->hasFocus(), Shows) << frmLCC.sstInput.Tab;
        }
        if (!Each.Over) continue;
        frmLCC.sstInput.Tab = Each.Page;
        (Each.Page == 0 ? frmLCC.sscOK : frmLCC.sscCancelLaying).Click();
        EXPECT_TRUE(FocusTarget(Each.Box)->hasFocus());
    }
}

TEST_F(SessionTest, APumpPointThatFailsItsCheckIsReachedByItsButton)
{
    Start(1);
    frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
    frmLCC.optPumpDetails.Value = true;
    frmLCC.txtQ[4].Text = "";
    for (int Page : {0, 3}) {
        frmLCC.sstInput.Tab = Page;
        Press(Qt::Key_S, Qt::ControlModifier);
        frmLCC.sstInput.Tab = 0;
        EXPECT_TRUE(FocusTarget(frmLCC.sscPumpcurve)->hasFocus());
    }
    Press(Qt::Key_Space);
    EXPECT_TRUE(FocusTarget(frmLCC.txtQ[4])->hasFocus());
    frmLCC.sscOK.Click();
    frmLCC.sscPumpcurve.Click(); // no longer waited for
    EXPECT_FALSE(FocusTarget(frmLCC.txtQ[4])->hasFocus());
}

// The results begin with the focus on their tabs, which have no hint of their own.
TEST_F(SessionTest, TheHintOfAMenuGoesWithIt)
{
    ShowResults();
    QAction* const File = Main->menuBar()->actions().front();
    QTest::mouseClick(Main->menuBar(), Qt::LeftButton, {}, Main->menuBar()->actionGeometry(File).center());
    QCoreApplication::processEvents();
    QMenu* const Menu = File->menu();
    const QPoint Exit = Menu->actionGeometry(Menu->actions().back()).center();
    QTest::mouseMove(Menu, Exit);
    QCoreApplication::processEvents();
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Exit the program");
    QTest::mouseClick(Menu, Qt::LeftButton, {}, Exit);
    EXPECT_EQ(Saving.Messages.back().Text, "Are you sure you want to quit ?");
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "");
}

// No minus sign passes the filters, nor does one with Alt.
TEST_F(SessionTest, ACellKeepsWhatItsEditorShows)
{
    TypeIntoProfile("52");
    Press(Qt::Key_Minus, Qt::AltModifier);
    Press(Qt::Key_Left, Qt::ShiftModifier); // selects the 2
    Type("2");
    QWidget* const Cells = QApplication::focusWidget()->parentWidget();
    QTest::mouseClick(Cells, Qt::MiddleButton, {}, Cells->rect().center());
    EXPECT_FALSE(frmLCC.txtCell.Visible);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 1), "52");
}

} // namespace
} // namespace velorix
