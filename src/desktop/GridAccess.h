// What a screen reader gets to know of a grid: a table of cells, and which of them is the current one.
#pragma once

namespace velorix {

class GridView;

// Makes grids known to assistive tools. To be called once a grid exists; repeating it does nothing.
void ServeGridAccess();

// Tells that the current cell of the grid has the focus now.
void AnnounceCell(GridView& View);

// Tells that the grid has another number of rows, so that tools forget the cells they knew.
void AnnounceRows(GridView& View);

} // namespace velorix
