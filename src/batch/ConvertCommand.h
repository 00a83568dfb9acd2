// The command that converts a number from one unit to another.
#pragma once

#include "batch/ExitStatus.h"

#include <string>

namespace velorix {

struct Conversion {
    std::string Group; // as the lists of the unit converter name it, and so the units
    std::string Source;
    std::string Target;
    std::string Value;
};

// Prints the number. What can't be converted is told and doesn't stand. Throws Failure for a group or a unit
// that no list holds.
Ending ConvertValue(const Conversion& Asked);

} // namespace velorix
