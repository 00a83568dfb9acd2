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
        Remark.Text = "none";
        DesignEnds();
    }

    // Properties, and the plain values that a control has to name to have them put back.
    auto Shown() const
    {
        return std::tuple(Visible.Get(), Remark.Text.Get(), Remark.Tag, Remark.ToolTip, Remark.MaxLength,
                          Remark.SelStart, Fixed.Value.Get(), Varying.Value.Get(), Life.Value.Get(),
                          Life.SmallChange, Life.LargeChange);
    }

    TextBox Remark;
    OptionButton Fixed{"Fixed"};
    OptionButton Varying{"Varying"};
    ScrollBar Life{1, 100, 5};
    Array0<Label, 2> Hours;
    Grid Table{3, 2};
};

TEST(ScreenTest, ControlsStandInTheOrderOfTheirDeclaration)
{
    SampleScreen Sample;
    const TextBox Loose; // belongs to no screen
    const std::vector<Control*> Expected = {&Sample.Remark,   &Sample.Fixed,    &Sample.Varying, &Sample.Life,
                                            &Sample.Hours[0], &Sample.Hours[1], &Sample.Table};
    EXPECT_EQ(Sample.Controls, Expected);
}

TEST(ScreenTest, UnloadPutsEverythingBackWithoutEventsAsLongAsTheScreenLives)
{
    const std::vector<Screen*> Others = AllScreens();
    {
        SampleScreen Sample;
        std::string Heard;
        Sample.Load = [&] { Heard += "load "; };
        for (int Twice = 0; Twice < 2; ++Twice) Sample.LoadHidden();
        const auto Design = Sample.Shown();
        Sample.Visible = Sample.Fixed.Value = true;
        Sample.Varying.Value = false;
        Sample.Remark.Text = Sample.Remark.Tag = Sample.Remark.ToolTip = "note";
        Sample.Remark.MaxLength = Sample.Remark.SelStart = Sample.Life.SmallChange = Sample.Life.LargeChange =
            3;
        Sample.Life.Value = 15;
        Sample.Remark.Change = Sample.Life.Change = Sample.Fixed.Click =
            Sample.Varying.Click = [&] { Heard += "event "; };
        Sample.Remark.Text.View = [&](const void*) { Heard += "view "; };
        UnloadScreens();
        EXPECT_TRUE(Sample.Shown() == Design);
        Sample.LoadHidden();
        EXPECT_EQ(Heard, "load view load ");
    }
    EXPECT_EQ(AllScreens(), Others);
}

} // namespace
} // namespace velorix
