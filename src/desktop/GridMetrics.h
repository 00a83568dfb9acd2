// Where the cells of a grid lie, in pixels from the corner of the whole, unscrolled grid.
#pragma once

#include "platform/Grid.h"

#include <QFont>
#include <QRect>

#include <tuple>
#include <vector>

namespace velorix {

// Neighbouring columns, both ends included.
struct ColSpan {
    int First = 0;
    int Last = 0;
};

// The columns that a cell covers: more than one where equal neighbours show as one cell.
ColSpan MergedCols(const Grid& Table, int Row, int Col);

// A heading, or a cell that names its row.
bool IsFixedCell(const Grid& Table, int Row, int Col);

class GridMetrics {
public:
    // The told column widths are the least ones: no heading is clipped, headings may break into two lines,
    // and the columns that aren't fixed share what is left of the room.
    void Measure(const Grid& Table, const QFont& Font, int DotsPerInch, int RoomWidth);

    // False once the grid's shape differs from what was measured.
    bool Fits(const Grid& Table) const { return Told == ShapeOf(Table); }

    int Left(int Col) const { return ColLeft.at(static_cast<std::size_t>(Col)); }
    int Top(int Row) const { return Row == 0 ? 0 : HeaderHeight + (Row - 1) * RowHeight; }
    int DataRowHeight() const { return RowHeight; }

    // The column or row at a position; one past the last when there is none.
    int ColAt(int X) const;
    int RowAt(int Y) const;

    QSize Size() const { return {ColLeft.back(), Top(Rows)}; }
    QSize FixedSize() const { return Fixed; }

    // Without what the columns were stretched by.
    int NaturalWidth() const { return Natural; }

private:
    using Shape = std::tuple<int, int, int, int, int, bool, std::vector<int>>;
    static Shape ShapeOf(const Grid& Table)
    {
        return {Table.Rows(),        Table.FixedRows,       Table.FixedCols, Table.HeaderHeight,
                Table.DataRowHeight, Table.MergeEqualCells, Table.ColWidth};
    }

    void Spread(const Grid& Table, int RoomWidth);

    Shape Told;
    std::vector<int> ColLeft = {0}; // of each column, and the right end of the last
    int HeaderHeight = 0;
    int RowHeight = 1;
    int Rows = 0;
    int Natural = 0;
    QSize Fixed;
};

// The room between a cell's border and its text (pixels).
constexpr int CellPadding = 5;

} // namespace velorix
