// How each grid of the program is edited.
#pragma once

#include "shell/GridEditor.h"

#include <span>

namespace velorix {

// Those of the input screen, and all: that of the roughness screen comes last.
std::span<const CellEditing> InputGrids();
std::span<const CellEditing> EditedGrids();

} // namespace velorix
