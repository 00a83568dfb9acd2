// Blanks around texts, and the characters of a UTF-8 text.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace velorix {

// Without the blanks at both sides, or at one. Only the blank (code 32) counts.
std::string_view Trimmed(std::string_view Text);
std::string_view TrimmedLeft(std::string_view Text);
std::string_view TrimmedRight(std::string_view Text);

// Without the blanks and line ends around a number that was copied from the cell of a table.
std::string_view TrimmedCell(std::string_view Text);

inline std::string Trim(std::string_view Text)
{
    return std::string(Trimmed(Text));
}

// True for the first byte of a UTF-8 character, false for the bytes that continue one.
constexpr bool StartsCharacter(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0) != 0x80;
}

int CharacterCount(std::string_view Utf8);

// The first characters of a text, all when it has fewer, and what follows them.
std::pair<std::string_view, std::string_view> SplitAfter(std::string_view Utf8, int Characters);

// In capitals, Latin letters with accents included.
std::string UpperCase(std::string Utf8);

// One character in UTF-8, 1 to 4 bytes.
std::string Utf8Of(char32_t Code);

} // namespace velorix
