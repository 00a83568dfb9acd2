// The events of the controls and the values that they hold.
#include "platform/Controls.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

TEST(TextBoxTest, ChangeIsRaisedOnceForEachNewText)
{
    TextBox Box;
    int Changes = 0;
    Box.Change = [&] { ++Changes; };
    Box.Text = "12";
    Box.Text = "12";
    EXPECT_EQ(Changes, 1);
    Box.Text = "";
    EXPECT_EQ(Changes, 2);
}

TEST(ScrollBarTest, AValueOutsideIsHeldAtTheBound)
{
    ScrollBar Bar(2, 100, 5);
    int Changes = 0;
    Bar.Change = [&] { ++Changes; };
    EXPECT_EQ(Bar.Value, 2);
    Bar.Value = -7; // held at 2, where it stood
    EXPECT_EQ(Changes, 0);
    Bar.Value = 1000;
    EXPECT_EQ(Bar.Value, 100);
    Bar.Value = 101;
    EXPECT_EQ(Changes, 1);
}

TEST(ScrollBarTest, ANarrowerRangeMovesTheValueAndRaisesChange)
{
    ScrollBar Bar(1, 100, 5);
    Bar.Value = 40;
    int Changes = 0;
    Bar.Change = [&] { ++Changes; };
    Bar.Max = 50;
    EXPECT_EQ(Changes, 0);
    Bar.Max = 30;
    EXPECT_EQ(Bar.Value, 30);
    EXPECT_EQ(Changes, 1);
    Bar.Max = 90;
    Bar.Min = 60;
    EXPECT_EQ(Bar.Value, 60);
    Bar.Min = 95; // above the highest until that is set too
    Bar.Max = 100;
    EXPECT_EQ(Bar.Value, 95);
}

TEST(ComboBoxTest, AnIndexOutsideTheListChoosesNothing)
{
    ComboBox Box({"m", "km"});
    int Changes = 0;
    Box.Change = [&] { ++Changes; };
    EXPECT_EQ(Box.ListIndex, -1);
    EXPECT_EQ(Box.Text(), "");
    Box.ListIndex = 1;
    EXPECT_EQ(Box.Text(), "km");
    Box.ListIndex = 2;
    EXPECT_EQ(Box.ListIndex, -1);
    Box.ListIndex = -5;
    EXPECT_EQ(Changes, 2);
}

TEST(ComboBoxTest, AShorterListDropsAChoiceThatItHasNot)
{
    ComboBox Box({"m", "km", "ft"});
    Box.ListIndex = 2;
    int Changes = 0;
    Box.Change = [&] { ++Changes; };
    Box.List = {"m", "km"};
    EXPECT_EQ(Box.ListIndex, -1);
    EXPECT_EQ(Changes, 1);
    Box.ListIndex = 0;
    Box.List = {"ft"}; // the index stands, the text is the new entry's
    EXPECT_EQ(Box.Text(), "ft");
    EXPECT_EQ(Changes, 2);
}

TEST(OptionButtonTest, OneOfAGroupIsSetAndOnlyThatOneClicks)
{
    OptionButton Fixed;
    OptionButton Varying;
    GroupOptions({&Fixed, &Varying});
    std::string Clicks;
    Fixed.Click = [&] { Clicks += Varying.Value ? "both " : "fixed "; };
    Varying.Click = [&] { Clicks += Fixed.Value ? "both " : "varying "; };

    Fixed.Value = true;
    Varying.Value = true;
    Varying.Value = true;
    Fixed.Value = true;
    EXPECT_EQ(Clicks, "fixed varying fixed ");
    EXPECT_FALSE(Varying.Value);
}

TEST(OptionButtonTest, ClearingAnOptionIsNoClick)
{
    OptionButton Option;
    int Clicks = 0;
    Option.Click = [&] { ++Clicks; };
    Option.Value = true;
    Option.Value = false;
    EXPECT_EQ(Clicks, 1);
}

TEST(CheckBoxTest, TickingAndClearingBothClick)
{
    CheckBox Box;
    int Clicks = 0;
    Box.Click = [&] { ++Clicks; };
    Box.Value = true;
    Box.Value = false;
    EXPECT_EQ(Clicks, 2);
}

} // namespace
} // namespace velorix
