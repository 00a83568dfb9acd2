// Numbers through format strings.
#include "base/Format.h"

#include <gtest/gtest.h>
#include <limits>

namespace velorix {
namespace {

// Each of these is a half in decimal; in binary most lie just below, and a rounding of the binary value, or
// to even, would go the other way.
TEST(FormatTest, HalvesOfTheShortestDecimalGoAwayFromZero)
{
    EXPECT_EQ(Format(Single(0.125), "#0.00"), "0.13");
    EXPECT_EQ(Format(Single(2.675), "#0.00"), "2.68");
    EXPECT_EQ(Format(Single(1.005), "#0.00"), "1.01");
    EXPECT_EQ(Format(Single(-1.005), "#0.00"), "-1.01");
    EXPECT_EQ(Format(2.675, "#0.00"), "2.68");
    EXPECT_EQ(Format(1.005, "#0.00"), "1.01");
    EXPECT_EQ(Format(0.5, "#0"), "1");
    EXPECT_EQ(Format(2.5, "##0"), "3");
    EXPECT_EQ(Format(0.49999999999999994, "#0"), "1"); // 0.5 to 15 digits
    EXPECT_EQ(Format(Single(0.12449999), "#0.00"), "0.12");
}

TEST(FormatTest, ASingleIsNotReadAsTheDoubleItWidensTo)
{
    const Single Value = 1.005; // widens to 1.00499999523...
    EXPECT_EQ(Format(Value, "#0.00"), "1.01");
    EXPECT_EQ(Format(static_cast<double>(Value), "#0.00"), "1.00");
}

TEST(FormatTest, RoundingCarriesThroughNines)
{
    EXPECT_EQ(Format(Single(9.9996), "#0.000"), "10.000");
    EXPECT_EQ(Format(0.9999, "###.000"), "1.000");
    EXPECT_EQ(Format(999999.5, "#,##0"), "1,000,000");
    EXPECT_EQ(Format(0.095, "#0.0"), "0.1");
}

TEST(FormatTest, AValueThatShowsAsZeroBearsNoSign)
{
    EXPECT_EQ(Format(Single(-0.0004), "#0.000"), "0.000");
    EXPECT_EQ(Format(-0.0005, "#0.000"), "-0.001");
    EXPECT_EQ(Format(-0.4, "#0"), "0");
    EXPECT_EQ(Format(-0.0, "#0.00"), "0.00");
}

TEST(FormatTest, OptionalAndFixedDigits)
{
    EXPECT_EQ(Format(0.5, "###.000"), ".500");
    EXPECT_EQ(Format(-0.5, "###.000"), "-.500");
    EXPECT_EQ(Format(0.0, "###.000"), ".000");
    EXPECT_EQ(Format(1234.5, "###.000"), "1234.500");
    EXPECT_EQ(Format(0.0, "##0"), "0");
    EXPECT_EQ(Format(7.0, "0.0"), "7.0");
    EXPECT_EQ(Format(42, "#0.00"), "42.00");
    EXPECT_EQ(Format(2.5, "#0.0##"), "2.5");
    EXPECT_EQ(Format(2.12345, "#0.0##"), "2.123");
    EXPECT_EQ(Format(Single(0.000126), "#0.00000"), "0.00013");
    EXPECT_EQ(Format(-1234.56, "###0.0"), "-1234.6");
    EXPECT_EQ(Format(0.04, "###0.0"), "0.0");
    EXPECT_EQ(Format(12.5, "#"), "13");
    EXPECT_EQ(Format(0.0, "#"), "");
}

TEST(FormatTest, GroupsOfThousands)
{
    EXPECT_EQ(Format(1234567.0, "#,###,###,###,###,000"), "1,234,567");
    EXPECT_EQ(Format(5.0, "#,###,###,###,###,000"), "005"); // the three fixed digits
    EXPECT_EQ(Format(-123456.0, "###,###,###,##0"), "-123,456");
    EXPECT_EQ(Format(123.0, "###,###,###,##0"), "123");
    EXPECT_EQ(Format(1234.5, "###,###,##0.00"), "1,234.50");
    EXPECT_EQ(Format(1e18, "#,##0"), "1,000,000,000,000,000,000"); // longer than the pattern
}

TEST(FormatTest, VeryLargeAndVerySmallValues)
{
    EXPECT_EQ(Format(Single(1e20), "#0.0"), "100000000000000000000.0");
    EXPECT_EQ(Format(Single(16777217.0), "#0"), "16777216");
    EXPECT_EQ(Format(Single(1e-40), "#0.000"), "0.000");
    EXPECT_EQ(Format(1e-300, "###.000"), ".000");
    EXPECT_EQ(Format(0.0005, "#0.000"), "0.001"); // the first digit stands just behind the last place
    EXPECT_EQ(Format(0.00049, "#0.000"), "0.000");
    EXPECT_EQ(Format(-std::numeric_limits<double>::infinity(), "#0.0"), "-Infinity");
    EXPECT_EQ(Format(Single(std::numeric_limits<double>::quiet_NaN()), "#0.0"), "NaN");
}

} // namespace
} // namespace velorix
