// What holds of every screen's layout: nothing is missing, nameless, clipped or out of the keyboard's reach.
#include "analysis/AnalyseDialog.h"
#include "desktop/DialogLayouts.h"
#include "desktop/MainWindowTest.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/ImportWizard.h"
#include "screens/RoughnessScreen.h"

#include <algorithm>
#include <map>
#include <set>

namespace velorix {
namespace {

bool IsInteractive(const Control* Each)
{
    return dynamic_cast<const TextBox*>(Each) || dynamic_cast<const ComboBox*>(Each) ||
           dynamic_cast<const OptionButton*>(Each) || dynamic_cast<const CommandButton*>(Each) ||
           dynamic_cast<const ScrollBar*>(Each) || dynamic_cast<const Grid*>(Each) ||
           dynamic_cast<const DatePicker*>(Each) || dynamic_cast<const TabControl*>(Each);
}

// Tells a widget apart in a message.
std::string Describe(const QWidget* Widget)
{
    return std::string(Widget->metaObject()->className()) + " \"" + Widget->accessibleName().toStdString() +
           "\" " + Widget->toolTip().toStdString();
}

// Every control has a widget in the window, and the widget a name of its own.
void ExpectAllThere(const Screen& Shown, const QWidget& Window)
{
    for (const Control* Each : Shown.Controls) {
        if (!IsInteractive(Each)) continue;
        QWidget* const Widget = FocusTarget(*Each);
        ASSERT_TRUE(Widget && Widget->window() == &Window) << Shown.Name << ": " << Each->ToolTip;
        const QString Name = QAccessible::queryAccessibleInterface(Widget)->text(QAccessible::Name);
        EXPECT_FALSE(Name.isEmpty()) << Shown.Name << ": " << Each->ToolTip;
    }
}

// Pressed by its widget, each button raises its own click.
void ExpectPressesTold(const Screen& Shown)
{
    for (Control* Each : Shown.Controls) {
        auto* const Button = dynamic_cast<CommandButton*>(Each);
        if (!Button) continue;
        Button->Enabled = true;
        const Handler Before = Button->Click;
        int Told = 0;
        Button->Click = [&Told] { ++Told; };
        static_cast<QAbstractButton*>(FocusTarget(*Button))->click();
        EXPECT_EQ(Told, 1) << Shown.Name << ": " << Button->Caption.Get() << Button->ToolTip;
        Button->Click = Before;
    }
}

// No visible widget has less room than it needs, and no page has to be scrolled.
void ExpectRoomForAll(const QWidget& Window)
{
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        const bool MayBeShortened = Each->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        if (!Each->isVisibleTo(&Window) || MayBeShortened) continue;
        if (qobject_cast<const QAbstractSpinBox*>(Each->parent())) continue; // its parts are its own affair
        // What the layout has told it to need at least, else what it needs by itself.
        const QSize Told = Each->minimumSize();
        const QSize Own = Each->minimumSizeHint();
        EXPECT_GE(Each->width(), Told.width() > 0 ? Told.width() : Own.width()) << Describe(Each);
        EXPECT_GE(Each->height(), Told.height() > 0 ? Told.height() : Own.height()) << Describe(Each);
        const auto* const Label = qobject_cast<const QLabel*>(Each);
        const bool CutsText = Label && !Label->wordWrap() && Label->width() < Label->sizeHint().width();
        EXPECT_FALSE(CutsText) << Label->text().toStdString();
        if (const auto* Area = qobject_cast<const QScrollArea*>(Each)) {
            EXPECT_EQ(Area->horizontalScrollBar()->maximum(), 0) << "pixels to scroll";
            EXPECT_EQ(Area->verticalScrollBar()->maximum(), 0) << "pixels to scroll";
        }
    }
}

// Presses Tab until the focus has been all around, and gives the widgets in the order of their visit.
std::vector<QWidget*> TabRound(QWidget& Window)
{
    constexpr int More = 500; // than any screen has
    std::vector<QWidget*> Visited;
    for (int Press = 0; Press < More; ++Press) {
        QWidget* const Now = Window.focusWidget();
        if (Visited.size() > 1 && Now == Visited.front()) break;
        if (Now) Visited.push_back(Now);
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

// Tab comes to every enabled control that shows. Inside a card it goes down or to the right, never back.
void ExpectTabsReach(const Screen& Shown, QWidget& Window)
{
    const std::vector<QWidget*> Visited = TabRound(Window);
    for (const Control* Each : Shown.Controls) {
        QWidget* const Widget = IsInteractive(Each) ? FocusTarget(*Each) : nullptr;
        if (!Widget || !Widget->isVisibleTo(&Window) || !Widget->isEnabled()) continue;
        const auto* const Option = qobject_cast<QRadioButton*>(Widget);
        if (Option && !Option->isChecked()) continue; // the arrows go from the chosen option to the others
        EXPECT_TRUE(std::count(Visited.begin(), Visited.end(), Widget) ||
                    std::count(Visited.begin(), Visited.end(), Widget->focusProxy()))
            << Describe(Widget);
    }
    for (std::size_t Index = 1; Index < Visited.size(); ++Index) {
        const QWidget* const From = Visited[Index - 1];
        const QWidget* const To = Visited[Index];
        if (!CardOf(From) || CardOf(From) != CardOf(To)) continue;
        const QPoint Step = To->mapToGlobal(QPoint(0, 0)) - From->mapToGlobal(QPoint(0, 0));
        EXPECT_TRUE(Step.y() >= From->height() - 1 || Step.x() > 0)
            << Describe(From) << " -> " << Describe(To);
    }
}

// No letter presses more than one of the visible buttons and of the menus, whose hidden ones take theirs too.
void ExpectOwnMnemonics(const QMainWindow& Window)
{
    QStringList Captions;
    for (const QAction* Each : Window.menuBar()->actions()) Captions += Each->text();
    for (const auto* Each : Window.findChildren<QAbstractButton*>())
        if (Each->isVisibleTo(&Window)) Captions += Each->text();
    std::set<QKeySequence> Letters;
    for (const QString& Each : Captions) {
        const QKeySequence Key = QKeySequence::mnemonic(Each);
        EXPECT_TRUE(Key.isEmpty() || Letters.insert(Key).second) << Each.toStdString();
    }
}

class LayoutsTest : public MainWindowTest {
protected:
    // Everything that must hold of what the window shows now.
    void Examine(const Screen& Shown, const std::string& State)
    {
        SCOPED_TRACE(State);
        QCoreApplication::processEvents();
        ExpectRoomForAll(*Main);
        ExpectTabsReach(Shown, *Main);
        ExpectOwnMnemonics(*Main);
    }

    // A dialog over the main window, no larger than the smallest screen has room for.
    static void ExamineDialog(const Screen& Shown, QDialog& Dialog)
    {
        SCOPED_TRACE(Shown.Name);
        QCoreApplication::processEvents();
        ExpectRoomForAll(Dialog);
        ExpectTabsReach(Shown, Dialog);
        const QSize Needed = Dialog.isMaximized() ? Dialog.minimumSizeHint() : Dialog.size();
        EXPECT_LE(Needed.width(), 800);
        EXPECT_LE(Needed.height(), 560);
    }

    std::unique_ptr<QDialog> Open(Screen& Shown, QDialog* (*Make)(QWidget*))
    {
        Shown.LoadHidden();
        std::unique_ptr<QDialog> Dialog(Make(Main.get()));
        Dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Dialog.get()));
        return Dialog;
    }

    void ExaminePages(const std::string& State)
    {
        const std::vector<bool> Pages = frmLCC.sstInput.TabVisible;
        for (std::size_t Page = 0; Page < Pages.size(); ++Page) {
            if (!Pages[Page]) continue;
            frmLCC.sstInput.Tab = static_cast<int>(Page);
            Examine(frmLCC, State + ", " + frmLCC.sstInput.TabCaptions[Page]);
        }
    }
};

// The two commands that are wanted most stand among the tool buttons too, and Exit has two records.
TEST_F(LayoutsTest, EveryMenuEntryStandsInItsMenuAndRaisesItsOwnClick)
{
    Start(1); // which has all pages
    std::map<std::string, int> Told, Expected;
    for (Control* Each : MDIProject.Controls) {
        auto* const Entry = dynamic_cast<MenuItem*>(Each);
        if (!Entry) continue;
        Entry->Enabled = Entry->Visible = true;
        const bool Twice = Entry->Caption.Get() == MDIProject.mnuExit.Caption.Get();
        const bool Tool = Entry == &MDIProject.mnuAnalyse || Entry == &MDIProject.mnuPreferences;
        if (Entry != &MDIProject.mnuFGridRows) Expected[Entry->Caption] = Twice || Tool ? 2 : 1;
        Entry->Click = [&Told, Entry] { ++Told[Entry->Caption]; };
    }
    QList<QAction*> Entries = Main->menuBar()->actions();
    for (const QMenu* Each : Main->findChildren<QMenu*>())
        for (QAction* Entry : Each->actions())
            if (!Entries.contains(Entry)) Entries += Entry;
    for (QAction* Each : Entries) Each->trigger();
    for (auto* Each : Main->findChildren<QToolButton*>())
        if (Each->toolTip().toStdString() == MDIProject.mnuAnalyse.ToolTip ||
            Each->toolTip().toStdString() == MDIProject.mnuPreferences.ToolTip)
            Each->click();
    EXPECT_EQ(Told, Expected);
    for (const Screen* Each : std::initializer_list<const Screen*>{&MDIProject, &frmLCC, &frmResults})
        ExpectPressesTold(*Each);
    ConnectScreens();
}

TEST_F(LayoutsTest, EveryControlOfTheMainWindowHasAWidgetWithAName)
{
    for (const Screen* Each :
         std::initializer_list<const Screen*>{&MDIProject, &frmLCC, &frmResults, &frmRoughness})
        ExpectAllThere(*Each, *Main);
    EXPECT_EQ(FocusTarget(frmLCC.txtProject)->accessibleName(), "Project name"); // as its caption
}

// What the page calls a field stands in the field's own hint, so no two stand in each other's place.
TEST_F(LayoutsTest, EveryFieldOfTheInputScreenStandsBesideItsOwnName)
{
    const QStringList Others = {"of", "ks"};
    for (const Control* Each : frmLCC.Controls) {
        const bool Typed = dynamic_cast<const TextBox*>(Each) || dynamic_cast<const ScrollBar*>(Each);
        if (!Typed || Each == &frmLCC.txtKsOldYears) continue; // "Reached after", in a row with the old pipe
        const QString Hint = QString::fromStdString(Each->ToolTip).toLower();
        const QString Name = FocusTarget(*Each)->accessibleName().toLower();
        for (const QString& Word : Name.split(QRegularExpression("\\W+"), Qt::SkipEmptyParts))
            EXPECT_TRUE(Others.contains(Word) || Hint.contains(Word))
                << Name.toStdString() << ": " << Each->ToolTip;
    }
}

TEST_F(LayoutsTest, TheInputScreenFitsWhateverIsChosen)
{
    const std::vector<OptionButton*> Choices[] = {{&frmLCC.optGCalculatedFlowrate, &frmLCC.optMortar},
                                                  {&frmLCC.optPumpVarying, &frmLCC.optPumpDetails}};
    for (int SystemType : {0, 1}) {
        Start(SystemType);
        ExaminePages("system " + std::to_string(SystemType));
        for (OptionButton* Each : Choices[SystemType]) {
            Each->Value = true;
            ExaminePages(Each->Caption.Get() + " of system " + std::to_string(SystemType));
        }
    }
    for (const auto& [Page, Pane, Covered] :
         {std::tuple<int, Frame&, Control&>(0, frmLCC.fraPumpDetails, frmLCC.txtProject),
          {1, frmLCC.fraLaying, frmLCC.msgProfile}}) {
        frmLCC.sstInput.Tab = Page;
        Pane.Visible = true;
        Examine(frmLCC, Pane.Caption);
        EXPECT_FALSE(FocusTarget(Covered)->isVisible());
        Pane.Visible = false;
        EXPECT_TRUE(FocusTarget(Covered)->isVisible());
    }
}

TEST_F(LayoutsTest, KeysTurnThePagesFromAnyField)
{
    Start(0);
    frmLCC.sstInput.Tab = 1;
    QWidget* const List = FocusTarget(frmLCC.comElevationUnits);
    List->setFocus();
    QTest::keyClick(List, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3); // a gravity system has no energy page
    QTest::keyClick(Main.get(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(frmLCC.sstInput.Tab, 1);
    frmLCC.sstInput.TabVisible = std::vector<bool>{true, false, false, false};
    EXPECT_EQ(frmLCC.sstInput.Tab, 0); // a page that goes gives way
}

TEST_F(LayoutsTest, TheResultsStandInForTheInputAndFit)
{
    QWidget* const Input = FocusTarget(frmLCC.sstInput);
    QWidget* const Results = FocusTarget(frmResults.sstResults);
    EXPECT_TRUE(Input->isVisible() && !Results->isVisible());
    ShowResults();
    EXPECT_TRUE(Results->isVisible() && !Input->isVisible());
    frmResults.lblDesignLife.Caption = "100 years";
    frmResults.lblNPVE.Caption = frmResults.lblNPVI.Caption = "R1,938,817,700";
    frmResults.lblIRR.Caption = "IRR = 117.813 %";
    frmResults.lblDemand.Caption = ") (Million gal/day (USA))";
    frmResults.lblYield.Caption = "Yield (Million gal/day (USA))";
    for (int Page : {0, 1, 2}) {
        frmResults.sstResults.Tab = Page;
        Examine(frmResults, "results, page " + std::to_string(Page));
    }
}

TEST_F(LayoutsTest, TheRoughnessScreensFitWithLongFiguresAndInNarrowWindows)
{
    frmLCC.Visible = false;
    TakeProfileForPlot();
    MDIProject.mnuRoughness.Click();
    QCoreApplication::processEvents();
    ExpectRoomForAll(*Main);
    ExpectTabsReach(frmRoughness, *Main); // "Previous screen" shares its letter with the preferences
    const auto FillLastRow = [](const char* Text) {
        for (int Stretch : {1, 2, 3, 4}) frmRoughness.msgRoughnessResults.SetText(7, Stretch, Text);
    };
    FillLastRow("2506802.0");
    QCoreApplication::processEvents();
    const QWidget* const Figures = FocusTarget(frmRoughness.msgRoughnessResults);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Figures->width() >= Figures->sizeHint().width(); }));
    for (CommandButton* Each : {&frmRoughness.sscCalculate, &frmRoughness.sscPrevious})
        EXPECT_FALSE(FocusTarget(*Each)->visibleRegion().isEmpty()) << Each->Caption.Get();
    FillLastRow("");
    frmRoughness.sscViewGraph.Click();
    for (const int Width : {1100, 800}) { // wide and narrow again
        Main->resize(Width, 600);
        QCoreApplication::processEvents(); // rows that turn need another round
        Examine(frmViewRoughness, "measured data, " + std::to_string(Width));
    }
}

TEST_F(LayoutsTest, DialogsAreCompleteAndFit)
{
    for (const auto& [Shown, Make] : AllDialogs()) {
        const auto Dialog = Open(*Shown, Make);
        if (Shown == &frmAnalyse) { // any key ends its opening
            QWidget* const Analyse = FocusTarget(frmAnalyse.sscAnalyse);
            EXPECT_FALSE(Analyse->isVisible());
            QTest::keyClick(Dialog->focusWidget(), Qt::Key_Escape);
            EXPECT_TRUE(Dialog->isVisible());
            EXPECT_EQ(Dialog->focusWidget(), Analyse);
        }
        ExpectAllThere(*Shown, *Dialog);
        ExamineDialog(*Shown, *Dialog);
        ExpectPressesTold(*Shown);
        Shown->Unload();
    }
}

TEST_F(LayoutsTest, EveryStepOfTheImportFits)
{
    const auto Dialog = Open(frmImport, ImportDialog);
    QApplication::clipboard()->setText("12,5\t0\t600\t6\t90\t0\n");
    for (CommandButton* Pressed : {&frmImport.sscNext, &frmImport.sscPaste, &frmImport.sscNext}) {
        Pressed->Click();
        ExamineDialog(frmImport, *Dialog);
    }
    EXPECT_TRUE(FocusTarget(frmImport.msgFImport)->isVisible());
    EXPECT_GE(Dialog->x(), 0);
    frmImport.Unload();
}

} // namespace
} // namespace velorix
