// Cells and the current cell of a grid.
#include "platform/Grid.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>

namespace velorix {

Grid::Grid(int DesignRows, int DesignCols, std::string Hint)
    : Control(std::move(Hint))
    , ColWidth(static_cast<std::size_t>(DesignCols), 0)
    , ColCount(DesignCols)
{
    SetRows(DesignRows);
    Keep(ColWidth, HeaderHeight, DataRowHeight, FixedRows, FixedCols, HeadingRows, Centred, MergeEqualCells,
         MergeCols, Cells, ColCount, CurrentRow, CurrentCol, ExtentRow, ExtentCol);
    DesignIsBack = [this] {
        History.clear();
        ShapeView();
    };
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
    PutCurrent(std::clamp(CurrentRow, 0, std::max(0, Count - 1)), CurrentCol);
    History.clear();
    ShapeView();
}

void Grid::SetCols(int Count)
{
    if (Count < 1) throw SubscriptFailure(Count, 1, 32767);
    if (Count == ColCount) return;
    ColCount = Count;
    for (auto& Each : Cells) Each.resize(static_cast<std::size_t>(Count));
    PutCurrent(CurrentRow, std::min(CurrentCol, Count - 1));
    History.clear();
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

void Grid::Select(int Row, int Col)
{
    if (Row == CurrentRow && Col == CurrentCol) return;
    At(Row, Col);
    LeaveCell();
    PutCurrent(Row, Col);
    ShapeView();
    EnterCell();
}

void Grid::PutCurrent(int Row, int Col)
{
    CurrentRow = ExtentRow = Row;
    CurrentCol = ExtentCol = Col;
}

bool Grid::IsHeadingRow(int Row) const
{
    return std::find(HeadingRows.begin(), HeadingRows.end(), Row) != HeadingRows.end();
}

void Grid::SelectTo(int Row, int Col)
{
    At(Row, Col);
    ExtentRow = Row;
    ExtentCol = Col;
    ShapeView();
}

CellRange Grid::Selected() const
{
    const auto [FirstRow, LastRow] = std::minmax({CurrentRow, ExtentRow});
    const auto [FirstCol, LastCol] = std::minmax({CurrentCol, ExtentCol});
    return {FirstRow, FirstCol, LastRow, LastCol};
}

std::string Grid::SelectedText() const
{
    CellRange Range = Selected();
    if (Range.LastRow >= Rows() || IsFixed(Range.FirstRow, Range.FirstCol)) return {};
    const bool WholeCols = Range.FirstRow == FixedRows && Range.LastRow == Rows() - 1;
    const bool WholeRows = Range.FirstCol == FixedCols && Range.LastCol == ColCount - 1;
    if (!Paste && WholeCols) Range.FirstRow = 0;
    if (!Paste && WholeCols && WholeRows) Range.FirstCol = 0;
    std::string Lines;
    for (int Row = Range.FirstRow; Row <= Range.LastRow; ++Row)
        for (int Col = Range.FirstCol; Col <= Range.LastCol; ++Col)
            Lines.append(Trimmed(Text(Row, Col))) += Col < Range.LastCol ? '\t' : '\n';
    return Lines;
}

} // namespace velorix
