// The components that can stand at a node.
#pragma once

#include "base/Arrays.h"

#include <cstdint>
#include <string>

namespace velorix {

// Names, padded with blanks to 20 characters; entry NodeDesc + 1 belongs to NodeDesc. The last entries are
// blank.
extern const Array1<std::string, 21> ComponentTable;
constexpr int NamedComponents = 10; // the entries that aren't blank

// The entry of a node; an empty text for a NodeDesc beyond the table.
std::string ComponentText(int NodeDesc);

// The NodeDesc of an entry, padded as it stands; 0 for any other text.
std::int16_t ComponentIndex(const std::string& Text);

} // namespace velorix
