// Screens as a whole: their controls, loading and unloading.
#include "platform/Screen.h"

#include "base/Arrays.h"
#include "platform/Grid.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

struct SampleScreen : Screen {
    SampleScreen()
        : Screen("frmSample", "Sample")
    {
        Varying.Value = true;
        Units.ListIndex = 0;
        Remark.Text = "none";
        Day.Value = Date{2005, 3, 3};
        Advanced.Visible = false;
        Sign.BackColor = PureYellow;
        DesignEnds();
    }

    // What a user sees, as one value to compare.
    auto Shown() const
    {
        return std::tuple(Visible.Get(), Enabled.Get(), Caption.Get(), Remark.Text.Get(),
                          Remark.Enabled.Get(), Remark.Tag, Units.Text(), Fixed.Value.Get(),
                          Varying.Value.Get(), Advanced.Value.Get(), Advanced.Visible.Get(), Life.Max.Get(),
                          Life.Value.Get(), Day.Value.Get(), Sign.Caption.Get(), Sign.BackColor.Get(),
                          Next.Caption.Get(), Pages.Tab.Get(), Pages.TabVisible.Get(), Progress.Value.Get(),
                          Clock.Enabled.Get(), Table.Rows());
    }

    TextBox Remark;
    ComboBox Units{{"m", "ft"}};
    OptionButton Fixed{"Fixed"};
    OptionButton Varying{"Varying"};
    CheckBox Advanced{"Advanced"};
    ScrollBar Life{1, 100, 5};
    DatePicker Day;
    Array0<Label, 2> Hours;
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
    ASSERT_EQ(Sample.Controls.size(), 15U);
    EXPECT_EQ(Sample.Controls[0], &Sample.Remark);
    EXPECT_EQ(Sample.Controls[8], &Sample.Hours[1]);
    EXPECT_EQ(Sample.Controls[14], &Sample.Table);
}

TEST(ScreenTest, UnloadPutsEverythingBackWithoutEvents)
{
    SampleScreen Sample;
    std::string Heard;
    Sample.Load = [&] { Heard += "load "; };
    Sample.LoadHidden();
    Sample.LoadHidden();
    const auto Design = Sample.Shown();
    Sample.Visible = true;
    Sample.Enabled = false;
    Sample.Caption = "Other";
    Sample.Remark.Text = "typed";
    Sample.Remark.Enabled = false;
    Sample.Remark.Tag = "note";
    Sample.Units.List = {"mm"};
    Sample.Fixed.Value = Sample.Advanced.Value = Sample.Advanced.Visible = Sample.Clock.Enabled = true;
    Sample.Varying.Value = false;
    Sample.Life.Max = 20;
    Sample.Life.Value = 15;
    Sample.Day.Value = Date{1999, 1, 1};
    Sample.Sign.Caption = "$";
    Sample.Sign.BackColor = PureRed;
    Sample.Next.Caption = "&Finish";
    Sample.Pages.Tab = 1;
    Sample.Pages.TabVisible = {true, false};
    Sample.Progress.Value = 50;
    Sample.Table.SetRows(9);

    Sample.Remark.Change = Sample.Units.Change = Sample.Life.Change = Sample.Day.Change = Sample.Fixed.Click =
        Sample.Varying.Click = Sample.Advanced.Click = [&] { Heard += "event "; };
    Sample.Remark.Text.View = [&](const void*) { Heard += "view "; };
    Sample.Unload();
    EXPECT_TRUE(Sample.Shown() == Design);
    Sample.LoadHidden();
    EXPECT_EQ(Heard, "load view load ");
}

} // namespace
} // namespace velorix
