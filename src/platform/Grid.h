// The grid control: a table of text cells with fixed headings and one current cell.
#pragma once

#include "platform/Controls.h"

#include <string>
#include <vector>

namespace velorix {

struct GridCell {
    std::string Text;
    Color BackColor = WindowColor;
    bool operator==(const GridCell&) const = default;
};

// A cell's place and what it held or is to hold.
struct CellText {
    int Row;
    int Col;
    std::string Text;
};

// Neighbouring cells, both ends included.
struct CellRange {
    int FirstRow;
    int FirstCol;
    int LastRow;
    int LastCol;

    bool Holds(int Row, int Col) const
    {
        return Row >= FirstRow && Row <= LastRow && Col >= FirstCol && Col <= LastCol;
    }
};

// Rows and columns count from 0, the fixed ones included. A cell outside the grid throws SubscriptFailure.
// Sizes are in twips; 0 leaves the size to the view.
struct Grid : Control {
    Grid(int DesignRows, int DesignCols, std::string Hint = {});

    int Rows() const { return static_cast<int>(Cells.size()); }
    int Cols() const { return ColCount; }

    // Rows that stay keep their cells, new ones are empty. The current cell is kept inside the grid.
    void SetRows(int Count);
    void SetCols(int Count); // the same of columns

    const std::string& Text(int Row, int Col) const { return At(Row, Col).Text; }
    void SetText(int Row, int Col, std::string Text);
    const GridCell& Cell(int Row, int Col) const { return At(Row, Col); }
    void SetBackColor(int Row, int Col, Color BackColor);

    int HeaderHeight = 0;  // row 0
    int DataRowHeight = 0; // the others
    std::vector<int> ColWidth;

    int FixedRows = 1;
    int FixedCols = 0;
    std::vector<int> HeadingRows; // rows below the fixed ones that hold headings and can't be edited
    bool Centred = false;         // the texts of the cells, instead of numbers at the right
    bool MergeEqualCells = false; // neighbouring equal cells of a row show as one
    std::vector<int> MergeCols;   // columns in which those of neighbouring rows do so too

    int Row() const { return CurrentRow; }
    int Col() const { return CurrentCol; }

    // Moves the current cell. LeaveCell is raised with the old cell still current, then EnterCell; neither
    // when the cell is current already.
    void Select(int Row, int Col);

    bool IsFixed(int Row, int Col) const { return Row < FixedRows || Col < FixedCols; }
    bool IsHeadingRow(int Row) const;

    // The selection: the current cell alone until SelectTo reaches from it to another cell.
    void SelectTo(int Row, int Col);
    CellRange Selected() const;

    // The selected cells as spreadsheets take them: a tab between two cells, a line end behind each row. A
    // grid that takes no paste puts the headings of whole columns before them.
    std::string SelectedText() const;

    Handler EnterCell;
    Handler LeaveCell;
    KeyHandler KeyPress;
    KeyHandler KeyDown;
    KeyHandler KeyUp;
    Event<int> MouseDown; // the button: 1 left, 2 right on a data cell, 4 any other press
    Handler DblClick;     // with the left button, on the current cell
    Handler Paste;        // the keys of these two commands
    Handler Undo;

    Event<int, int> CellView; // tells the attached view that a cell has changed
    Handler ShapeView;        // tells it that rows, the current cell or the selection have, or all at once

    // What undoing brings back, newest last; kept by the domain. It goes with any change of the rows.
    std::vector<std::vector<CellText>> History;
    bool HistoryGoesOn = false; // what else is typed in the open editor belongs to the newest

private:
    void PutCurrent(int Row, int Col);
    GridCell& At(int Row, int Col);
    const GridCell& At(int Row, int Col) const;

    int ColCount;
    std::vector<std::vector<GridCell>> Cells;
    int CurrentRow = 0;
    int CurrentCol = 0;
    int ExtentRow = 0; // the corner of the selection that lies opposite to the current cell
    int ExtentCol = 0;
};

} // namespace velorix
