// Numbers through the quoted format strings of screens and reports.
#pragma once

#include "base/Single.h"

#include <string>
#include <string_view>

namespace velorix {

// The number in a format such as "#0.000": "#" an optional digit, "0" a digit that always shows, "," between
// them groups thousands. Halves round away from zero, judged on the shortest decimal form of the number (15
// significant digits for a double). A value that shows as zero bears no sign. Values that are not finite show
// as GeneralText gives them.
std::string Format(Single Value, std::string_view Pattern);
std::string Format(double Value, std::string_view Pattern);
std::string Format(int Value, std::string_view Pattern);

} // namespace velorix
