// The grid control: a table of text cells with fixed headings and one current cell.
#pragma once

#include "platform/Controls.h"

#include <string>
#include <vector>

namespace velorix {

struct GridCell {
    std::string Text;
    Color BackColor = WindowColor;
    bool Bold = false;
    bool operator==(const GridCell&) const = default;
};

// Rows and columns count from 0, the fixed ones included. A cell outside the grid throws SubscriptFailure.
// Sizes are in twips; 0 leaves the size to the view.
struct Grid : Control {
    Grid(int DesignRows, int DesignCols, std::string Hint = {});

    int Rows() const { return static_cast<int>(Cells.size()); }
    int Cols() const { return ColCount; }

    // Rows that stay keep their cells, new ones are empty. The current cell is kept inside the grid.
    void SetRows(int Count);

    const std::string& Text(int Row, int Col) const { return At(Row, Col).Text; }
    void SetText(int Row, int Col, std::string Text);
    const GridCell& Cell(int Row, int Col) const { return At(Row, Col); }
    void SetBackColor(int Row, int Col, Color BackColor);
    void SetBold(int Row, int Col, bool Bold);

    int RowHeight(int Row) const;
    int HeaderHeight = 0;  // row 0
    int DataRowHeight = 0; // the others
    std::vector<int> ColWidth;

    int FixedRows = 1;
    int FixedCols = 0;
    bool MergeEqualCells = false; // neighbouring equal cells of a row show as one

    int Row() const { return CurrentRow; }
    int Col() const { return CurrentCol; }

    // Moves the current cell. LeaveCell is raised with the old cell still current, then EnterCell; neither
    // when the cell is current already.
    void Select(int Row, int Col);

    // What a grid does by itself with a pressed key (platform/Keys.h): arrows, Home, End and the page keys
    // move the current cell inside the cells that aren't fixed. False for any other key.
    bool Navigate(int Key);

    Handler EnterCell;
    Handler LeaveCell;
    KeyHandler KeyPress;
    KeyHandler KeyDown;
    KeyHandler KeyUp;
    Event<int> MouseDown; // the button: 1 left, 2 right on a data cell, 4 any other press
    Handler DblClick;     // with the left button, on the current cell

    Event<int, int> CellView; // tells the attached view that a cell has changed
    Handler ShapeView;        // tells it that rows or the current cell have, or all at once

private:
    GridCell& At(int Row, int Col);
    const GridCell& At(int Row, int Col) const;

    const int ColCount;
    std::vector<std::vector<GridCell>> Cells;
    int CurrentRow = 0;
    int CurrentCol = 0;
};

} // namespace velorix
