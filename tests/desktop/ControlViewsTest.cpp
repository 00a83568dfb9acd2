// Views and records follow each other; wheel, timers and failures are handled as the views promise.
#include "desktop/Views.h"

#include "desktop/DesktopTest.h"
#include "desktop/HourStrip.h"
#include "desktop/ScrollBarView.h"
#include "input/HourPattern.h"
#include "screens/Dialogs.h"

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ControlViewTest : public DesktopTest {
protected:
    template <typename Widget>
    Widget* Show(Widget* View)
    {
        Put(View);
        ShowHost();
        return View;
    }

    // What a user types in place of what the field shows.
    static void TypeAnew(QSpinBox& Field, const QString& Text)
    {
        Field.setFocus();
        Field.selectAll();
        QTest::keyClicks(&Field, Text);
    }

    ComboBox Units{{"m", "ft"}, "Select the units"};
    OptionButton Fixed{"&Fixed"};
    OptionButton Varying{"&Varying"};
    ScrollBar Life{2, 100, 5, "Select the life"};
    CommandButton Save{"&Save"};
    Frame Group{"Fixed demand"};
    TextBox Flow{"Enter the fixed demand"};
    DatePicker Day{"Select the date"};
};

TEST_F(ControlViewTest, AListShowsAndTellsWhatIsChosen)
{
    QComboBox* const List = Show(View(Units));
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

    QListWidget* const Open = Put(OpenView(Units));
    int Clicks = 0;
    Units.Click = [&] { ++Clicks; };
    Units.Change = {};
    QCoreApplication::processEvents();
    const QPoint Chosen = Open->visualItemRect(Open->currentItem()).center();
    QTest::mouseClick(Open->viewport(), Qt::LeftButton, {}, Chosen); // the same again
    EXPECT_EQ(Clicks, 1);
}

TEST_F(ControlViewTest, OptionsFollowTheirGroupAndMayAllBeOff)
{
    GroupOptions({&Fixed, &Varying});
    QRadioButton* const First = Put(View(Fixed));
    QRadioButton* const Second = Show(View(Varying));
    int Clicks = 0;
    Varying.Click = [&] { ++Clicks; };
    for (QRadioButton* Each : {First, Second, Second})
        QTest::mouseClick(Each, Qt::LeftButton, {}, QPoint(8, Each->height() / 2));
    EXPECT_EQ(Clicks, 1);
    EXPECT_FALSE(Fixed.Value);
    EXPECT_FALSE(First->isChecked());
    EXPECT_TRUE(Second->isChecked());
    Varying.BackToDesign();
    EXPECT_FALSE(Second->isChecked());
}

TEST_F(ControlViewTest, AMenuEntryFollowsItsRecord)
{
    MenuItem Item{"&Open", "Open an existing project"};
    const std::unique_ptr<QAction> Action(View(Item));
    Item.Enabled = false;
    Item.Caption = "&Close";
    EXPECT_FALSE(Action->isEnabled());
    EXPECT_EQ(Action->text(), "&Close");
}

TEST_F(ControlViewTest, SliderAndNumberFieldShareTheValue)
{
    ScrollBarView* const Both = Show(View(Life, " years"));
    Life.Value = 40;
    EXPECT_EQ(Both->Bar().value(), 40);
    EXPECT_EQ(Both->Field().text(), "40 years");
    QTest::keyClick(&Both->Bar(), Qt::Key_PageUp);
    EXPECT_EQ(Both->Field().value(), 45);
    QTest::keyClick(&Both->Field(), Qt::Key_Down);
    EXPECT_EQ(Life.Value, 44);
    QTest::keyClick(&Both->Field(), Qt::Key_PageDown);
    EXPECT_EQ(Both->Bar().value(), 39);

    Life.Max = 30;
    EXPECT_EQ(Both->Field().value(), 30);
    EXPECT_EQ(Both->Bar().maximum(), 30);
    Life.Change = [this] { Life.Value = 12; }; // a handler that decides otherwise
    QTest::keyClick(&Both->Bar(), Qt::Key_Left);
    EXPECT_EQ(Both->Bar().value(), 12);
    EXPECT_EQ(Both->Field().value(), 12);
}

TEST_F(ControlViewTest, TypedNumbersCountWhenTheyAreCompleteAndBeforeACommand)
{
    ScrollBarView* const Both = Put(View(Life));
    QPushButton* const Button = Show(View(Save));
    std::vector<std::string> Heard;
    Life.Change = [&] { Heard.push_back(std::to_string(Life.Value)); };
    Save.Click = [&] { Heard.push_back("save"); };
    TypeAnew(Both->Field(), "37");
    Button->setFocusPolicy(Qt::NoFocus); // like a tool button, it leaves the focus where it is
    QTest::mouseClick(Button, Qt::LeftButton);
    EXPECT_THAT(Heard, ElementsAre("37", "save"));
    Host.reset();
}

TEST_F(ControlViewTest, HundredthsShowAsAFraction)
{
    ScrollBar Percent{0, 2000, 5};
    Percent.Value = 25;
    QSpinBox& Field = Show(HundredthsView(Percent, "%"))->Field();
    EXPECT_EQ(Field.text(), "0.25%");
    TypeAnew(Field, "1.x15");
    QTest::keyClick(&Field, Qt::Key_Return);
    EXPECT_EQ(Percent.Value, 115);
    EXPECT_EQ(Field.text(), "1.15%");
    TypeAnew(Field, "2000"); // the highest is 20
    EXPECT_EQ(Field.cleanText(), "20");
    Host.reset();
}

TEST_F(ControlViewTest, TheWheelOverAViewWithoutFocusChangesNothing)
{
    Life.Value = 50;
    ScrollBarView* const Both = Put(View(Life));
    QPushButton* const Button = Show(View(Save));
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

TEST_F(ControlViewTest, AFieldTakesItsCaptionAlong)
{
    QGroupBox* const Box = Put(View(Group));
    auto* const Layout = new QVBoxLayout(Box);
    Flow.Visible = false;
    QLineEdit* const Line = View(Flow);
    Flow.Visible = true;
    EXPECT_FALSE(Line->isVisible()); // without a place it would be a window of its own
    Flow.Visible = false;
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
    EXPECT_FALSE(Line->isEnabled());
    Group.Visible = false;
    EXPECT_FALSE(Line->isVisible());
}

TEST_F(ControlViewTest, TheHoursAreOneStopWithArrowsLettersAndADragThatPaints)
{
    Array0<Label, 24> Hours;
    for (int Hour = 0; Hour < 24; ++Hour) {
        Hours[Hour].Caption = std::to_string(Hour + 1);
        Hours[Hour].BackColor = OffpeakColor;
        Hours[Hour].Click = [&Hours, Hour] { CycleHour(Hours[Hour]); };
    }
    QLineEdit* const Before = Put(View(Flow));
    QWidget* const Strip = Put(HourStrip(Hours, "Summer"));
    QPushButton* const Behind = Show(View(Save));
    const auto Text = [&](int Hour) { return qobject_cast<QLabel*>(FocusTarget(Hours[Hour]))->text(); };
    const auto Press = [](Qt::Key Key) { QTest::keyClick(QApplication::focusWidget(), Key); };

    Before->setFocus();
    for (Qt::Key Key : {Qt::Key_Tab, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space}) Press(Key);
    EXPECT_EQ(Hours[1].BackColor.Get(), PeakColor);
    EXPECT_EQ(Text(1).toStdString(), "2\nP");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Summer, hour 2, peak");
    for (Qt::Key Key : {Qt::Key_End, Qt::Key_Right, Qt::Key_Return, Qt::Key_Return}) Press(Key);
    EXPECT_EQ(Text(23).toStdString(), "24\nS");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Behind->hasFocus());
    Press(Qt::Key_Backtab);
    EXPECT_TRUE(FocusTarget(Hours[23])->hasFocus()); // where it was
    Press(Qt::Key_Backtab);
    EXPECT_TRUE(Before->hasFocus());

    // From hour 6 down to 3, in one leap, and with the pointer off the strip.
    QWidget* const Pressed = FocusTarget(Hours[5]);
    const QPoint Off(FocusTarget(Hours[2])->geometry().center().x() - Pressed->x(), Strip->height() + 40);
    QTest::mousePress(Pressed, Qt::LeftButton);
    QMouseEvent Move(QEvent::MouseMove, Off, Pressed->mapToGlobal(Off), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Pressed, &Move);
    QTest::mouseRelease(Pressed, Qt::LeftButton, {}, Off);
    QString Letters;
    for (int Hour = 0; Hour < 24; ++Hour) Letters += Text(Hour).back();
    EXPECT_EQ(Letters.toStdString(), "OPPPPPOOOOOOOOOOOOOOOOOS");
    Hours[7].BackColor = ButtonColor; // no class, as a foreign file has it
    EXPECT_EQ(FocusTarget(Hours[7])->accessibleName(), "Summer, hour 8");
    Host.reset();
}

TEST_F(ControlViewTest, FocusAndPointerAreTold)
{
    std::vector<std::string> Heard;
    Flow.GotFocus = [&] { Heard.push_back("focus"); };
    QLineEdit* const Line = Show(View(Flow)); // the only one takes the focus
    QTest::mouseMove(Line, QPoint(1, 1));
    QCoreApplication::processEvents();
    Flow.MouseMove = [&] { Heard.push_back("move"); };
    QTest::mouseMove(Line, Line->rect().center());
    QCoreApplication::processEvents();
    EXPECT_THAT(Heard, ElementsAre("focus", "move"));
}

TEST_F(ControlViewTest, ADateGoesBothWays)
{
    Day.Value = Date{2005, 3, 4};
    QDateEdit* const Field = Put(View(Day));
    EXPECT_EQ(Field->text(), "4 March 2005");
    Field->setDate(QDate(2024, 2, 29));
    EXPECT_EQ(Day.Value.Get(), (Date{2024, 2, 29}));

    // The arrows choose between its parts, Tab leaves it.
    QWidget* const Behind = Put(View(Save));
    ShowHost();
    Day.Value = Date{2024, 3, 10};
    Field->setFocus(Qt::TabFocusReason);
    for (Qt::Key Each : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down})
        QTest::keyClick(Field, Each);
    EXPECT_EQ(Day.Value.Get(), (Date{2023, 2, 11}));
    QTest::keyClick(Field, Qt::Key_Tab);
    EXPECT_TRUE(Behind->hasFocus());
}

TEST_F(ControlViewTest, ShowingAValueRaisesNoArithmeticFlag)
{
    Follow(Life.Value, Host.get(), [](int) { std::feraiseexcept(FE_DIVBYZERO); });
    std::feclearexcept(FE_ALL_EXCEPT);
    Life.Value = 5;
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO), 0);
}

TEST_F(ControlViewTest, ATimerTicksWhileEnabledButNotInsideACalculation)
{
    Timer& Clock = frmIntro.tmrIntro;
    int Ticks = 0;
    Clock.Tick = [&] { ++Ticks; };
    Clock.Interval = 1;
    RunTimers(frmIntro);
    QTest::qWait(10);
    EXPECT_EQ(Ticks, 0);

    Clock.Enabled = true;
    QTest::qSleep(5);
    Windows.Repaint();
    EXPECT_EQ(Ticks, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Ticks > 1; }));
    frmIntro.Unload();
    Clock.Tick = {};
}

// Fails anew while its own report stands.
class FailingPlatform : public NotingPlatform {
public:
    Answer Show(const Message& Box) override
    {
        ReportFailure(std::runtime_error("second"));
        return NotingPlatform::Show(Box);
    }
};

TEST_F(ControlViewTest, EachFailureIsReportedOnceAndTheProgramGoesOn)
{
    FailingPlatform Failing;
    InstallPlatform(&Failing);
    Save.Click = [] { throw std::runtime_error("subscript 501 outside 1 to 500"); };
    QPushButton* const Button = Show(View(Save));
    Failing.SetPointer(PointerShape::Hourglass);
    for (int Clicks = 1; Clicks <= 2; ++Clicks) {
        QTest::mouseClick(Button, Qt::LeftButton);
        ASSERT_EQ(Failing.Messages.size(), Clicks);
    }
    EXPECT_THAT(Failing.Messages[0].Text, HasSubstr("subscript 501 outside 1 to 500"));
    EXPECT_EQ(Failing.Messages[0].Title, "Velorix");
    EXPECT_EQ(Failing.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    // One that no handler raises leaves its event.
    QMetaObject::invokeMethod(
        qApp, [] { throw std::runtime_error("out of paper"); }, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    ASSERT_EQ(Failing.Messages.size(), 3U);
    EXPECT_THAT(Failing.Messages[2].Text, HasSubstr("out of paper"));
}

} // namespace
} // namespace velorix
