// Windows-1252: Latin-1 but for the bytes 0x80 to 0x9F.
#include "base/CodePage.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace velorix {
namespace {

// Characters of the bytes 0x80 to 0x9F (Unicode's own mapping table CP1252.TXT).
// clang-format off
constexpr std::array<char32_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

// Takes one character off the front of the text. No value when the bytes there are no UTF-8; one byte is
// taken then.
std::optional<char32_t> TakeUtf8(std::string_view& Text)
{
    const auto ByteAt = [&](std::size_t Index) { return static_cast<unsigned char>(Text[Index]); };
    const unsigned char Lead = ByteAt(0);
    const std::size_t Length = Lead < 0x80         ? 1
                               : Lead >> 5 == 0x6  ? 2
                               : Lead >> 4 == 0xE  ? 3
                               : Lead >> 3 == 0x1E ? 4
                                                   : 0;
    char32_t Code = Length == 1 ? Lead : Lead & (0x7F >> Length);
    bool Sound = Length != 0 && Length <= Text.size();
    for (std::size_t Index = 1; Sound && Index < Length; ++Index) {
        Sound = ByteAt(Index) >> 6 == 0x2;
        Code = Code << 6 | (ByteAt(Index) & 0x3F);
    }
    // More bytes than the character needs: UTF-8 forbids it, and "/" or NUL could hide in it.
    constexpr std::array<char32_t, 5> LeastOfLength = {0, 0, 0x80, 0x800, 0x10000};
    Sound = Sound && Code >= LeastOfLength[Length];
    Text.remove_prefix(Sound ? Length : 1);
    return Sound ? std::optional(Code) : std::nullopt;
}

// No value for a character outside the code page.
std::optional<char> ByteOf(char32_t Code)
{
    const auto* const Found = std::find(HighControls.begin(), HighControls.end(), Code);
    if (Found != HighControls.end()) return static_cast<char>(0x80 + (Found - HighControls.begin()));
    const bool Latin = Code < 0x80 || (Code >= 0xA0 && Code <= 0xFF);
    return Latin ? std::optional(static_cast<char>(Code)) : std::nullopt;
}

} // namespace

bool InCodePage(char32_t Code)
{
    return ByteOf(Code).has_value();
}

std::string ToCodePage(std::string_view Utf8)
{
    std::string Result;
    while (!Utf8.empty()) {
        const std::optional<char32_t> Code = TakeUtf8(Utf8);
        Result += Code ? ByteOf(*Code).value_or('?') : '?';
    }
    return Result;
}

std::string FromCodePage(std::string_view Bytes)
{
    std::string Result;
    for (const char Each : Bytes) {
        const unsigned char Byte = static_cast<unsigned char>(Each);
        Result += Utf8Of(Byte >= 0x80 && Byte < 0xA0 ? HighControls[Byte - 0x80U] : Byte);
    }
    return Result;
}

} // namespace velorix
