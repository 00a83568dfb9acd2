// Widths of texts from a fixed table, for a window system without fonts of its own.
#pragma once

#include "platform/DisplayList.h"

#include <string_view>

namespace velorix {

// Width of the text (twips), the same on every machine: by the character widths that the usual sans serif,
// and for "Times New Roman" and "Courier New" the serif and fixed-width, typefaces share. A character outside
// ASCII takes the width of a digit.
double FixedTextWidth(std::string_view Utf8, const Font& Face);

// From the top of one line of text to the top of the next (twips).
double FixedTextHeight(const Font& Face);

// The average width of a character (twips), by which columns are counted on paper. Bold and regular share it,
// so that a bold heading stands over its column.
double AverageCharacterWidth(const Font& Face);

} // namespace velorix
