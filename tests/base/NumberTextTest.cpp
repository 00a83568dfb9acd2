// Numbers to plain text and back.
#include "base/NumberText.h"

#include "base/Failure.h"

#include <cmath>
#include <gmock/gmock.h>
#include <random>

namespace velorix {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(GeneralTextTest, ShortestFormWithAnExponentOutsideThePlainRange)
{
    EXPECT_EQ(GeneralText(Single(-1250.0)), "-1250");
    EXPECT_EQ(GeneralText(0.1 + 0.2), "0.3"); // 15 digits
    EXPECT_EQ(GeneralText(Single(-0.0)), "0");
    EXPECT_EQ(GeneralText(1e14), "100000000000000");
    EXPECT_EQ(GeneralText(Single(1e15)), "1E+15");
    EXPECT_EQ(GeneralText(-1.25e20), "-1.25E+20");
    EXPECT_EQ(GeneralText(0.00001), "0.00001");
    EXPECT_EQ(GeneralText(Single(2.5e-7)), "2.5E-07");
    EXPECT_EQ(GeneralText(1e-300), "1E-300");
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
    EXPECT_EQ(ParseSingle(" +.5 "), 0.5);
    EXPECT_EQ(ParseSingle("5."), 5.0);
    EXPECT_EQ(ParseSingle("1e-3"), Single(0.001));
    EXPECT_EQ(ParseDouble("0.1"), 0.1); // not through 32 bits
    for (const char* Text :
         {"", " ", "-", ".", "1e", "1e+", "12abc", "1 2", "1,5", "+-1", "0x10", "inf", "NaN"})
        EXPECT_THROW(ParseSingle(Text), ConversionFailure) << Text;
    EXPECT_THAT([] { ParseDouble("12abc"); }, ThrowsMessage<ConversionFailure>(HasSubstr("\"12abc\"")));
}

TEST(LeadingNumberTest, WhatFollowsTheNumberIsDropped)
{
    const std::pair<const char*, double> Cases[] = {{"  12abc", 12}, {"12.5.7", 12.5}, {"3e", 3}, {"3e+x", 3},
                                                    {"-7 m", -7},    {"1,234", 1},     {"", 0},   {"abc", 0},
                                                    {"-", 0},        {".", 0},         {"e5", 0}, {"- 5", 0}};
    for (const auto& [Text, Value] : Cases) EXPECT_EQ(LeadingNumber(Text), Value) << Text;
}

TEST(NumberTextTest, TooLargeFailsAndTooSmallIsZero)
{
    const std::string Zeros(5000, '0');
    for (const std::string& Text : {std::string("3.4028236e38"), std::string("-1e39"), "1" + Zeros,
                                    std::string("1e99999999999"), "1" + Zeros + "e-100"}) {
        EXPECT_THROW(ParseSingle(Text), ArithmeticFailure) << Text;
        EXPECT_THROW(LeadingNumber(Text + " m"), ArithmeticFailure) << Text;
    }
    for (const std::string& Text :
         {std::string("1e-50"), std::string("-1e-99999999999"), "0." + Zeros + "1", "0." + Zeros + "1e100"})
        EXPECT_EQ(ParseSingle(Text), 0.0) << Text;
    EXPECT_THROW(ParseDouble("1e309"), ArithmeticFailure);
}

} // namespace
} // namespace velorix
