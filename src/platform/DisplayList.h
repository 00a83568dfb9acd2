// What has been drawn on a surface: lines, boxes, circles, texts and pictures in drawing order. Window,
// clipboard, picture files, PDF and printer replay the same list.
#pragma once

#include "platform/Color.h"

#include <string>
#include <variant>
#include <vector>

namespace velorix {

// All lengths are in twips, 1440 to the inch; the origin is the top left, y grows downwards.
constexpr double TwipsPerPoint = 20.0;
constexpr double TwipsPerPixel = 15.0; // of the screen, at its usual scale

struct Font {
    std::string Name; // empty for the program's own
    double Size = 8;  // points
    bool Bold = false;
    bool Underline = false;
    bool operator==(const Font&) const = default;
};

struct LineItem {
    int X1, Y1, X2, Y2;
    Color Ink;
    int Width; // pixels of the screen
    bool Dashed;
    bool operator==(const LineItem&) const = default;
};

// Filled and outlined in the same colour. The corners may stand in any order.
struct BoxItem {
    int X1, Y1, X2, Y2;
    Color Fill;
    bool operator==(const BoxItem&) const = default;
};

struct CircleItem {
    int X, Y, Radius;
    Color Ink;
    int Width;
    bool operator==(const CircleItem&) const = default;
};

struct TextItem {
    double X, Y; // top left
    double Width;
    std::string Text;
    Font Face;
    Color Ink;
    bool operator==(const TextItem&) const = default;
};

struct PictureItem {
    int X, Y, Width, Height;
    std::string Name; // one of the stored pictures
    bool operator==(const PictureItem&) const = default;
};

// A picture that is part of the program: a symbol, or a caption turned to read upwards.
struct StoredPicture {
    std::string Name;
    int Width; // twips
    int Height;
    std::string Caption{}; // of a turned caption, the text
};

using DisplayItem = std::variant<LineItem, BoxItem, CircleItem, TextItem, PictureItem>;

struct DisplayList {
    int Width = 0;
    int Height = 0;
    std::vector<DisplayItem> Items;
    bool operator==(const DisplayList&) const = default;
};

} // namespace velorix
