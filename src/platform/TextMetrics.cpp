// Fixed text widths.
#include "platform/TextMetrics.h"

#include "base/Text.h"

#include <array>
#include <cstdint>

namespace velorix {
namespace {

// Advance widths in thousandths of the font size, from the blank (32) to the tilde (126).
using WidthTable = std::array<std::int16_t, 95>;

// clang-format off
constexpr WidthTable Sans = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667, 611, 778,
    722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278,
    278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584,
};
constexpr WidthTable SansBold = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667, 611, 778,
    722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333,
    278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611,
    611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584,
};
constexpr WidthTable Serif = {
    250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278, 500, 500, 500, 500,
    500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444, 921, 722, 667, 667, 722, 611, 556, 722,
    722, 333, 389, 722, 611, 889, 722, 722, 556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611, 333,
    278, 333, 469, 500, 333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778, 500, 500,
    500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541,
};
constexpr WidthTable SerifBold = {
    250, 333, 555, 500, 500, 1000, 833, 278, 333, 333, 500, 570, 250, 333, 250, 278, 500, 500, 500, 500,
    500, 500, 500, 500, 500, 500, 333, 333, 570, 570, 570, 500, 930, 722, 667, 722, 722, 667, 611, 778,
    778, 389, 500, 778, 667, 944, 722, 778, 611, 778, 722, 556, 667, 722, 722, 1000, 722, 722, 667, 333,
    278, 333, 581, 500, 333, 500, 556, 444, 556, 444, 333, 500, 556, 278, 333, 556, 278, 833, 556, 500,
    556, 556, 444, 389, 333, 556, 500, 722, 500, 500, 444, 394, 220, 394, 520,
};
// clang-format on

constexpr int FixedPitch = 600;

// What the regular typefaces tell as their average.
constexpr int SansAverage = 441;
constexpr int SerifAverage = 401;

const WidthTable& TableOf(const Font& Face)
{
    if (Face.Name == "Times New Roman") return Face.Bold ? SerifBold : Serif;
    return Face.Bold ? SansBold : Sans;
}

} // namespace

double FixedTextWidth(std::string_view Utf8, const Font& Face)
{
    const WidthTable& Widths = TableOf(Face);
    const bool Fixed = Face.Name == "Courier New";
    int Sum = 0;
    for (const char Each : Utf8) {
        if (!StartsCharacter(Each)) continue;
        const bool InTable = Each >= ' ' && Each <= '~';
        const std::size_t Place = static_cast<std::size_t>((InTable ? Each : '0') - ' ');
        Sum += Fixed ? FixedPitch : Widths.at(Place);
    }
    return Sum * Face.Size * TwipsPerPoint / 1000.0;
}

double FixedTextHeight(const Font& Face)
{
    return 1.15 * Face.Size * TwipsPerPoint;
}

double AverageCharacterWidth(const Font& Face)
{
    const int Average = Face.Name == "Courier New"       ? FixedPitch
                        : Face.Name == "Times New Roman" ? SerifAverage
                                                         : SansAverage;
    return Average * Face.Size * TwipsPerPoint / 1000.0;
}

} // namespace velorix
