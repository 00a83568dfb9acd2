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
    const Single Value = 1.005; // widens to 1.00499999523...
    EXPECT_EQ(Format(Value, "#0.00"), "1.01");
    EXPECT_EQ(Format(static_cast<double>(Value), "#0.00"), "1.00");
    EXPECT_EQ(Format(Single(-2.675), "#0.00"), "-2.68");
    EXPECT_EQ(Format(2.5, "##0"), "3");
    EXPECT_EQ(Format(0.49999999999999994, "#0"), "1"); // 0.5 to 15 digits
    EXPECT_EQ(Format(0.0005, "#0.000"), "0.001");      // the first digit stands just behind the last place
}

TEST(FormatTest, DigitsSignAndGroupsFollowThePattern)
{
    struct {
        double Value;
        const char* Pattern;
        const char* Text;
    } const Cases[] = {
        {9.9996, "#0.000", "10.000"},
        {-0.0004, "#0.000", "0.000"}, // what shows as zero bears no sign
        {1e-300, "###.000", ".000"},
        {-0.5, "###.000", "-.500"},
        {0.0, "#", ""},
        {12.5, "#", "13"},
        {2.5, "#0.0##", "2.5"},
        {2.12345, "#0.0##", "2.123"},
        {999999.5, "#,##0", "1,000,000"},
        {5.0, "#,###,###,###,###,000", "005"}, // the three fixed digits
        {-123456.0, "###,###,###,##0", "-123,456"},
        {1234.5, "###,###,##0.00", "1,234.50"},
        {1e18, "#,##0", "1,000,000,000,000,000,000"}, // longer than the pattern
        {-std::numeric_limits<double>::infinity(), "#0.0", "-Infinity"},
        {std::numeric_limits<double>::quiet_NaN(), "#0.0", "NaN"},
    };
    for (const auto& [Value, Pattern, Text] : Cases) EXPECT_EQ(Format(Value, Pattern), Text) << Pattern;
    EXPECT_EQ(Format(Single(1e20), "#0.0"), "100000000000000000000.0");
}

} // namespace
} // namespace velorix
