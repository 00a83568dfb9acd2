// Screens as a whole: their controls, loading and unloading.
#include "platform/Screen.h"

#include "base/Arrays.h"
#include "platform/Grid.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;

struct SampleScreen : Screen {
    SampleScreen()
        : Screen("frmSample", "Sample")
    {
        Varying.Value = true;
        Units.ListIndex = 0;
        Remark.Text = "none";
        Day.Value = Date{2005, 3, 3};
        Advanced.Visible = false;
        DesignEnds();
    }

    TextBox Remark;
    ComboBox Units{{"m", "ft"}};
    OptionButton Fixed{"Fixed"};
    OptionButton Varying{"Varying"};
    Array0<Label, 2> Hours;
    CheckBox Advanced{"Advanced"};
    ScrollBar Life{1, 100, 5};
    DatePicker Day;
    Label Sign{"R"};
    CommandButton Next{"&Next"};
    TabControl Pages{{"One", "Two"}};
    ProgressBar Progress;
    Timer Clock{100};
    Grid Table{3, 2};
};

TEST(ScreenTest, ControlsStandInTheOrderOfTheirDeclaration)
{
    SampleScreen Sample;
    const TextBox Loose; // belongs to no screen
    EXPECT_THAT(Sample.Controls,
                ElementsAre(&Sample.Remark, &Sample.Units, &Sample.Fixed, &Sample.Varying, &Sample.Hours[0],
                            &Sample.Hours[1], &Sample.Advanced, &Sample.Life, &Sample.Day, &Sample.Sign,
                            &Sample.Next, &Sample.Pages, &Sample.Progress, &Sample.Clock, &Sample.Table));
}

TEST(ScreenTest, LoadIsRaisedOnceUntilTheScreenIsUnloaded)
{
    SampleScreen Sample;
    int Loads = 0;
    Sample.Load = [&] { ++Loads; };
    Sample.LoadHidden();
    Sample.LoadHidden();
    EXPECT_EQ(Loads, 1);
    EXPECT_FALSE(Sample.Visible);
    Sample.Unload();
    EXPECT_FALSE(Sample.IsLoaded());
    Sample.LoadHidden();
    EXPECT_EQ(Loads, 2);
}

TEST(ScreenTest, UnloadPutsEverythingBackWithoutEvents)
{
    SampleScreen Sample;
    Sample.LoadHidden();
    Sample.Visible = true;
    Sample.Enabled = false;
    Sample.Caption = "Other";
    Sample.Remark.Text = "typed";
    Sample.Remark.Enabled = false;
    Sample.Remark.Tag = "note";
    Sample.Units.List = {"mm"};
    Sample.Fixed.Value = true;
    Sample.Varying.Value = false;
    Sample.Advanced.Value = true;
    Sample.Advanced.Visible = true;
    Sample.Life.Max = 20;
    Sample.Life.Value = 15;
    Sample.Day.Value = Date{1999, 1, 1};
    Sample.Sign.Caption = "$";
    Sample.Sign.BackColor = PureRed;
    Sample.Next.Caption = "&Finish";
    Sample.Pages.Tab = 1;
    Sample.Pages.TabVisible = {true, false};
    Sample.Progress.Value = 50;
    Sample.Clock.Enabled = true;
    Sample.Table.SetRows(9);

    int Events = 0;
    const auto Count = [&] { ++Events; };
    Sample.Remark.Change = Sample.Units.Change = Sample.Life.Change = Sample.Day.Change = Count;
    Sample.Fixed.Click = Sample.Varying.Click = Sample.Advanced.Click = Count;
    bool ViewTold = false;
    Sample.Remark.Text.View = [&](const void*) { ViewTold = true; };

    Sample.Unload();

    EXPECT_FALSE(Sample.Visible);
    EXPECT_TRUE(Sample.Enabled);
    EXPECT_EQ(Sample.Caption.Get(), "Sample");
    EXPECT_EQ(Sample.Remark.Text.Get(), "none");
    EXPECT_TRUE(Sample.Remark.Enabled);
    EXPECT_EQ(Sample.Remark.Tag, "");
    EXPECT_EQ(Sample.Units.Text(), "m");
    EXPECT_FALSE(Sample.Fixed.Value);
    EXPECT_TRUE(Sample.Varying.Value);
    EXPECT_FALSE(Sample.Advanced.Value);
    EXPECT_FALSE(Sample.Advanced.Visible);
    EXPECT_EQ(Sample.Life.Max, 100);
    EXPECT_EQ(Sample.Life.Value, 1);
    EXPECT_EQ(Sample.Day.Value.Get(), (Date{2005, 3, 3}));
    EXPECT_EQ(Sample.Sign.Caption.Get(), "R");
    EXPECT_EQ(Sample.Sign.BackColor.Get(), ButtonColor);
    EXPECT_EQ(Sample.Next.Caption.Get(), "&Next");
    EXPECT_EQ(Sample.Pages.Tab, 0);
    EXPECT_THAT(Sample.Pages.TabVisible.Get(), ElementsAre(true, true));
    EXPECT_EQ(Sample.Progress.Value, 0);
    EXPECT_FALSE(Sample.Clock.Enabled);
    EXPECT_EQ(Sample.Table.Rows(), 3);
    EXPECT_EQ(Events, 0);
    EXPECT_TRUE(ViewTold);
}

} // namespace
} // namespace velorix
