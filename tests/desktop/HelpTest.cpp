// The help: the file that is shipped, and the window that shows it.
#include "desktop/DialogLayouts.h"
#include "desktop/HelpWindow.h"
#include "desktop/MainWindowTest.h"
#include "screens/ConverterScreen.h"
#include "screens/Dialogs.h"
#include "screens/ImportWizard.h"
#include "screens/Print.h"

#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFormat>
#include <QTimer>
#include <QToolButton>

#include <set>

namespace velorix {
namespace {

std::vector<HelpTopic> ShippedTopics()
{
    QFile File(HELP_FILE);
    EXPECT_TRUE(File.open(QIODevice::ReadOnly));
    return HelpTopicsIn(QString::fromUtf8(File.readAll()));
}

std::set<int> NumbersOf(const std::vector<HelpTopic>& Topics)
{
    std::set<int> Numbers;
    for (const HelpTopic& Each : Topics) EXPECT_TRUE(Numbers.insert(Each.Number).second) << Each.Number;
    return Numbers;
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
    const std::set<int> Numbers = NumbersOf(Shipped);
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
    const auto PressF1 = [](Screen& Shown) {
        QWidget* const Dialog = QApplication::activeModalWidget();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Dialog; })) << Shown.Name;
        QTest::keyClick(Dialog->focusWidget() ? Dialog->focusWidget() : Dialog, Qt::Key_F1);
    };
    const std::pair<Screen*, int> Cases[] = {{&frmAbout, 5000},  {&frmPref, 4000},      {&frmConverter, 8500},
                                             {&frmImport, 3030}, {&frmDeleteRow, 3060}, {&frmPrint, 4500}};
    for (const auto& [Shown, Topic] : Cases) {
        QTimer::singleShot(0, Main.get(), [&, Front = Shown] {
            PressF1(*Front);
            Front->Unload();
        });
        Topics.ShowModal(*Shown);
        EXPECT_EQ(Topics.Asked, std::vector<int>{Topic}) << Shown->Name;
        Topics.Asked.clear();
    }

    QTimer::singleShot(0, Main.get(), [&] {
        QTimer::singleShot(0, Main.get(), [&] {
            PressF1(frmSelectYear);
            frmSelectYear.Unload();
        });
        Topics.ShowModal(frmSelectYear);
        frmPrint.Unload();
    });
    Topics.ShowModal(frmPrint);
    EXPECT_EQ(Topics.Asked, std::vector<int>{4500});
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

    const QList<QToolButton*> Steps =
        Window->findChildren<QToolButton*>(QString(), Qt::FindChildrenRecursively);
    QToolButton* Back = nullptr;
    QToolButton* Forward = nullptr;
    for (QToolButton* Each : Steps) {
        if (Each->accessibleName() == "Back") Back = Each;
        if (Each->accessibleName() == "Forward") Forward = Each;
    }
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

TEST_F(HelpWindowTest, ASearchListsTheTopicsThatHoldAllWordsAndMarksThem)
{
    Search("bedding TRENCH");
    EXPECT_EQ(Listed(), QStringList{"Pipe laying"});
    EXPECT_TRUE(Shown().contains("Trench"));
    EXPECT_EQ(Window->findChild<QTextBrowser*>()->extraSelections().size(), 2);
    Window->ShowTopic(30); // asked for by a command: the search is over
    const QStringList All = {"Contents", "Pipe laying", "Energy"};
    EXPECT_EQ(Listed(), All);
    Search("bedding");
    Search("nowhere");
    EXPECT_TRUE(Shown().contains("Trench")); // what stood stays
    Search("");
    EXPECT_EQ(Listed(), All);
}

// The topic that shows, if its words begin so; else that with the most of them. Within words only when
// nothing begins so.
TEST_F(HelpWindowTest, WordsThatBeginWithWhatIsTypedComeFirst)
{
    Search("p"); // that of a title before those of a text
    EXPECT_EQ(Listed(), QStringList({"Pipe laying", "Energy"}));
    EXPECT_TRUE(Shown().contains("Peak"));
    Search("e"); // Contents, Pipe, Energy, See
    EXPECT_EQ(Listed(), QStringList({"Energy", "Contents", "Pipe laying"}));
    EXPECT_TRUE(Shown().contains("Peak"));
    EXPECT_EQ(Window->findChild<QTextBrowser*>()->extraSelections().size(), 1);
    Search("ta");
    EXPECT_EQ(Listed(), QStringList{"Contents"});
    EXPECT_EQ(Window->findChild<QTextBrowser*>()->extraSelections().size(), 1);
    Search("la");
    EXPECT_EQ(Listed(), QStringList({"Pipe laying", "Energy"}));
    List().setCurrentRow(1);
    EXPECT_TRUE(Shown().contains("Peak"));
    Search("b");
    EXPECT_TRUE(Shown().contains("bedding"));
}

} // namespace
} // namespace velorix
