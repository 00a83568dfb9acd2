// The help: the file that is shipped, and the window that shows it.
#include "desktop/DialogLayouts.h"
#include "desktop/HelpWindow.h"
#include "desktop/MainWindowTest.h"
#include "screens/Dialogs.h"
#include "screens/Print.h"

#include <set>

namespace velorix {
namespace {

std::vector<HelpTopic> ShippedTopics()
{
    QFile File(HELP_FILE);
    EXPECT_TRUE(File.open(QIODevice::ReadOnly));
    return HelpTopicsIn(QString::fromUtf8(File.readAll()));
}

class TopicPlatform : public NotingPlatform {
public:
    std::vector<int> Asked;

    void ShowHelp(const std::filesystem::path&, int Topic) override { Asked.push_back(Topic); }
};

class HelpTest : public MainWindowTest {};

TEST_F(HelpTest, EveryHelpCommandAndEveryLinkFindsItsTopic)
{
    TopicPlatform Topics;
    InstallPlatform(&Topics);
    for (const Screen* Each : AllScreens())
        for (Control* Command : Each->Controls) {
            if (!Command->ToolTip.starts_with("Help")) continue;
            if (auto* Button = dynamic_cast<CommandButton*>(Command)) Button->Click();
            if (auto* Entry = dynamic_cast<MenuItem*>(Command)) Entry->Click();
        }
    const std::set<int> Asked(Topics.Asked.begin(), Topics.Asked.end());
    EXPECT_EQ(Asked.size(), 14U);
    const std::vector<HelpTopic> Shipped = ShippedTopics();
    std::set<int> Numbers;
    for (const HelpTopic& Each : Shipped) EXPECT_TRUE(Numbers.insert(Each.Number).second) << Each.Number;
    for (const int Each : Asked) EXPECT_TRUE(Numbers.count(Each)) << Each;

    static const QRegularExpression Link("\\]\\(#(\\d*)\\)");
    for (const HelpTopic& Each : Shipped)
        for (auto Found = Link.globalMatch(Each.Text); Found.hasNext();) {
            const QString Number = Found.next().captured(1);
            EXPECT_TRUE(Numbers.count(Number.toInt())) << Each.Number << ": " << Number.toStdString();
        }
}

TEST_F(HelpTest, EveryPictureOfTheTextShows)
{
    HelpWindow Window(ShippedTopics(), Main.get());
    QTextDocument& Text = *Window.findChild<QTextBrowser*>()->document();
    qsizetype Pictures = 0;
    for (const HelpTopic& Topic : ShippedTopics()) {
        Window.ShowTopic(Topic.Number);
        const qsizetype Told = Topic.Text.count("![");
        EXPECT_EQ(Text.toRawText().count(QChar::ObjectReplacementCharacter), Told) << Topic.Number;
        Pictures += Told;
        for (const QTextFormat& Each : Text.allFormats()) {
            if (!Each.isImageFormat()) continue;
            const QUrl Name = Each.toImageFormat().name();
            EXPECT_GT(Text.resource(QTextDocument::ImageResource, Name).value<QImage>().width(), 0)
                << Topic.Number << ": " << Name.toString().toStdString();
        }
    }
    EXPECT_EQ(Pictures, 3);
}

// Those without a help button ask for that of the dialog behind them, else for topic 5000.
TEST_F(HelpTest, F1AsksForTheHelpOfADialog)
{
    TopicPlatform Topics;
    InstallPlatform(&Topics);
    RegisterDialogs(Topics);
    const auto OpenAnd = [&](Screen& Shown, const std::function<void()>& Do) {
        QTimer::singleShot(0, Main.get(), [&] {
            Do();
            Shown.Unload();
        });
        Topics.ShowModal(Shown);
    };
    const auto PressF1 = [] {
        QWidget* const Dialog = QApplication::activeModalWidget();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Dialog; }));
        QTest::keyClick(Dialog->focusWidget() ? Dialog->focusWidget() : Dialog, Qt::Key_F1);
    };
    OpenAnd(frmAbout, PressF1);
    OpenAnd(frmPref, PressF1);
    OpenAnd(frmPrint, [&] { OpenAnd(frmSelectYear, PressF1); });
    EXPECT_EQ(Topics.Asked, (std::vector<int>{5000, 4000, 4500}));
}

class HelpWindowTest : public DesktopTest {
protected:
    HelpWindowTest()
    {
        Host->show();
        Window->show();
        Window->ShowTopic(30);
    }

    QString Shown() const { return Window->findChild<QTextBrowser*>()->toPlainText(); }
    QListWidget& List() const { return *Window->findChild<QListWidget*>(); }
    QStringList Listed() const
    {
        QStringList Titles;
        for (int Row = 0; Row < List().count(); ++Row)
            if (!List().item(Row)->isHidden()) Titles.push_back(List().item(Row)->text());
        return Titles;
    }

    QToolButton* Tool(const QString& Name) const
    {
        for (QToolButton* Each : Window->findChildren<QToolButton*>())
            if (Each->accessibleName() == Name) return Each;
        return nullptr;
    }

    void Search(const QString& Words) { Window->findChild<QLineEdit*>()->setText(Words); }

    HelpWindow* const Window = new HelpWindow(
        HelpTopicsIn("lost\n# Contents {#10}\nStart here.\n# Pipe laying {#20}\nTrench and bedding.\n"
                     "# Energy {#30}\nPeak hours. See [laying](#20).\n"),
        Host.get());
};

TEST_F(HelpWindowTest, LinksAndChoicesAreStepsThatCanBeTakenBack)
{
    EXPECT_TRUE(Shown().contains("Peak hours"));
    emit Window->findChild<QTextBrowser*>()->anchorClicked(QUrl("#20"));
    EXPECT_TRUE(Shown().contains("Trench"));
    List().setCurrentRow(0);
    EXPECT_TRUE(Shown().startsWith("Contents"));

    QToolButton* const Back = Tool("Back");
    QToolButton* const Forward = Tool("Forward");
    EXPECT_FALSE(Forward->isEnabled());
    Back->click();
    Back->click();
    EXPECT_TRUE(Shown().contains("Peak hours"));
    EXPECT_EQ(List().currentRow(), 2);
    EXPECT_FALSE(Back->isEnabled());
    Forward->click();
    EXPECT_TRUE(Shown().contains("Trench"));
    Window->ShowTopic(99); // no such topic
    EXPECT_TRUE(Shown().startsWith("Contents"));
    EXPECT_FALSE(Forward->isEnabled()); // a new way
}

// Words that begin with what is typed come first, those of a title before those of a text; within words it is
// sought only when none begins so. The topic that shows stays if it is among the found, else the best comes.
TEST_F(HelpWindowTest, ASearchListsTheTopicsThatHoldAllWordsAndMarksThem)
{
    const QStringList All = {"Contents", "Pipe laying", "Energy"};
    const struct {
        const char* Typed;
        QStringList Titles;
        const char* Shows;
        int Marks;
    } Cases[] = {{"bedding TRENCH", {"Pipe laying"}, "Trench", 2},
                 {"p", {"Pipe laying", "Energy"}, "Peak", 1},
                 {"e", {"Energy", "Contents", "Pipe laying"}, "Peak", 1}, // Contents, Pipe, Energy, See
                 {"ta", {"Contents"}, "Start", 1},
                 {"la", {"Pipe laying", "Energy"}, "Peak", 1},
                 {"b", {"Pipe laying"}, "bedding", 1},
                 {"nowhere", {}, "Peak", 0}};
    for (const auto& [Typed, Titles, Shows, Marks] : Cases) {
        Search("");
        EXPECT_EQ(Listed(), All);
        Window->ShowTopic(30);
        Search(Typed);
        EXPECT_EQ(Listed(), Titles) << Typed;
        EXPECT_TRUE(Shown().contains(Shows)) << Typed;
        EXPECT_EQ(Window->findChild<QTextBrowser*>()->extraSelections().size(), Marks) << Typed;
    }
    Search("bedding");
    Window->ShowTopic(30); // asked for by a command: the search is over
    EXPECT_EQ(Listed(), All);
}

} // namespace
} // namespace velorix
