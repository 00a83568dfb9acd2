// Views and records follow each other; wheel, timers and failures are handled as the views promise.
#include "desktop/Views.h"

#include "desktop/Binding.h"
#include "desktop/DesktopTest.h"
#include "desktop/ScrollBarView.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QWheelEvent>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ChoiceViewTest : public DesktopTest {
protected:
    ComboBox Units{{"m", "ft"}, "Select the units"};
    OptionButton Fixed{"&Fixed"};
    OptionButton Varying{"&Varying"};
    TabControl Tabs{{"A", "B", "C"}};
};

TEST_F(ChoiceViewTest, AListShowsAndTellsWhatIsChosen)
{
    QComboBox* const List = Put(View(Units));
    ShowHost();
    EXPECT_EQ(List->currentIndex(), -1);
    Units.ListIndex = 1;
    EXPECT_EQ(List->currentText(), "ft");
    int Changes = 0;
    Units.Change = [&] { ++Changes; };
    QTest::keyClick(List, Qt::Key_Up);
    EXPECT_EQ(Units.Text(), "m");
    EXPECT_EQ(Changes, 1);

    // A handler that fills the list anew while it is being told.
    Units.Change = [&] { Units.List = {"mm", "m", "km"}; };
    QTest::keyClick(List, Qt::Key_Down);
    EXPECT_EQ(List->count(), 3);
    EXPECT_EQ(List->currentIndex(), Units.ListIndex);
    Units.List = {"mm"};
    EXPECT_EQ(List->currentIndex(), -1);
}

TEST_F(ChoiceViewTest, OptionsFollowTheirGroupAndMayAllBeOff)
{
    GroupOptions({&Fixed, &Varying});
    QRadioButton* const First = Put(View(Fixed));
    QRadioButton* const Second = Put(View(Varying));
    ShowHost();
    int Clicks = 0;
    Varying.Click = [&] { ++Clicks; };
    for (QRadioButton* Each : {First, Second, Second})
        QTest::mouseClick(Each, Qt::LeftButton, {}, QPoint(8, Each->height() / 2));
    EXPECT_EQ(Clicks, 1);
    EXPECT_FALSE(Fixed.Value);
    EXPECT_FALSE(First->isChecked());
    EXPECT_TRUE(Second->isChecked());

    Fixed.BackToDesign();
    Varying.BackToDesign();
    EXPECT_FALSE(First->isChecked());
    EXPECT_FALSE(Second->isChecked());
}

TEST_F(ChoiceViewTest, PagesComeAndGoAndTheRecordKnowsTheOneOnTop)
{
    QTabWidget* const Pages = Put(View(Tabs, {new QWidget, new QWidget, new QWidget}));
    ShowHost();
    Pages->setCurrentIndex(1);
    EXPECT_EQ(Tabs.Tab, 1);
    Tabs.TabVisible = std::vector<bool>{true, false, true};
    EXPECT_FALSE(Pages->isTabVisible(1));
    EXPECT_EQ(Tabs.Tab, Pages->currentIndex());
    EXPECT_NE(Tabs.Tab, 1);
    Tabs.Tab = 2;
    EXPECT_EQ(Pages->currentIndex(), 2);
}

TEST_F(ChoiceViewTest, AMenuEntryFollowsItsRecord)
{
    MenuItem Item{"&Open", "Open an existing project"};
    QAction* const Action = View(Item);
    bool Clicked = false;
    std::string Hint;
    Item.Click = [&] { Clicked = true; };
    Item.MouseMove = [&] { Hint = Item.ToolTip; };
    Action->trigger();
    Action->hover();
    EXPECT_TRUE(Clicked);
    EXPECT_EQ(Hint, "Open an existing project");
    Item.Visible = false;
    Item.Enabled = false;
    Item.Caption = "&Close";
    EXPECT_FALSE(Action->isVisible());
    EXPECT_FALSE(Action->isEnabled());
    EXPECT_EQ(Action->text(), "&Close");
    delete Action;
    Item.Caption = "gone"; // the record outlives its view
}

class ScrollBarViewTest : public DesktopTest {
protected:
    ScrollBar Life{2, 100, 5, "Select the life"};
    CommandButton Save{"&Save"};
};

TEST_F(ScrollBarViewTest, SliderAndNumberFieldShareTheValue)
{
    ScrollBarView* const Both = Put(View(Life, " years"));
    ShowHost();
    Life.Value = 40;
    EXPECT_EQ(Both->Bar().value(), 40);
    EXPECT_EQ(Both->Field().text(), "40 years");
    QTest::keyClick(&Both->Bar(), Qt::Key_PageUp);
    EXPECT_EQ(Life.Value, 45);
    EXPECT_EQ(Both->Field().value(), 45);
    QTest::keyClick(&Both->Field(), Qt::Key_PageDown);
    QTest::keyClick(&Both->Field(), Qt::Key_Down);
    EXPECT_EQ(Life.Value, 39);
    EXPECT_EQ(Both->Bar().value(), 39);

    Life.Max = 30;
    EXPECT_EQ(Both->Field().value(), 30);
    EXPECT_EQ(Both->Bar().maximum(), 30);
    Life.Change = [this] { Life.Value = 12; }; // a handler that decides otherwise
    QTest::keyClick(&Both->Bar(), Qt::Key_Left);
    EXPECT_EQ(Both->Bar().value(), 12);
    EXPECT_EQ(Both->Field().value(), 12);
}

TEST_F(ScrollBarViewTest, TypedNumbersCountWhenTheyAreCompleteAndBeforeACommand)
{
    ScrollBarView* const Both = Put(View(Life));
    QPushButton* const Button = Put(View(Save));
    ShowHost();
    std::vector<int> Seen;
    Life.Change = [&] { Seen.push_back(Life.Value); };
    Both->Field().setFocus();
    Both->Field().selectAll();
    QTest::keyClicks(&Both->Field(), "25");
    EXPECT_THAT(Seen, IsEmpty());
    int Saved = 0;
    Save.Click = [&] { Saved = Life.Value; };
    Button->setFocusPolicy(Qt::NoFocus); // like a tool button, it leaves the focus where it is
    QTest::mouseClick(Button, Qt::LeftButton);
    EXPECT_EQ(Saved, 25);
    EXPECT_THAT(Seen, ElementsAre(25));
}

TEST_F(ScrollBarViewTest, HundredthsShowAsAFraction)
{
    ScrollBar Percent{0, 2000, 5};
    Percent.Value = 25;
    ScrollBarView* const Both = Put(HundredthsView(Percent, "%"));
    ShowHost();
    EXPECT_EQ(Both->Field().text(), "0.25%");
    Both->Field().setFocus();
    Both->Field().selectAll();
    QTest::keyClicks(&Both->Field(), "1.x29");
    QTest::keyClick(&Both->Field(), Qt::Key_Return);
    EXPECT_EQ(Percent.Value, 129);
    EXPECT_EQ(Both->Field().text(), "1.29%");
    Both->Field().selectAll();
    QTest::keyClicks(&Both->Field(), "2000");
    QTest::keyClick(&Both->Field(), Qt::Key_Return);
    EXPECT_EQ(Percent.Value, 2000);
    Host.reset();
}

TEST_F(ScrollBarViewTest, TheWheelOverAViewWithoutFocusChangesNothing)
{
    Life.Value = 50;
    ScrollBarView* const Both = Put(View(Life));
    QPushButton* const Button = Put(View(Save));
    ShowHost();
    const auto Turn = [&] {
        QWheelEvent Wheel({5, 5}, Both->Bar().mapToGlobal(QPointF(5, 5)), {0, 0}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&Both->Bar(), &Wheel);
        return Life.Value.Get();
    };
    Button->setFocus();
    EXPECT_EQ(Turn(), 50);
    Both->Field().setFocus();
    EXPECT_NE(Turn(), 50);
}

class ControlViewTest : public DesktopTest {
protected:
    Frame Group{"Fixed demand"};
    TextBox Flow{"Enter the fixed demand"};
    Label Hour{"7", "Click to change the rate"};
    ProgressBar Progress;
    DatePicker Day{"Select the date"};
};

TEST_F(ControlViewTest, AFieldTakesItsCaptionAlong)
{
    QGroupBox* const Box = Put(View(Group));
    auto* const Layout = new QVBoxLayout(Box);
    Flow.Visible = false;
    QLineEdit* const Line = View(Flow);
    auto* const Caption = new QLabel("Demand");
    Caption->setBuddy(Line);
    Layout->addWidget(Caption);
    Layout->addWidget(Line);
    ShowHost();
    EXPECT_FALSE(Caption->isVisible());
    Flow.Visible = true;
    EXPECT_TRUE(Caption->isVisible());
    EXPECT_TRUE(Line->isVisible());
    Group.Enabled = false;
    Group.Caption = "Demand";
    EXPECT_FALSE(Line->isEnabled());
    EXPECT_EQ(Box->title(), "Demand");
    Group.Visible = false;
    EXPECT_FALSE(Line->isVisible());
}

TEST_F(ControlViewTest, AViewWithoutAPlaceDoesNotComeUpAsAWindow)
{
    Flow.Visible = false;
    const std::unique_ptr<QLineEdit> Line(View(Flow));
    Flow.Visible = true;
    EXPECT_FALSE(Line->isVisible());
}

TEST_F(ControlViewTest, AColouredFieldClicksByMouseAndKeyboardAndSaysItsColour)
{
    int Clicks = 0;
    Hour.Click = [&] { ++Clicks; };
    Hour.BackColor = PureYellow;
    QLabel* const Field = Put(ColorView(Hour, {{PureYellow, "off-peak"}, {PureRed, "peak"}}));
    ShowHost();
    QTest::mouseClick(Field, Qt::LeftButton);
    Field->setFocus();
    QTest::keyClick(Field, Qt::Key_Space);
    QTest::keyClick(Field, Qt::Key_Return);
    EXPECT_EQ(Clicks, 3);
    Field->setAccessibleName("Summer, hour 7");
    EXPECT_EQ(Field->accessibleDescription(), "Click to change the rate, off-peak");
    Hour.BackColor = PureRed;
    EXPECT_EQ(Field->accessibleDescription(), "Click to change the rate, peak");
    EXPECT_EQ(Field->accessibleName(), "Summer, hour 7"); // the layout's name stays
    EXPECT_EQ(Field->grab().toImage().pixelColor(3, 3), QColor(Qt::red));
}

TEST_F(ControlViewTest, FocusAndPointerAreTold)
{
    std::vector<std::string> Heard;
    Flow.GotFocus = [&] { Heard.push_back("focus"); };
    Flow.MouseMove = [&] { Heard.push_back("move"); };
    QLineEdit* const Line = Put(View(Flow));
    ShowHost();
    Line->clearFocus();
    Heard.clear();
    Line->setFocus();
    QTest::mouseMove(Line, Line->rect().center());
    QCoreApplication::processEvents();
    EXPECT_THAT(Heard, ElementsAre("focus", "move"));
}

TEST_F(ControlViewTest, ADateGoesBothWays)
{
    Day.Value = Date{2005, 3, 3};
    QDateEdit* const Field = Put(View(Day));
    EXPECT_EQ(Field->text(), "3 March 2005");
    Field->setDate(QDate(2024, 2, 29));
    EXPECT_EQ(Day.Value.Get(), (Date{2024, 2, 29}));
}

TEST_F(ControlViewTest, ShowingAValueRaisesNoArithmeticFlag)
{
    Follow(Progress.Value, Host.get(), [](int) { std::feraiseexcept(FE_DIVBYZERO); });
    std::feclearexcept(FE_ALL_EXCEPT);
    Progress.Value = 5;
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO), 0);
}

struct ClockScreen : Screen {
    ClockScreen()
        : Screen("frmClock", "")
    {
        DesignEnds();
    }
    Timer Clock{1};
};

TEST_F(ControlViewTest, ATimerTicksWhileEnabledButNotInsideACalculation)
{
    static ClockScreen Shown; // the runner lives as long as the program
    int Ticks = 0;
    Shown.Clock.Tick = [&] { ++Ticks; };
    RunTimers(Shown);
    QTest::qWait(10);
    EXPECT_EQ(Ticks, 0);

    Shown.Clock.Enabled = true;
    QTest::qSleep(5);
    Windows.Repaint();
    EXPECT_EQ(Ticks, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Ticks > 1; }));
    Shown.Clock.Enabled = false;
    Shown.Clock.Tick = {};
}

TEST_F(ControlViewTest, AFailingHandlerIsReportedOnceAndTheProgramGoesOn)
{
    CommandButton Analyse{"&Analyse"};
    Analyse.Click = [] { throw std::runtime_error("subscript 501 outside 1 to 500"); };
    QPushButton* const Button = Put(View(Analyse));
    ShowHost();
    Windows.SetPointer(PointerShape::Hourglass);
    QTest::mouseClick(Button, Qt::LeftButton);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_THAT(Windows.Messages[0].Text, HasSubstr("subscript 501 outside 1 to 500"));
    EXPECT_EQ(Windows.Messages[0].Title, "Velorix");
    EXPECT_EQ(Windows.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::mouseClick(Button, Qt::LeftButton);
    EXPECT_EQ(Windows.Messages.size(), 2U);
    Host.reset();
}

class FailingObject : public QObject {
public:
    bool event(QEvent*) override { throw std::runtime_error("out of paper"); }
};

// Fails anew while its own report stands.
class FailingPlatform : public NotingPlatform {
public:
    Answer Show(const Message& Box) override
    {
        ReportFailure(std::runtime_error("second"));
        return NotingPlatform::Show(Box);
    }
};

TEST_F(ControlViewTest, AFailureThatLeavesAnEventIsCaughtAndReportsDontPileUp)
{
    FailingPlatform Failing;
    InstallPlatform(&Failing);
    FailingObject Target;
    QEvent Any(QEvent::User);
    QCoreApplication::sendEvent(&Target, &Any);
    ASSERT_EQ(Failing.Messages.size(), 1U);
    EXPECT_THAT(Failing.Messages[0].Text, HasSubstr("out of paper"));
}

} // namespace
} // namespace velorix
