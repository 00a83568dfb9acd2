// Cells and the current cell of a grid.
#include "platform/Grid.h"

#include "base/Failure.h"
#include "platform/Keys.h"

#include <algorithm>

namespace velorix {

Grid::Grid(int DesignRows, int DesignCols, std::string Hint)
    : Control(std::move(Hint))
    , ColWidth(static_cast<std::size_t>(DesignCols), 0)
    , ColCount(DesignCols)
{
    SetRows(DesignRows);
    Keep(ColWidth, HeaderHeight, DataRowHeight, FixedRows, FixedCols, MergeEqualCells, Cells, CurrentRow,
         CurrentCol);
    DesignIsBack = [this] { ShapeView(); };
}

GridCell& Grid::At(int Row, int Col)
{
    if (Row < 0 || Row >= Rows()) throw SubscriptFailure(Row, 0, Rows() - 1);
    if (Col < 0 || Col >= ColCount) throw SubscriptFailure(Col, 0, ColCount - 1);
    return Cells[static_cast<std::size_t>(Row)][static_cast<std::size_t>(Col)];
}

const GridCell& Grid::At(int Row, int Col) const
{
    return const_cast<Grid*>(this)->At(Row, Col);
}

void Grid::SetRows(int Count)
{
    if (Count < 0) throw SubscriptFailure(Count, 0, 32767);
    if (Count == Rows()) return;
    Cells.resize(static_cast<std::size_t>(Count), std::vector<GridCell>(static_cast<std::size_t>(ColCount)));
    CurrentRow = std::clamp(CurrentRow, 0, std::max(0, Count - 1));
    ShapeView();
}

void Grid::SetText(int Row, int Col, std::string Text)
{
    GridCell& Cell = At(Row, Col);
    if (Cell.Text == Text) return;
    Cell.Text = std::move(Text);
    CellView(Row, Col);
}

void Grid::SetBackColor(int Row, int Col, Color BackColor)
{
    At(Row, Col).BackColor = BackColor;
    CellView(Row, Col);
}

void Grid::SetBold(int Row, int Col, bool Bold)
{
    At(Row, Col).Bold = Bold;
    CellView(Row, Col);
}

int Grid::RowHeight(int Row) const
{
    return Row == 0 ? HeaderHeight : DataRowHeight;
}

void Grid::Select(int Row, int Col)
{
    if (Row == CurrentRow && Col == CurrentCol) return;
    At(Row, Col);
    LeaveCell();
    CurrentRow = Row;
    CurrentCol = Col;
    ShapeView();
    EnterCell();
}

bool Grid::Navigate(int Key)
{
    constexpr int Page = 10;
    int NewRow = CurrentRow;
    int NewCol = CurrentCol;
    switch (Key) {
    case Keys::Left: --NewCol; break;
    case Keys::Right: ++NewCol; break;
    case Keys::Up: --NewRow; break;
    case Keys::Down: ++NewRow; break;
    case Keys::PageUp: NewRow -= Page; break;
    case Keys::PageDown: NewRow += Page; break;
    case Keys::Home: NewCol = 0; break;
    case Keys::End: NewCol = ColCount; break;
    default: return false;
    }
    if (Rows() <= FixedRows || ColCount <= FixedCols) return true;
    Select(std::clamp(NewRow, FixedRows, Rows() - 1), std::clamp(NewCol, FixedCols, ColCount - 1));
    return true;
}

} // namespace velorix
