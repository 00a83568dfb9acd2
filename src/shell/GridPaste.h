// Changing several cells at once: pasting, emptying, and taking changes back.
#pragma once

#include "shell/GridEditor.h"

#include <vector>

namespace velorix {

// Writes the cells as an edit of the user that can be taken back. What is typed while the
// editor is open, key by key, is one change.
void ChangeCells(const CellEditing& Editing, std::vector<CellText> New);

// Writes the clipboard's rows of tab-separated texts into the cells from the current one on, all or, when one
// of them doesn't fit, none. A number cell takes a number or nothing, a list cell one of its entries; closed
// cells are passed over.
void PasteCells(const CellEditing& Editing);

// Empties the selected number cells.
void EraseCells(const CellEditing& Editing);

// Takes the last change back that hasn't been taken back yet.
void UndoCells(const CellEditing& Editing);

} // namespace velorix
