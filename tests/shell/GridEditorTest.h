// The profile of a started program with four rows in it, under the keyboard.
#pragma once

#include "InputTest.h"
#include "input/ProfileTable.h"
#include "shell/GridEditor.h"

#include <gmock/gmock.h>

namespace velorix {

using Place = std::pair<int, int>; // row, col

class GridEditorTest : public InputTest {
protected:
    GridEditorTest() { Fill(); }

    void Fill()
    {
        for (int Row = 1; Row <= 4; ++Row) {
            wElevation[Row] = 50.0 + Row;
            wAccLength[Row] = 100.0 * Row;
            wDiameter[Row] = 300.0 + Row;
        }
        FillProfileGrid();
        Saved = 1;
    }

    static Place Current(const Grid& Table) { return {Table.Row(), Table.Col()}; }

    static std::vector<Place> Tinted(const Grid& Table)
    {
        std::vector<Place> Cells;
        for (int Row = 0; Row < Table.Rows(); ++Row)
            for (int Col = 0; Col < Table.Cols(); ++Col)
                if (Table.Cell(Row, Col).BackColor == CurrentCellColor) Cells.emplace_back(Row, Col);
        return Cells;
    }

    Grid& Profile = frmLCC.msgProfile;
    TextBox& Editor = frmLCC.txtCell;
};

} // namespace velorix
