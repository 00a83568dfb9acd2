// The whole program under a user's hands: its window, its dialogs and its grids, by keyboard.
#include "desktop/Binding.h"
#include "desktop/DialogLayouts.h"
#include "desktop/MainWindowTest.h"
#include "model/ProjectFile.h"
#include "screens/Dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QTemporaryDir>
#include <QTimer>

namespace velorix {
namespace {

// Answers the save dialog with a path, the dialog of a new project with its keys for a pumping system, and
// every question with No.
class SavingPlatform : public NotingPlatform {
public:
    std::filesystem::path Target;

    std::optional<std::filesystem::path> AskFileToSave(const FileDialog&) override { return Target; }

    void ShowModal(Screen& Shown) override
    {
        QTimer::singleShot(0, [&Shown] {
            QWidget* const Dialog = QApplication::activeModalWidget();
            if (!QTest::qWaitForWindowActive(Dialog)) return Shown.CloseByFrame();
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
        QWidget* const Now =
            QApplication::focusWidget(); // the press may have moved the focus, or shown a dialog
        if (Now) QTest::keyRelease(Now, Key, Held);
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

    void StartPumpingProject()
    {
        Press(Qt::Key_N, Qt::ControlModifier);
        Main->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Main.get()));
    }

    // A row from its first column on, each cell left by the arrow; Enter ends the last one.
    void TypeRow(const std::vector<QString>& Cells)
    {
        for (std::size_t Col = 0; Col < Cells.size(); ++Col) {
            Type(Cells[Col]);
            if (Col + 1 < Cells.size()) Press(Qt::Key_Right);
        }
    }

    void FillGeneralPage()
    {
        Fill(frmLCC.txtProject, "Ridge main");
        Fill(frmLCC.txtDesigner, "M. Naidoo");
        Fill(frmLCC.txtPFlowrate, "35");
        Fill(frmLCC.txtPPRWL, "1201.5");
        Fill(frmLCC.txtPERWL, "1260");
        Fill(frmLCC.txtPumpOperatingFlowrate, "150");
    }

    SavingPlatform Saving;
    QTemporaryDir Folder;
};

TEST_F(SessionTest, WhatIsTypedFromNothingIsWhatTheFileHolds)
{
    StartPumpingProject();
    EXPECT_EQ(MDIProject.lblSystem.Caption.Get(), "Pumping system");
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.txtProject));
    FillGeneralPage();

    Press(Qt::Key_Tab, Qt::ControlModifier);
    FocusTarget(frmLCC.msgProfile)->setFocus();
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
    EXPECT_EQ(Stored.TRWL, Single(1201.5));
    EXPECT_EQ(Stored.PumpOperatingFlowrate, Single(150));
    EXPECT_EQ(Stored.Elevation[2], Single(1215));
    EXPECT_EQ(Stored.Elevation[3], Single(1258.25));
    EXPECT_EQ(Stored.AccLength[3], Single(900));
    EXPECT_EQ(Stored.Diameter[3], Single(300)); // copied from the row before
    EXPECT_EQ(Stored.Elevation[4], Single(UnusedNode));
    EXPECT_EQ(Main->windowTitle(), "  Velorix (Ridge main)");
}

TEST_F(SessionTest, ANewProjectOverAnOpenCellStartsCleanAtItsName)
{
    Press(Qt::Key_Tab, Qt::ControlModifier);
    FocusTarget(frmLCC.msgProfile)->setFocus();
    Type("12");
    EXPECT_TRUE(frmLCC.txtCell.Visible);
    StartPumpingProject();
    EXPECT_FALSE(frmLCC.txtCell.Visible);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 1), "0");
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.txtProject));
    EXPECT_EQ(Saved, 1);
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
    Press(Qt::Key_Tab, Qt::ControlModifier);
    FocusTarget(frmLCC.msgProfile)->setFocus();
    Type("77");
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from a dialog, with the cell's editor closed
    EXPECT_EQ(QApplication::focusWidget(), FocusTarget(frmLCC.msgProfile));

    frmLCC.txtDiscountRate.Text = "";
    Saving.SetFocus(frmLCC.txtDiscountRate); // on a page that doesn't show
    EXPECT_FALSE(FocusTarget(frmLCC.txtDiscountRate)->hasFocus());
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3);
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), frmLCC.txtDiscountRate.ToolTip);
}

// No minus sign passes the filters, nor does one with Alt.
TEST_F(SessionTest, ACellKeepsWhatItsEditorShows)
{
    Press(Qt::Key_Tab, Qt::ControlModifier);
    FocusTarget(frmLCC.msgProfile)->setFocus();
    Type("52");
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
