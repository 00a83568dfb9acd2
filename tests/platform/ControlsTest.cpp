// The events of the controls and the values that they hold.
#include "platform/Controls.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

TEST(ScrollBarTest, TheValueIsHeldInsideARangeThatMayMove)
{
    ScrollBar Bar(2, 100, 5);
    int Changes = 0;
    Bar.Change = [&] { ++Changes; };
    Bar.Value = -7; // held at 2, where it stood
    EXPECT_EQ(Changes, 0);
    Bar.Value = 1000;
    Bar.Value = 101;
    EXPECT_EQ(Bar.Value, 100);
    EXPECT_EQ(Changes, 1);
    Bar.Max = 30;
    EXPECT_EQ(Bar.Value, 30);
    Bar.Max = 90;
    EXPECT_EQ(Changes, 2);
    Bar.Min = 95; // above the highest until that is set too
    EXPECT_EQ(Bar.Value, 95);
}

TEST(ComboBoxTest, AnIndexOutsideTheListChoosesNothing)
{
    ComboBox Box({"m", "km", "ft"});
    std::string Heard;
    Box.Change = [&] { Heard += Box.Text() + "."; };
    Box.ListIndex = 2;
    Box.List = {"m", "km"};
    Box.ListIndex = 0;
    Box.List = {"yd"}; // the index stands, the text is the new entry's
    EXPECT_EQ(Box.Text(), "yd");
    Box.ListIndex = 1;
    Box.ListIndex = -5; // nothing is chosen already
    EXPECT_EQ(Box.ListIndex, -1);
    EXPECT_EQ(Heard, "ft..m..");
}

TEST(OptionButtonTest, OneOfAGroupIsSetAndOnlyThatOneClicks)
{
    OptionButton Fixed, Varying, Loose;
    CheckBox Box;
    GroupOptions({&Fixed, &Varying});
    std::string Clicks;
    Fixed.Click = [&] { Clicks += Varying.Value ? "both " : "fixed "; };
    Varying.Click = [&] { Clicks += Fixed.Value ? "both " : "varying "; };
    Loose.Click = [&] { Clicks += "loose "; };
    Box.Click = [&] { Clicks += "box "; };
    for (OptionButton* Each : {&Fixed, &Varying, &Varying, &Fixed}) Each->Value = true;
    for (const bool Set : {true, false})
        Box.Value = Loose.Value = Set; // only a box clicks when it is cleared
    EXPECT_EQ(Clicks, "fixed varying fixed loose box box ");
}

} // namespace
} // namespace velorix
