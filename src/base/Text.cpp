// Blanks and characters.
#include "base/Text.h"

#include <algorithm>

namespace velorix {

std::string_view TrimmedLeft(std::string_view Text)
{
    Text.remove_prefix(std::min(Text.find_first_not_of(' '), Text.size()));
    return Text;
}

std::string_view TrimmedRight(std::string_view Text)
{
    return Text.substr(0, Text.find_last_not_of(' ') + 1);
}

std::string_view Trimmed(std::string_view Text)
{
    return TrimmedRight(TrimmedLeft(Text));
}

int CharacterCount(std::string_view Utf8)
{
    return static_cast<int>(std::count_if(Utf8.begin(), Utf8.end(), StartsCharacter));
}

std::string Utf8Of(char32_t Code)
{
    const auto Tail = [Code](int Shift) { return static_cast<char>(0x80 | (Code >> Shift & 0x3F)); };
    if (Code < 0x80) return {static_cast<char>(Code)};
    if (Code < 0x800) return {static_cast<char>(0xC0 | Code >> 6), Tail(0)};
    if (Code < 0x10000) return {static_cast<char>(0xE0 | Code >> 12), Tail(6), Tail(0)};
    return {static_cast<char>(0xF0 | Code >> 18), Tail(12), Tail(6), Tail(0)};
}

} // namespace velorix
