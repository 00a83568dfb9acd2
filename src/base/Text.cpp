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

std::string_view TrimmedCell(std::string_view Text)
{
    constexpr std::string_view Around = " \r\n";
    Text.remove_prefix(std::min(Text.find_first_not_of(Around), Text.size()));
    return Text.substr(0, Text.find_last_not_of(Around) + 1);
}

int CharacterCount(std::string_view Utf8)
{
    return static_cast<int>(std::count_if(Utf8.begin(), Utf8.end(), StartsCharacter));
}

std::pair<std::string_view, std::string_view> SplitAfter(std::string_view Utf8, int Characters)
{
    std::size_t Length = 0;
    while (Length < Utf8.size() && (!StartsCharacter(Utf8[Length]) || Characters-- > 0)) ++Length;
    return {Utf8.substr(0, Length), Utf8.substr(Length)};
}

std::string UpperCase(std::string Utf8)
{
    constexpr std::pair<std::string_view, std::string_view> LettersApart[] = {
        {"š", "Š"}, {"ž", "Ž"}, {"œ", "Œ"}, {"ÿ", "Ÿ"}};
    constexpr char LatinLetters = '\xC3'; // leads the other letters with accents of the single-byte code page
    constexpr char Division = '\xB7';
    for (std::size_t Index = 0; Index < Utf8.size(); ++Index) {
        char& Each = Utf8[Index];
        const bool Accented = Index > 0 && Utf8[Index - 1] == LatinLetters && Each >= '\xA0' &&
                              Each <= '\xBE' && Each != Division;
        if ((Each >= 'a' && Each <= 'z') || Accented) Each = static_cast<char>(Each - 0x20);
        for (const auto& [Small, Capital] : LettersApart)
            if (Utf8.compare(Index, Small.size(), Small) == 0) Utf8.replace(Index, Small.size(), Capital);
    }
    return Utf8;
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
