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
        DesignEnds();
    }

    // What a user sees, as one value to compare.
    auto Shown() const
    {
        return std::tuple(Visible.Get(), Enabled.Get(), Caption.Get(), Remark.Text.Get(),
                          Remark.Enabled.Get(), Remark.Tag, Remark.ToolTip, Remark.MaxLength, Remark.SelStart,
                          Units.Text(), Fixed.Value.Get(), Varying.Value.Get(), Life.Max.Get(),
                          Life.Value.Get(), Life.SmallChange, Life.LargeChange, Entry.Caption.Get(),
                          Table.Rows());
    }

    TextBox Remark;
    ComboBox Units{{"m", "ft"}};
    OptionButton Fixed{"Fixed"};
    OptionButton Varying{"Varying"};
    ScrollBar Life{1, 100, 5};
    Array0<Label, 2> Hours;
    MenuItem Entry{"&Add"};
    Grid Table{3, 2};
};

TEST(ScreenTest, ControlsStandInTheOrderOfTheirDeclaration)
{
    SampleScreen Sample;
    const TextBox Loose; // belongs to no screen
    ASSERT_EQ(Sample.Controls.size(), 9U);
    EXPECT_EQ(Sample.Controls[0], &Sample.Remark);
    EXPECT_EQ(Sample.Controls[6], &Sample.Hours[1]);
    EXPECT_EQ(Sample.Controls[8], &Sample.Table);
}

TEST(ScreenTest, AScreenIsAmongAllAsLongAsItLives)
{
    const std::vector<Screen*> Others = AllScreens();
    {
        SampleScreen Sample;
        EXPECT_EQ(AllScreens().back(), &Sample);
        Sample.Visible = true;
        UnloadScreens();
        EXPECT_FALSE(Sample.Visible);
    }
    EXPECT_EQ(AllScreens(), Others);
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
    Sample.Remark.Tag = Sample.Remark.ToolTip = "note";
    Sample.Remark.MaxLength = Sample.Remark.SelStart = Sample.Life.SmallChange = Sample.Life.LargeChange = 3;
    Sample.Units.List = {"mm"};
    Sample.Fixed.Value = true;
    Sample.Varying.Value = false;
    Sample.Life.Max = 20;
    Sample.Life.Value = 15;
    Sample.Entry.Caption = "&Remove";
    Sample.Table.SetRows(9);

    Sample.Remark.Change = Sample.Units.Change = Sample.Life.Change = Sample.Fixed.Click =
        Sample.Varying.Click = [&] { Heard += "event "; };
    Sample.Remark.Text.View = [&](const void*) { Heard += "view "; };
    Sample.Unload();
    EXPECT_TRUE(Sample.Shown() == Design);
    Sample.LoadHidden();
    EXPECT_EQ(Heard, "load view load ");
}

} // namespace
} // namespace velorix
