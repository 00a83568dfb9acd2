// What to change in the spreadsheet when a pasted profile was taken wrongly, or not at all.
#pragma once

#include "tools/ProfileImport.h"

#include <string>

namespace velorix {

struct Advice {
    std::string Text; // empty when there is nothing to say
    int Row = 1;      // the cell that it is about
    int Col = 1;
};

// What matters most of the table as it stands after a parse with that outcome.
Advice ImportAdvice(ParseOutcome Outcome);

} // namespace velorix
