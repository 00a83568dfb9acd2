// The pipeline profile: one row a node, from the upstream end to the downstream end.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"

namespace velorix {

// The array of the working set behind a number column of the table, 1 to 6.
Array1<Single, 500>& ProfileColumn(int Col);

// Profile arrays to grid. Counts the nodes: up to the first entry whose elevation and length are both 0 or
// both marked unused, at least 2, and 499 when no entry ends the table.
void FillProfileGrid();

// Grid to profile arrays. Unreadable cells give 0, rows past 500 are dropped.
void ReadProfileGrid();

// The row operations of the table's menu. Each reads the grid back at its end.
void AddProfileRow();
void InsertProfileRow();
void DeleteProfileRow();     // the current row, after a question when it holds data
void DeleteLastProfileRow(); // the same for the last row

} // namespace velorix
