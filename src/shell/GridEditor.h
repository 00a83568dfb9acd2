// Editing of grid cells: a text box lies over the current cell, and both behave as one long field across the
// table.
#pragma once

#include "platform/Controls.h"
#include "platform/Grid.h"

#include <string>
#include <vector>

namespace velorix {

// The back colour of a grid's current cell.
constexpr Color CurrentCellColor = Rgb(0xFF, 0xFF, 0xC0);

// How one grid is edited. The two filters differ where the domain has them differ.
struct CellEditing {
    Grid& Table;
    TextBox& Editor;
    std::vector<int> EditableCols;
    std::vector<int> FilteredInGrid;   // columns in which the grid takes number keys only
    std::vector<int> FilteredInEditor; // and those in which the editor does

    // A list lies over the cells of one column, or of one row, instead of the editor.
    ComboBox* List = nullptr;
    int ListCol = 0;
    int ListRow = 0;
    std::vector<std::string> (*ListEntries)() = nullptr;

    void (*EnterOnLastRow)() = nullptr; // answers Enter, let go on the last row
    MenuItem* Menu = nullptr;           // made visible, to pop up, by a right press on a data cell
};

// What a cell takes: nothing, what is typed into the editor, an entry of the list.
enum class CellKind { Closed, Number, Choice };
CellKind KindOf(const CellEditing& Editing, int Row, int Col);

// Answers the events of grid, editor and list. The grid's Tag holds the text to which Escape goes back: the
// cell's at the moment it was entered. The description must outlive the controls' handlers.
void ConnectGridEditor(const CellEditing& Editing);

// The six grids of the input screen and that of the roughness screen. To be called after ConnectInputScreen:
// the editors' and the list's changes are edits of a cell, not of a field.
void ConnectGridEditors();

// The editor of a grid closes; Escape's text stays. Marks nothing as changed. The input screen does this by
// itself whenever it is shown.
void SettleGridEditor(const Grid& Table);

// To be called when code has filled the grid: the current cell counts as entered anew, and what was there
// before can't be brought back.
void GridFilled(Grid& Table);

// Runs a row operation of the profile table as an edit of the user.
void ChangeProfileRows(void (*Operation)());

} // namespace velorix
