// The single-byte code page against UTF-8.
#include "base/CodePage.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

// Unicode's mapping table CP1252.TXT: 0x80 euro, 0x92 right quote, 0x9F Y with diaeresis, 0xB3 superscript
// three.
TEST(CodePageTest, BytesStandForTheCharactersOfTheTableAndEachComesBack)
{
    EXPECT_EQ(FromCodePage("\x80 \x92 \x9F m\xB3 \xE9"), "€ ’ Ÿ m³ é");
    std::string Bytes;
    for (int Byte = 0; Byte < 256; ++Byte) Bytes += static_cast<char>(Byte);
    EXPECT_EQ(ToCodePage(FromCodePage(Bytes)), Bytes);
}

TEST(CodePageTest, WhatHasNoByteOrIsNoUtf8CostsNoMoreThanItsOwnBytes)
{
    EXPECT_EQ(ToCodePage("Ω 水 😀."), "? ? ?.");
    EXPECT_EQ(ToCodePage("\u0080"), "?");           // the byte 0x80 is the euro's
    EXPECT_EQ(ToCodePage("a\x80z"), "a?z");         // a continuation without a lead
    EXPECT_EQ(ToCodePage("a\xC3z"), "a?z");         // a lead without its continuation
    EXPECT_EQ(ToCodePage("a\xE2\x82"), "a??");      // the text ends inside a character
    EXPECT_EQ(ToCodePage("\xFFz"), "?z");           // no lead at all
    EXPECT_EQ(ToCodePage("\xC1\x81z"), "??z");      // "A" in two bytes
    EXPECT_EQ(ToCodePage("\xE0\x82\xA9z"), "???z"); // the copyright sign in three
}

} // namespace
} // namespace velorix
