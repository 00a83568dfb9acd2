// The texts of a project's choices, as a user sees them on the screens.
#pragma once

#include "model/Fields.h"

#include <string>
#include <vector>

namespace velorix {

// The text of each number that the field may hold, from 0 on; none for a field that is no choice. A number
// beyond them, such as a component without a name, has no text.
std::vector<std::string> TextsOf(const FieldRule& Field);

} // namespace velorix
