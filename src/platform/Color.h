// Colours as the domain writes them: red in the low byte.
#pragma once

#include <cstdint>

namespace velorix {

struct Color {
    std::uint32_t Value = 0; // red + green * 256 + blue * 65536
    bool operator==(const Color&) const = default;
    constexpr int Red() const { return static_cast<int>(Value & 0xFF); }
    constexpr int Green() const { return static_cast<int>(Value >> 8 & 0xFF); }
    constexpr int Blue() const { return static_cast<int>(Value >> 16 & 0xFF); }
};

constexpr Color Rgb(int Red, int Green, int Blue)
{
    return Color{static_cast<std::uint32_t>(Red | Green << 8 | Blue << 16)};
}

constexpr Color Black{0};
constexpr Color PureRed{255};
constexpr Color PureGreen{65280};
constexpr Color PureYellow{65535};
constexpr Color PureBlue{16711680};

// Not colours of their own: the view paints them as the desktop's palette has them.
constexpr Color WindowColor{0x80000005};
constexpr Color ButtonColor{0x8000000F};

} // namespace velorix
