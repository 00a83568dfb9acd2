// The unit converter: lists of units, and the conversion of a number. It knows no screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velorix {

// What the lists hold. Of a group that no list shows: none.
std::vector<std::string> ConverterGroupTexts();
std::vector<std::string> ConverterUnitTexts(std::string_view Group);

// The number that Value, in the unit Source, is in the unit Target, as plain text; the units by their texts.
// A text that is no unit of the group counts as a factor of 0. Throws Failure when the value is no number,
// when one of the units can't be converted, and when the result is no number or beyond its range.
std::string ConvertUnits(std::string_view Group, std::string_view Source, std::string_view Target,
                         std::string_view Value);

// What the user is told of such a failure.
inline constexpr const char* ConversionFailed =
    "There was an error converting the value.  Please ensure it is a valid number";

} // namespace velorix
