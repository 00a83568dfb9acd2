// The results of the roughness as rows of a table, for screen and command.
#pragma once

#include "roughness/RoughnessStores.h"

#include <array>
#include <string>

namespace velorix {

struct RoughnessRow {
    const char* Name;
    const ByStretch<Single>& Values;
    bool Thousandfold; // shown in mm
    const char* Pattern;

    // Empty for a stretch that takes no part.
    std::string Text(int Scenario, int Stretch) const;
};

extern const std::array<RoughnessRow, 7> RoughnessRows;

} // namespace velorix
