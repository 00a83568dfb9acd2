// What holds of every screen's layout: nothing is missing, nameless, clipped or out of the keyboard's reach.
#include "analysis/AnalyseDialog.h"
#include "analysis/Program.h"
#include "desktop/Binding.h"
#include "desktop/DesktopTest.h"
#include "desktop/DialogLayouts.h"
#include "desktop/MainWindowLayout.h"
#include "desktop/Style.h"
#include "project/Session.h"
#include "project/WorkingSet.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "shell/MainCommands.h"
#include "shell/Shell.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <set>

namespace velorix {
namespace {

using testing::IsEmpty;

bool IsInteractive(const Control* Each)
{
    return dynamic_cast<const TextBox*>(Each) || dynamic_cast<const ComboBox*>(Each) ||
           dynamic_cast<const OptionButton*>(Each) || dynamic_cast<const CommandButton*>(Each) ||
           dynamic_cast<const ScrollBar*>(Each) || dynamic_cast<const Grid*>(Each) ||
           dynamic_cast<const DatePicker*>(Each) || dynamic_cast<const TabControl*>(Each);
}

std::string SpokenName(QWidget* Widget)
{
    return QAccessible::queryAccessibleInterface(Widget)->text(QAccessible::Name).toStdString();
}

// Tells a widget apart in a message.
std::string Describe(const QWidget* Widget)
{
    return std::string(Widget->metaObject()->className()) + " \"" + Widget->accessibleName().toStdString() +
           "\" " + Widget->toolTip().toStdString();
}

// The hints of the controls that have no widget in the window, or whose widget has no name of its own.
std::vector<std::string> Missing(const Screen& Shown, const QWidget& Window)
{
    std::vector<std::string> Faults;
    for (const Control* Each : Shown.Controls) {
        if (!IsInteractive(Each)) continue;
        QWidget* const Widget = FocusTarget(*Each);
        if (!Widget || Widget->window() != &Window)
            Faults.push_back(Shown.Name + " doesn't show: " + Each->ToolTip);
        else if (SpokenName(Widget).empty())
            Faults.push_back(Shown.Name + " doesn't name: " + Each->ToolTip);
    }
    return Faults;
}

// What the layout has told the widget to need at least, else what it needs by itself.
QSize LeastSize(const QWidget* Widget)
{
    const QSize Told = Widget->minimumSize();
    const QSize Own = Widget->minimumSizeHint();
    return {Told.width() > 0 ? Told.width() : Own.width(), Told.height() > 0 ? Told.height() : Own.height()};
}

bool MayBeShortened(const QWidget* Widget)
{
    return Widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

// The visible widgets that have less room than they need, lie over a neighbour, or need scrolling.
std::vector<std::string> Clipped(const QWidget& Window)
{
    std::vector<std::string> Faults;
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!Each->isVisibleTo(&Window) || MayBeShortened(Each)) continue;
        if (qobject_cast<const QAbstractSpinBox*>(Each->parent())) continue; // its parts are its own affair
        const QSize Needed = LeastSize(Each);
        if (Each->width() < Needed.width() || Each->height() < Needed.height())
            Faults.push_back("too small: " + Describe(Each));
        if (const auto* Label = qobject_cast<const QLabel*>(Each); Label && !Label->text().isEmpty())
            if (!Label->wordWrap() && Label->width() < Label->sizeHint().width())
                Faults.push_back("cut text: " + Label->text().toStdString());
        if (const auto* Area = qobject_cast<const QScrollArea*>(Each))
            if (Area->verticalScrollBar()->maximum() > 0 || Area->horizontalScrollBar()->maximum() > 0)
                Faults.push_back("page scrolls by " + std::to_string(Area->verticalScrollBar()->maximum()));
    }
    return Faults;
}

// The enabled controls of a screen that its window shows at present.
std::set<QWidget*> Reachable(const Screen& Shown, const QWidget& Window)
{
    std::set<QWidget*> Found;
    for (const Control* Each : Shown.Controls) {
        QWidget* const Widget = IsInteractive(Each) ? FocusTarget(*Each) : nullptr;
        if (!Widget || !Widget->isVisibleTo(&Window) || !Widget->isEnabled()) continue;
        const auto* const Option = qobject_cast<QRadioButton*>(Widget);
        if (Option && !Option->isChecked()) continue; // the arrows go from the chosen option to the others
        Found.insert(Widget->focusProxy() ? Widget->focusProxy() : Widget);
    }
    return Found;
}

// Presses Tab until the focus has been all around, and gives the widgets in the order of their visit.
std::vector<QWidget*> TabRound(QWidget& Window)
{
    constexpr int More = 500; // than any screen has
    std::vector<QWidget*> Visited;
    for (int Press = 0; Press < More; ++Press) {
        QWidget* const Now = Window.focusWidget();
        if (Visited.size() > 1 && Now == Visited.front()) break;
        if (Now && (Visited.empty() || Now != Visited.back()))
            Visited.push_back(Now); // a date has three parts
        QTest::keyClick(Now ? Now : &Window, Qt::Key_Tab);
    }
    return Visited;
}

const QGroupBox* CardOf(const QWidget* Widget)
{
    const QGroupBox* Card = nullptr;
    for (const QWidget* Each = Widget->parentWidget(); Each; Each = Each->parentWidget())
        if (const auto* Box = qobject_cast<const QGroupBox*>(Each)) Card = Box;
    return Card;
}

// Inside a card the focus goes down or to the right, never back.
std::vector<std::string> LeapsOfFocus(const std::vector<QWidget*>& Visited)
{
    std::vector<std::string> Faults;
    for (std::size_t Index = 1; Index < Visited.size(); ++Index) {
        const QWidget* const From = Visited[Index - 1];
        const QWidget* const To = Visited[Index];
        if (!CardOf(From) || CardOf(From) != CardOf(To)) continue;
        const QRect Old(From->mapToGlobal(QPoint(0, 0)), From->size());
        const QRect New(To->mapToGlobal(QPoint(0, 0)), To->size());
        if (New.top() < Old.bottom() && New.left() <= Old.left())
            Faults.push_back(Describe(From) + " -> " + Describe(To));
    }
    return Faults;
}

std::vector<std::string> Unvisited(const Screen& Shown, QWidget& Window)
{
    const std::vector<QWidget*> Visited = TabRound(Window);
    std::vector<std::string> Faults = LeapsOfFocus(Visited);
    for (QWidget* Each : Reachable(Shown, Window))
        if (std::find(Visited.begin(), Visited.end(), Each) == Visited.end())
            Faults.push_back("Tab doesn't reach " + Describe(Each));
    return Faults;
}

// Letters that press more than one of the visible buttons and menus.
std::vector<std::string> SharedMnemonics(const QMainWindow& Window)
{
    std::multiset<QString> Letters;
    const auto Note = [&Letters](const QString& Caption) {
        const QString Key = QKeySequence::mnemonic(Caption).toString();
        if (!Key.isEmpty()) Letters.insert(Key);
    };
    for (const QAction* Each : Window.menuBar()->actions())
        if (Each->isVisible()) Note(Each->text());
    for (const auto* Each : Window.findChildren<QAbstractButton*>())
        if (Each->isVisibleTo(&Window)) Note(Each->text());
    std::vector<std::string> Faults;
    for (const QString& Each : Letters)
        if (Letters.count(Each) > 1) Faults.push_back(Each.toStdString());
    return Faults;
}

class LayoutsTest : public DesktopTest {
protected:
    LayoutsTest()
    {
        ApplyStyle(*static_cast<QApplication*>(QApplication::instance()));
        ConnectScreens();
        Main = std::make_unique<MainWindow>();
        MainWindowLoads();
        StartSession();
        Main->resize(800, 600);
        Main->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Main.get()));
    }

    ~LayoutsTest() override
    {
        for (Screen* Each : std::initializer_list<Screen*>{&MDIProject, &frmLCC, &frmResults}) Each->Unload();
        ResetSession();
    }

    void StartProject(std::int16_t SystemType)
    {
        wSystemType = SystemType;
        NewProjectDefaults();
        ShowChanges();
    }

    void ShowChanges() { QCoreApplication::processEvents(); }

    // Everything that must hold of what the window shows now.
    void Examine(const Screen& Shown, const std::string& State)
    {
        ShowChanges();
        EXPECT_THAT(Clipped(*Main), IsEmpty()) << State;
        EXPECT_THAT(Unvisited(Shown, *Main), IsEmpty()) << State;
        EXPECT_THAT(SharedMnemonics(*Main), IsEmpty()) << State;
    }

    void ExaminePages(const std::string& Kind)
    {
        for (int Page = 0; Page < static_cast<int>(frmLCC.sstInput.TabCaptions.size()); ++Page) {
            if (!frmLCC.sstInput.TabVisible.Get().at(static_cast<std::size_t>(Page))) continue;
            frmLCC.sstInput.Tab = Page;
            Examine(frmLCC, Kind + ", page " + std::to_string(Page));
        }
        frmLCC.sstInput.Tab = 0;
    }

    std::unique_ptr<MainWindow> Main;
};

TEST_F(LayoutsTest, EveryControlOfTheMainWindowHasAWidgetWithAName)
{
    EXPECT_THAT(Missing(MDIProject, *Main), IsEmpty());
    EXPECT_THAT(Missing(frmLCC, *Main), IsEmpty());
    EXPECT_THAT(Missing(frmResults, *Main), IsEmpty());
}

TEST_F(LayoutsTest, TheInputScreenOfAGravitySystemFits)
{
    StartProject(0);
    ExaminePages("fixed demand");
    frmLCC.optGCalculatedFlowrate.Value = true;
    frmLCC.optMortar.Value = true;
    ExaminePages("varying demand, mortar");
}

TEST_F(LayoutsTest, TheInputScreenOfAPumpingSystemFits)
{
    StartProject(1);
    ExaminePages("fixed demand, flow rate");
    frmLCC.optPumpVarying.Value = true;
    ExaminePages("varying demand, flow rate");
    frmLCC.optPumpDetails.Value = true;
    ExaminePages("varying demand, pump curve");
}

TEST_F(LayoutsTest, APaneStandsInForItsPageAndTakesTheFocus)
{
    StartProject(1);
    frmLCC.fraPumpDetails.Visible = true;
    Examine(frmLCC, "pump details");
    EXPECT_FALSE(FocusTarget(frmLCC.txtProject)->isVisible());
    frmLCC.fraPumpDetails.Visible = false;
    EXPECT_TRUE(FocusTarget(frmLCC.txtProject)->isVisible());

    frmLCC.sstInput.Tab = 1;
    frmLCC.fraLaying.Visible = true;
    EXPECT_TRUE(FocusTarget(frmLCC.msgLaying)->hasFocus());
    Examine(frmLCC, "laying");
    EXPECT_FALSE(FocusTarget(frmLCC.msgProfile)->isVisible());
    frmLCC.fraLaying.Visible = false;
    EXPECT_TRUE(FocusTarget(frmLCC.msgProfile)->isVisible());
}

TEST_F(LayoutsTest, KeysTurnThePagesFromAnyField)
{
    StartProject(0);
    frmLCC.sstInput.Tab = 1;
    QWidget* const List = FocusTarget(frmLCC.comElevationUnits);
    List->setFocus();
    QTest::keyClick(List, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3); // a gravity system has no energy page
    QTest::keyClick(Main.get(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 1);
}

TEST_F(LayoutsTest, OneScreenStandsAtATime)
{
    QWidget* const Input = FocusTarget(frmLCC.sstInput);
    QWidget* const Results = FocusTarget(frmResults.sstResults);
    EXPECT_TRUE(Input->isVisible());
    frmResults.LoadHidden();
    frmLCC.Visible = false;
    EXPECT_FALSE(Input->isVisible() || Results->isVisible());
    frmResults.Visible = true;
    EXPECT_TRUE(Results->isVisible());
    for (int Page : {0, 2}) {
        frmResults.sstResults.Tab = Page;
        Examine(frmResults, "results, page " + std::to_string(Page));
    }
    QTest::keyClick(Results, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier); // no hidden page comes up
    EXPECT_EQ(frmResults.sstResults.Tab, 0);
}

TEST_F(LayoutsTest, DialogsAreCompleteAndFit)
{
    const std::pair<Screen*, QDialog* (*)(QWidget*)> Dialogs[] = {
        {&frmAgree, AgreeDialog},      {&frmIntro, IntroDialog},         {&frmLCCType, LccTypeDialog},
        {&frmPref, PreferencesDialog}, {&frmDeleteRow, DeleteRowDialog}, {&frmDisclaimer, DisclaimerDialog},
        {&frmAbout, AboutDialog}};
    for (const auto& [Shown, Make] : Dialogs) {
        Shown->LoadHidden();
        const std::unique_ptr<QDialog> Dialog(Make(Main.get()));
        Dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Dialog.get()));
        EXPECT_THAT(Missing(*Shown, *Dialog), IsEmpty());
        EXPECT_THAT(Clipped(*Dialog), IsEmpty()) << Shown->Name;
        EXPECT_THAT(Unvisited(*Shown, *Dialog), IsEmpty()) << Shown->Name;
        EXPECT_LE(Dialog->width(), 800) << Shown->Name;
        EXPECT_LE(Dialog->height(), 560) << Shown->Name;
        Shown->Unload();
    }
}

TEST_F(LayoutsTest, AnyKeyEndsTheOpeningOfTheAnalysis)
{
    frmAnalyse.LoadHidden();
    const std::unique_ptr<QDialog> Dialog(AnalyseDialog(Main.get()));
    Dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog.get()));
    QWidget* const Analyse = FocusTarget(frmAnalyse.sscAnalyse);
    EXPECT_FALSE(Analyse->isVisible());
    QTest::keyClick(Dialog->focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(Dialog->isVisible());
    EXPECT_TRUE(Analyse->isVisible());
    EXPECT_EQ(Dialog->focusWidget(), Analyse);
    EXPECT_THAT(Missing(frmAnalyse, *Dialog), IsEmpty());
    EXPECT_THAT(Clipped(*Dialog), IsEmpty());
    frmAnalyse.Unload();
}

TEST_F(LayoutsTest, EveryDrawingCanBeDrawn)
{
    const QStringList Names = QDir(":/icons").entryList();
    EXPECT_FALSE(Names.isEmpty());
    for (const QString& Each : Names)
        EXPECT_TRUE(QSvgRenderer(":/icons/" + Each).isValid()) << Each.toStdString();
}

// Contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines define it.
double Contrast(const QColor& One, const QColor& Other)
{
    const auto Luminance = [](const QColor& Value) {
        const auto Linear = [](double Part) {
            return Part <= 0.04045 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * Linear(Value.redF()) + 0.7152 * Linear(Value.greenF()) +
               0.0722 * Linear(Value.blueF());
    };
    const double A = Luminance(One);
    const double B = Luminance(Other);
    return (std::max(A, B) + 0.05) / (std::min(A, B) + 0.05);
}

// 4.5 is what the guidelines ask of text of ordinary size.
TEST(StyleTest, TextIsLegibleOnLightAndOnDarkDesktops)
{
    const QPalette Before = QApplication::palette();
    for (const bool Dark : {false, true}) {
        QApplication::setPalette(QPalette(QColor(Dark ? "#202020" : "#efefef")));
        ApplyStyle(*static_cast<QApplication*>(QApplication::instance()));
        ASSERT_EQ(Colors().Dark, Dark);
        for (const QColor& Surface : {Colors().Window, Colors().Card, Colors().Field}) {
            EXPECT_GE(Contrast(Colors().Ink, Surface), 4.5);
            EXPECT_GE(Contrast(Colors().Muted, Surface), 4.5);
            EXPECT_GE(Contrast(Colors().Accent, Surface), 4.5);
        }
        EXPECT_GE(Contrast(Colors().Ink, Colors().Button), 4.5);
    }
    QApplication::setPalette(Before);
}

} // namespace
} // namespace velorix
