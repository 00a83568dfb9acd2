// Whether the input screen is complete.
#pragma once

#include "platform/Controls.h"

#include <string>

namespace velorix {

// Goes through the boxes that this kind of system must fill, and reads the tables that stand between them:
// demand, profile and laying. The first box with nothing but blanks is pointed out, and the answer is false.
// Only emptiness counts: a 0 passes, and so does a text that is no number.
bool InputIsComplete();

// Tells the user what is wrong with the box and goes there. The page on top stays.
void PointOut(TextBox& Box, const std::string& Problem);

} // namespace velorix
