// A display list as JSON.
#pragma once

#include "platform/DisplayList.h"

#include <string>

namespace velorix {

// {"plot", "width", "height", "items"}, the items in drawing order, one to a line. All lengths are in twips,
// those of pens too; sizes of texts are in points.
std::string DisplayListToJson(const DisplayList& Image, const std::string& Plot);

} // namespace velorix
