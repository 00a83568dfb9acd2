// Numbers to plain text and back.
#include "base/NumberText.h"

#include "base/Failure.h"
#include "base/Format.h"

#include <clocale>
#include <cmath>
#include <gmock/gmock.h>
#include <locale>
#include <random>

namespace velorix {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(GeneralTextTest, ShortestFormWithinThePlainRange)
{
    EXPECT_EQ(GeneralText(Single(0.1)), "0.1");
    EXPECT_EQ(GeneralText(Single(-1250.0)), "-1250");
    EXPECT_EQ(GeneralText(Single(0.001)), "0.001");
    EXPECT_EQ(GeneralText(Single(16777216.0)), "16777216");
    EXPECT_EQ(GeneralText(0.1 + 0.2), "0.3"); // 15 digits
    EXPECT_EQ(GeneralText(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(GeneralText(Single(-0.0)), "0");
}

TEST(GeneralTextTest, ExponentOutsideThePlainRange)
{
    EXPECT_EQ(GeneralText(1e14), "100000000000000");
    EXPECT_EQ(GeneralText(Single(1e15)), "1E+15");
    EXPECT_EQ(GeneralText(-1.25e20), "-1.25E+20");
    EXPECT_EQ(GeneralText(0.00001), "0.00001");
    EXPECT_EQ(GeneralText(Single(2.5e-7)), "2.5E-07");
    EXPECT_EQ(GeneralText(1e-300), "1E-300");
    EXPECT_EQ(GeneralText(-HUGE_VAL), "-Infinity");
}

TEST(ParseSingleTest, EveryBitPatternComesBackFromItsText)
{
    std::mt19937 Random(20050303);
    for (int Trial = 0; Trial < 200000; ++Trial) {
        const Single Value = Single::FromBits(static_cast<std::uint32_t>(Random()));
        if (!std::isfinite(Value.Float())) continue;
        const std::string Text = GeneralText(Value);
        ASSERT_EQ(ParseSingle(Text).Bits(), Value.Bits()) << Text;
        ASSERT_EQ(LeadingNumber(Text).Bits(), Value.Bits()) << Text;
    }
}

TEST(ParseSingleTest, TheWholeTextMustBeANumber)
{
    EXPECT_EQ(ParseSingle(" 12.5 "), 12.5);
    EXPECT_EQ(ParseSingle("+.5"), 0.5);
    EXPECT_EQ(ParseSingle("5."), 5.0);
    EXPECT_EQ(ParseSingle("1E+15"), Single(1e15));
    EXPECT_EQ(ParseSingle("1e-3"), Single(0.001));
    EXPECT_EQ(ParseDouble("0.1"), 0.1); // not through 32 bits
    for (const char* Text :
         {"", " ", "-", ".", "1e", "1e+", "12abc", "1 2", "1,5", "+-1", "0x10", "inf", "NaN"}) {
        EXPECT_THROW(ParseSingle(Text), ConversionFailure) << Text;
        EXPECT_THROW(ParseDouble(Text), ConversionFailure) << Text;
    }
    EXPECT_THAT([] { ParseSingle("12abc"); }, ThrowsMessage<ConversionFailure>(HasSubstr("\"12abc\"")));
}

TEST(LeadingNumberTest, WhatFollowsTheNumberIsDropped)
{
    EXPECT_EQ(LeadingNumber("  12abc"), 12.0);
    EXPECT_EQ(LeadingNumber("12.5.7"), 12.5);
    EXPECT_EQ(LeadingNumber("3e"), 3.0);
    EXPECT_EQ(LeadingNumber("3e+x"), 3.0);
    EXPECT_EQ(LeadingNumber("-7 m"), -7.0);
    EXPECT_EQ(LeadingNumber("1,234"), 1.0);
    for (const char* Text : {"", "abc", "-", ".", "e5", "- 5"}) EXPECT_EQ(LeadingNumber(Text), 0.0) << Text;
}

TEST(NumberTextTest, TooLargeFailsAndTooSmallIsZero)
{
    EXPECT_EQ(ParseSingle("3.4028235e38"), Single(3.4028235e38));
    const std::string Zeros(5000, '0');
    for (const std::string& Text :
         {std::string("3.4028236e38"), std::string("-1e39"), std::string("1e99999999999"), "1" + Zeros}) {
        EXPECT_THROW(ParseSingle(Text), ArithmeticFailure) << Text;
        EXPECT_THROW(LeadingNumber(Text + " m"), ArithmeticFailure) << Text;
    }
    for (const std::string& Text :
         {std::string("1e-50"), std::string("-1e-5000"), std::string("1e-99999999999"), "0." + Zeros + "1",
          "1" + Zeros + "e-6000"})
        EXPECT_EQ(ParseSingle(Text), 0.0) << Text;
    EXPECT_EQ(ParseDouble("1e300"), 1e300);
    EXPECT_THROW(ParseDouble("1e309"), ArithmeticFailure);
}

struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// The C++ locale for what goes through streams, and the C one, where such a locale is installed, for the
// rest.
TEST(NumberTextTest, TheLocaleChangesNothing)
{
    const std::string Before = std::setlocale(LC_ALL, nullptr);
    const std::locale Former = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
    for (const char* Name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"})
        if (std::setlocale(LC_ALL, Name)) break;

    EXPECT_EQ(GeneralText(Single(1234.5)), "1234.5");
    EXPECT_EQ(GeneralText(1e-20), "1E-20");
    EXPECT_EQ(Format(1234.5, "#,##0.00"), "1,234.50");
    EXPECT_EQ(ParseSingle("1234.5"), 1234.5);
    EXPECT_EQ(ParseDouble("1e-400"), 0.0);
    EXPECT_EQ(LeadingNumber("1,5"), 1.0);

    std::locale::global(Former);
    std::setlocale(LC_ALL, Before.c_str());
}

} // namespace
} // namespace velorix
