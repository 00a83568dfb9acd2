// The services of the window system, with the boxes and dialogs that a user would see.
#include "desktop/QtPlatform.h"

#include "base/Failure.h"
#include "desktop/DesktopTest.h"
#include "desktop/Views.h"

#include <cfenv>
#include <fstream>

namespace velorix {
namespace {

using testing::Eq;
using testing::Optional;

struct SmallScreen : Screen {
    SmallScreen()
        : Screen("frmSmall", "  SMALL")
    {
        DesignEnds();
    }
    TextBox Name{"Enter the name"};
    CommandButton Ok{"&OK"};
};

class QtPlatformTest : public testing::Test {
protected:
    QtPlatformTest()
    {
        InstallPlatform(&Windows);
        Windows.RegisterDialog(Small, [this](QWidget* Owner) {
            auto* const Dialog = new QDialog(Owner);
            auto* const Layout = new QVBoxLayout(Dialog);
            Layout->addWidget(View(Small.Name));
            Layout->addWidget(View(Small.Ok));
            return Dialog;
        });
    }
    ~QtPlatformTest() override { InstallPlatform(nullptr); }

    Answer AnswerBy(Qt::Key Key, MessageButtons Buttons)
    {
        WithTopWindow<QMessageBox>([Key](QMessageBox& Box) { QTest::keyClick(&Box, Key); });
        return Windows.Show({.Text = "Text", .Buttons = Buttons});
    }

    QtPlatform Windows;
    SmallScreen Small;
    const QTemporaryDir Temporary;
    const std::filesystem::path Folder = Temporary.path().toStdString();
    const FileDialog Asked{.Title = "Save Project As",
                           .Folder = Folder / "Projects",
                           .Filter = "All files (*.*)|*.*|Projects|*.vlx;*.old",
                           .FilterIndex = 2,
                           .OverwritePrompt = true};
};

TEST_F(QtPlatformTest, EscapeIsTheAnswerThatChangesNothing)
{
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::Ok), Answer::Ok);
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::YesNo), Answer::No);
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::RetryCancel), Answer::Cancel);
    EXPECT_EQ(AnswerBy(Qt::Key_Return, MessageButtons::YesNo), Answer::Yes);
    EXPECT_EQ(AnswerBy(Qt::Key_Return, MessageButtons::RetryCancel), Answer::Retry);
}

TEST_F(QtPlatformTest, AMessageShowsItsTextAsItStandsAndWithThePlainPointer)
{
    Windows.SetPointer(PointerShape::Hourglass);
    WithTopWindow<QMessageBox>([](QMessageBox& Box) {
        EXPECT_EQ(Box.text(), "<b>file</b>");
        EXPECT_EQ(Box.textFormat(), Qt::PlainText);
        EXPECT_EQ(Box.windowTitle(), "Error !");
        EXPECT_EQ(Box.icon(), QMessageBox::Warning);
        EXPECT_EQ(Box.informativeText(), "<i>main</i>.vlx");
        for (const QLabel* Each : Box.findChildren<QLabel*>())
            EXPECT_TRUE(Each->text().isEmpty() || Each->textFormat() == Qt::PlainText)
                << Each->text().toStdString();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        Box.accept();
    });
    Windows.Show({.Text = "<b>file</b>", .Title = "Error !", .Detail = "<i>main</i>.vlx"});
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    for (PointerShape Each : {PointerShape::Cross, PointerShape::Default, PointerShape::Default})
        Windows.SetPointer(Each);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtPlatformTest, AModalScreenIsFollowedUntilItIsHidden)
{
    Small.Ok.Click = [this] { Small.Visible = false; };
    WithTopWindow([this](QDialog& Dialog) {
        EXPECT_EQ(Dialog.windowTitle(), "  SMALL");
        Small.Caption = "Big";
        EXPECT_EQ(Dialog.windowTitle(), "Big");
        Small.Enabled = false;
        EXPECT_FALSE(Dialog.isEnabled());
        Small.Enabled = true;
        QTest::keyClicks(Dialog.findChild<QLineEdit*>(), "Witklip");
        QTest::mouseClick(Dialog.findChild<QPushButton*>(), Qt::LeftButton);
    });
    Windows.ShowModal(Small);
    EXPECT_EQ(Small.Name.Text.Get(), "Witklip");
    EXPECT_TRUE(Small.IsLoaded()); // hidden, not unloaded
    Small.Name.Text = "and the record goes on without its view";
}

TEST_F(QtPlatformTest, TheFrameAndEscapeCloseAScreenItsOwnWay)
{
    int Closed = 0;
    Small.Close = [&] {
        if (++Closed == 3) Small.Unload(); // until then it stays
    };
    WithTopWindow([](QDialog& Dialog) {
        QTest::keyClick(&Dialog, Qt::Key_Escape);
        Dialog.close();
        EXPECT_TRUE(Dialog.isVisible());
        Dialog.close();
    });
    Windows.ShowModal(Small);
    EXPECT_EQ(Closed, 3);
}

TEST_F(QtPlatformTest, ADialogMayOpenAnotherAndGoBeforeIt)
{
    SmallScreen Second;
    Windows.RegisterDialog(Second, [](QWidget* Owner) { return new QDialog(Owner); });
    Small.Ok.Click = [&] {
        Small.Visible = false;
        WithTopWindow([](QDialog& Dialog) { Dialog.close(); });
        System().ShowModal(Second);
        Small.Unload();
    };
    WithTopWindow([](QDialog& Dialog) { Dialog.findChild<QPushButton*>()->click(); });
    Windows.ShowModal(Small);
    EXPECT_FALSE(Small.IsLoaded() || Second.IsLoaded());
}

TEST_F(QtPlatformTest, AScreenWithoutADialogIsAFailureAndTheEndOfTheProgramEndsDialogs)
{
    SmallScreen Unknown;
    EXPECT_THROW(Windows.ShowModal(Unknown), std::logic_error);
    EXPECT_FALSE(Unknown.IsLoaded());

    QTimer::singleShot(0, qApp, [this] {
        WithTopWindow([this](QDialog&) { Windows.EndProgram(); });
        Windows.ShowModal(Small);
    });
    EXPECT_FALSE(Windows.HasEnded());
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(Windows.HasEnded());
}

TEST_F(QtPlatformTest, AFatalFailureIsReportedBeforeItEndsTheProgram)
{
    Small.Ok.Click = [] { throw FatalFailure("row 2 of the paste"); };
    QTimer::singleShot(0, qApp, [this] {
        WithTopWindow([this](QDialog& Dialog) {
            WithTopWindow<QMessageBox>([this](QMessageBox& Box) {
                EXPECT_TRUE(Box.text().contains("row 2 of the paste"));
                EXPECT_FALSE(Windows.HasEnded());
                Box.accept();
            });
            Dialog.findChild<QPushButton*>()->click();
        });
        Windows.ShowModal(Small);
    });
    EXPECT_EQ(QApplication::exec(), EXIT_FAILURE);
    EXPECT_TRUE(Windows.HasEnded());
}

TEST_F(QtPlatformTest, AFileIsAskedForInItsFolderAndGetsTheExtension)
{
    WithTopWindow<QFileDialog>([this](QFileDialog& Dialog) {
        EXPECT_EQ(Dialog.windowTitle(), "Save Project As");
        EXPECT_EQ(Dialog.directory().path().toStdString(), Asked.Folder.string());
        EXPECT_EQ(Dialog.nameFilters(), QStringList({"All files (*)", "Projects (*.vlx *.old)"}));
        EXPECT_EQ(Dialog.selectedNameFilter(), "Projects (*.vlx *.old)");
        EnterFile(Dialog, "main°");
    });
    EXPECT_THAT(Windows.AskFileToSave(Asked), Optional(Eq(Asked.Folder / "main°.vlx")));
    EXPECT_EQ(NameFilters(""), QStringList());
}

TEST_F(QtPlatformTest, OverwritingIsAskedBackAndCancelGivesNothing)
{
    std::filesystem::create_directories(Asked.Folder);
    std::ofstream(Asked.Folder / "old.vlx") << "x";
    bool AskedBack = false;
    WithTopWindow<QFileDialog>([&](QFileDialog& Dialog) {
        WithTopWindow<QMessageBox>([&](QMessageBox& Question) {
            AskedBack = true;
            Question.reject();
        });
        EnterFile(Dialog, "old");
        EXPECT_TRUE(Dialog.isVisible());
        Dialog.reject();
    });
    EXPECT_EQ(Windows.AskFileToSave(Asked), std::nullopt);
    EXPECT_TRUE(AskedBack);

    WithTopWindow<QFileDialog>([](QFileDialog& Dialog) { EnterFile(Dialog, "old.vlx"); });
    EXPECT_THAT(Windows.AskFileToOpen(Asked), Optional(Eq(Asked.Folder / "old.vlx")));
}

TEST_F(QtPlatformTest, TheProgramsFolderIsBesideTheBinaryOrInTheSharedData)
{
    const std::filesystem::path Binary = Folder / "bin";
    EXPECT_EQ(ProgramFolderOf(Binary), Binary);
    std::filesystem::create_directories(Folder / "share" / "velorix");
    EXPECT_EQ(ProgramFolderOf(Binary), Folder / "share" / "velorix");
    std::filesystem::create_directories(Binary / "Projects");
    EXPECT_EQ(ProgramFolderOf(Binary), Binary);
}

TEST_F(QtPlatformTest, ClipboardLinesEndByCarriageReturnAndLineFeed)
{
    QApplication::clipboard()->setText("1\t2\n3\r\n4");
    EXPECT_EQ(Windows.ClipboardText(), "1\t2\r\n3\r\n4");
    Windows.SetClipboardText("45° bend");
    EXPECT_EQ(QApplication::clipboard()->text(), "45° bend");
}

// Painting may raise flags that a calculation would take for its own failure.
TEST_F(QtPlatformTest, RepaintWorksOffWhatIsDueAndLeavesTheArithmeticFlagsAlone)
{
    bool Painted = false;
    const auto Paint = [&] {
        Painted = true;
        std::feraiseexcept(FE_INVALID);
    };
    QMetaObject::invokeMethod(qApp, Paint, Qt::QueuedConnection);
    std::feclearexcept(FE_ALL_EXCEPT);
    std::feraiseexcept(FE_OVERFLOW);
    Windows.Repaint();
    EXPECT_TRUE(Painted);
    EXPECT_EQ(std::fetestexcept(FE_INVALID | FE_OVERFLOW), FE_OVERFLOW);
    std::feclearexcept(FE_ALL_EXCEPT);
}

TEST_F(QtPlatformTest, AMissingHelpFileIsAMessage)
{
    QString Told;
    WithTopWindow<QMessageBox>([&](QMessageBox& Box) {
        Told = Box.text();
        Box.accept();
    });
    Windows.ShowHelp("/nowhere.hlp", 1000);
    EXPECT_TRUE(Told.contains("nowhere.hlp"));
}

} // namespace
} // namespace velorix
