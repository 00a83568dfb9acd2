// Messages and progress on standard error.
#include "batch/Tell.h"

#include "base/Text.h"

#include <cstdio>

namespace velorix {
namespace {

constexpr char32_t Replacement = 0xFFFD;

// The length of the character that the text begins with; 0 when its bytes are no UTF-8. Overlong forms and
// halves of pairs show by encoding the character once more.
std::size_t CharacterLength(std::string_view Text)
{
    const auto First = static_cast<unsigned char>(Text.front());
    const std::size_t Length = First < 0x80 ? 1 : First < 0xC0 ? 0 : First < 0xE0 ? 2 : First < 0xF0 ? 3 : 4;
    if (Length < 2 || Text.size() < Length) return Length == 1 ? 1 : 0;
    char32_t Code = First & (0x7FU >> Length);
    for (std::size_t Place = 1; Place < Length; ++Place) {
        if (StartsCharacter(Text[Place])) return 0;
        Code = Code << 6 | (static_cast<unsigned char>(Text[Place]) & 0x3FU);
    }
    const bool Half = Code >= 0xD800 && Code <= 0xDFFF;
    return !Half && Code <= 0x10FFFF && Utf8Of(Code) == Text.substr(0, Length) ? Length : 0;
}

bool IsControl(std::string_view Character)
{
    const auto First = static_cast<unsigned char>(Character.front());
    if (Character.size() == 1) return (First < ' ' && First != '\n') || First == 0x7F;
    return First == 0xC2 && static_cast<unsigned char>(Character[1]) < 0xA0; // codes 128 to 159
}

} // namespace

std::string Readable(std::string_view Text)
{
    std::string Result;
    while (!Text.empty()) {
        const std::size_t Length = CharacterLength(Text);
        const std::string_view Character = Text.substr(0, Length);
        Result += Length == 0 || IsControl(Character) ? Utf8Of(Replacement) : std::string(Character);
        Text.remove_prefix(Length == 0 ? 1 : Length);
    }
    return Result;
}

void Tell(const std::string& Message)
{
    std::fprintf(stderr, "velorix-batch: %s\n", Readable(Message).c_str());
}

ProgressLine::ProgressLine(int HowMany, bool IsShown)
    : Count(HowMany)
    , Shown(IsShown)
{
}

ProgressLine::~ProgressLine()
{
    Hide();
}

void ProgressLine::Show(int Done) const
{
    constexpr int Width = 40;
    const std::string Bar(static_cast<std::size_t>(Width * static_cast<long long>(Done) / Count), '#');
    if (Shown) std::fprintf(stderr, "\r[%-*s] %d of %d", Width, Bar.c_str(), Done, Count);
}

void ProgressLine::Hide() const
{
    if (Shown) std::fputs("\r\033[K", stderr);
}

} // namespace velorix
