// The services of the window system, with the boxes and dialogs that a user would see.
#include "desktop/QtPlatform.h"

#include "desktop/DesktopTest.h"
#include "desktop/Views.h"

#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

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
    QtPlatformTest() { InstallPlatform(&Windows); }
    ~QtPlatformTest() override { InstallPlatform(nullptr); }

    // Does something to the next window that stands above all others.
    template <typename Widget, typename Action>
    void WithTopWindow(Action Do)
    {
        QTimer::singleShot(0, qApp, [Do] {
            auto* const Top = qobject_cast<Widget*>(QApplication::activeModalWidget());
            ASSERT_TRUE(Top);
            Do(*Top);
        });
    }

    QtPlatform Windows;
};

class MessageBoxTest : public QtPlatformTest {
protected:
    Answer AnswerBy(Qt::Key Key, MessageButtons Buttons)
    {
        WithTopWindow<QMessageBox>([Key](QMessageBox& Box) { QTest::keyClick(&Box, Key); });
        return Windows.Show({.Text = "Text", .Buttons = Buttons});
    }
};

TEST_F(MessageBoxTest, EscapeIsTheAnswerThatChangesNothing)
{
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::Ok), Answer::Ok);
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::YesNo), Answer::No);
    EXPECT_EQ(AnswerBy(Qt::Key_Escape, MessageButtons::RetryCancel), Answer::Cancel);
    EXPECT_EQ(AnswerBy(Qt::Key_Return, MessageButtons::YesNo), Answer::Yes);
    EXPECT_EQ(AnswerBy(Qt::Key_Return, MessageButtons::RetryCancel), Answer::Retry);
}

TEST_F(MessageBoxTest, ShowsItsTextAsItStandsAndWithThePlainPointer)
{
    Windows.SetPointer(PointerShape::Hourglass);
    WithTopWindow<QMessageBox>([](QMessageBox& Box) {
        EXPECT_EQ(Box.text(), "<b>file</b>");
        EXPECT_EQ(Box.textFormat(), Qt::PlainText);
        EXPECT_EQ(Box.windowTitle(), "Error !");
        EXPECT_EQ(Box.icon(), QMessageBox::Warning);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        Box.accept();
    });
    Windows.Show({.Text = "<b>file</b>", .Title = "Error !"});
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    Windows.SetPointer(PointerShape::Cross);
    Windows.SetPointer(PointerShape::Default);
    Windows.SetPointer(PointerShape::Default);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

class ModalTest : public QtPlatformTest {
protected:
    ModalTest()
    {
        Windows.RegisterDialog(Small, [this](QWidget* Owner) {
            auto* const Dialog = new QDialog(Owner);
            auto* const Layout = new QVBoxLayout(Dialog);
            Layout->addWidget(View(Small.Name));
            Layout->addWidget(View(Small.Ok));
            return Dialog;
        });
        Small.Load = [this] { ++Loads; };
    }

    SmallScreen Small;
    int Loads = 0;
};

TEST_F(ModalTest, ReturnsOnceTheScreenIsHiddenAndFollowsItUntilThen)
{
    Small.Ok.Click = [this] { Small.Visible = false; };
    WithTopWindow<QDialog>([this](QDialog& Dialog) {
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
    EXPECT_EQ(Loads, 1);
}

TEST_F(ModalTest, TheFrameAndEscapeCloseTheScreenItsOwnWay)
{
    WithTopWindow<QDialog>([](QDialog& Dialog) { Dialog.close(); });
    Windows.ShowModal(Small);
    EXPECT_FALSE(Small.IsLoaded());

    int Closed = 0;
    Small.Close = [&] {
        if (++Closed == 2) Small.Unload(); // the first time it stays
    };
    WithTopWindow<QDialog>([](QDialog& Dialog) {
        QTest::keyClick(&Dialog, Qt::Key_Escape);
        EXPECT_TRUE(Dialog.isVisible());
        Dialog.close();
    });
    Windows.ShowModal(Small);
    EXPECT_EQ(Closed, 2);
    EXPECT_EQ(Loads, 2);
}

TEST_F(ModalTest, ADialogMayOpenAnotherAndGoBeforeIt)
{
    SmallScreen Second;
    Windows.RegisterDialog(Second, [](QWidget* Owner) { return new QDialog(Owner); });
    Small.Ok.Click = [&] {
        Small.Visible = false;
        WithTopWindow<QDialog>([](QDialog& Dialog) { Dialog.close(); });
        System().ShowModal(Second);
        Small.Unload();
    };
    WithTopWindow<QDialog>([](QDialog& Dialog) { Dialog.findChild<QPushButton*>()->click(); });
    Windows.ShowModal(Small);
    EXPECT_FALSE(Small.IsLoaded());
    EXPECT_FALSE(Second.IsLoaded());
}

TEST_F(ModalTest, AScreenWithoutADialogIsAFailureAndTheEndOfTheProgramEndsDialogs)
{
    SmallScreen Unknown;
    EXPECT_THROW(Windows.ShowModal(Unknown), std::logic_error);
    EXPECT_FALSE(Unknown.IsLoaded());

    QTimer::singleShot(0, qApp, [this] {
        WithTopWindow<QDialog>([this](QDialog&) { Windows.EndProgram(); });
        Windows.ShowModal(Small);
    });
    EXPECT_FALSE(Windows.HasEnded());
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(Windows.HasEnded());
}

class FileDialogTest : public QtPlatformTest {
protected:
    void SetUp() override { ASSERT_TRUE(Folder.isValid()); }

    std::filesystem::path Projects() const
    {
        return std::filesystem::path(Folder.path().toStdString()) / "Projects";
    }

    FileDialog Asked() const
    {
        return {.Title = "Save Project As",
                .Folder = Projects(),
                .Filter = "All files (*.*)|*.*|Projects|*.vlx;*.old",
                .FilterIndex = 2,
                .OverwritePrompt = true};
    }

    QTemporaryDir Folder;
};

TEST_F(FileDialogTest, StartsInItsFolderAndAddsTheExtension)
{
    WithTopWindow<QFileDialog>([this](QFileDialog& Dialog) {
        EXPECT_EQ(Dialog.windowTitle(), "Save Project As");
        EXPECT_EQ(Dialog.directory().path().toStdString(), Projects().string());
        EXPECT_EQ(Dialog.selectedNameFilter(), "Projects (*.vlx *.old)");
        Dialog.findChild<QLineEdit*>()->setText("main°");
        QTest::keyClick(Dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_THAT(Windows.AskFileToSave(Asked()), Optional(Eq(Projects() / "main°.vlx")));
    EXPECT_TRUE(std::filesystem::is_directory(Projects()));
}

TEST_F(FileDialogTest, AsksBeforeItOverwritesAndCancelGivesNothing)
{
    std::filesystem::create_directories(Projects());
    std::ofstream(Projects() / "old.vlx") << "x";
    bool AskedBack = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* const Dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(Dialog);
        QTimer::singleShot(0, qApp, [&] {
            auto* const Question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            AskedBack = Question != nullptr;
            if (Question) Question->reject();
        });
        Dialog->findChild<QLineEdit*>()->setText("old");
        QTest::keyClick(Dialog->findChild<QLineEdit*>(), Qt::Key_Return);
        EXPECT_TRUE(Dialog->isVisible());
        Dialog->reject();
    });
    EXPECT_EQ(Windows.AskFileToSave(Asked()), std::nullopt);
    EXPECT_TRUE(AskedBack);

    WithTopWindow<QFileDialog>([](QFileDialog& Dialog) {
        Dialog.findChild<QLineEdit*>()->setText("old.vlx");
        QTest::keyClick(Dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_THAT(Windows.AskFileToOpen(Asked()), Optional(Eq(Projects() / "old.vlx")));
}

TEST_F(FileDialogTest, FiltersKeepTheirNamesWithoutDoubledPatterns)
{
    EXPECT_EQ(NameFilters("Projects (*.vlx)|*.vlx|All|*.*"), QStringList({"Projects (*.vlx)", "All (*)"}));
    EXPECT_EQ(NameFilters(""), QStringList());
}

TEST_F(FileDialogTest, TheProgramsFolderIsBesideTheBinaryOrInTheSharedData)
{
    const std::filesystem::path Prefix = Folder.path().toStdString();
    const auto Binary = Prefix / "bin";
    std::filesystem::create_directories(Binary);
    EXPECT_EQ(ProgramFolderOf(Binary), Binary);
    std::filesystem::create_directories(Prefix / "share" / "velorix");
    EXPECT_EQ(ProgramFolderOf(Binary), Prefix / "share" / "velorix");
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
class FlaggingWidget : public QWidget {
public:
    int Paints = 0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        ++Paints;
        std::feraiseexcept(FE_INVALID);
    }
};

TEST_F(QtPlatformTest, RepaintPaintsAtOnceAndLeavesTheArithmeticFlagsAlone)
{
    FlaggingWidget Window;
    Window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window));
    const int Before = Window.Paints;
    std::feclearexcept(FE_ALL_EXCEPT);
    std::feraiseexcept(FE_OVERFLOW);
    Window.update();
    Windows.Repaint();
    EXPECT_GT(Window.Paints, Before);
    EXPECT_EQ(std::fetestexcept(FE_INVALID | FE_OVERFLOW), FE_OVERFLOW);
    std::feclearexcept(FE_ALL_EXCEPT);
}

TEST_F(QtPlatformTest, AMissingHelpFileIsAMessage)
{
    bool Told = false;
    WithTopWindow<QMessageBox>([&](QMessageBox& Box) {
        Told = Box.text().contains("nowhere.hlp");
        Box.accept();
    });
    Windows.ShowHelp("/nowhere.hlp", 1000);
    EXPECT_TRUE(Told);
}

} // namespace
} // namespace velorix
