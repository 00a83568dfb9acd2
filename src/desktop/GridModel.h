// A grid as the toolkit's table model: its fixed rows and columns are the headers, the rest are the cells.
#pragma once

#include "platform/Grid.h"

#include <QAbstractTableModel>
#include <QRect>

namespace velorix {

// A merged cell can't reach out of a header, so the fixed columns of a grid that merges cells stand among the
// cells. The numbers of rows and columns are told to the view by Reset alone; until then a cell that is gone
// shows nothing.
class GridModel : public QAbstractTableModel {
public:
    GridModel(const Grid& Shown, QObject* Owner);

    int rowCount(const QModelIndex& Parent = {}) const override;
    int columnCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role = Qt::DisplayRole) const override;
    QVariant headerData(int Section, Qt::Orientation Direction, int Role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& Index) const override;

    bool Fits() const { return Told == ShapeOf(Record); }
    void Reset();
    void Refresh(); // any text may have changed

    int HeadRows() const { return Told.HeadRows; }
    int HeadCols() const { return Told.HeadCols; }

    // The index of a cell of the grid, invalid for one that stands in a header; and the way back.
    QModelIndex IndexOf(int Row, int Col) const { return index(Row - HeadRows(), Col - HeadCols()); }
    int RowOf(const QModelIndex& Index) const { return Index.row() + HeadRows(); }
    int ColOf(const QModelIndex& Index) const { return Index.column() + HeadCols(); }
    const GridCell* CellOf(const QModelIndex& Index) const;

    // True of an index that can become the current cell.
    bool IsData(const QModelIndex& Index) const;

    // The heading of a column of the grid: its fixed rows, one under the other.
    QString Heading(int Col) const;

    // The cells with which one shows as one, columns as x and rows as y of the grid.
    QRect Span(int Row, int Col) const;

private:
    struct Shape {
        int Rows = 0;
        int Cols = 0;
        int HeadRows = 0;
        int HeadCols = 0;
        bool Merging = false;
        bool operator==(const Shape&) const = default;
    };
    static Shape ShapeOf(const Grid& Table);
    bool Merges(int Row, int Col, int OtherRow, int OtherCol) const;

    const Grid& Record;
    Shape Told;
};

} // namespace velorix
