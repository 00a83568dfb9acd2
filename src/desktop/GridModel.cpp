// Cells and headings out of the grid's record.
#include "desktop/GridModel.h"

#include <algorithm>

namespace velorix {
namespace {

QString Shown(const std::string& Text)
{
    return QString::fromStdString(Text).trimmed();
}

} // namespace

GridModel::GridModel(const Grid& Shown, QObject* Owner)
    : QAbstractTableModel(Owner)
    , Record(Shown)
    , Told(ShapeOf(Shown))
{
}

GridModel::Shape GridModel::ShapeOf(const Grid& Table)
{
    return {Table.Rows(), Table.Cols(), std::min(Table.FixedRows, Table.Rows()),
            Table.MergeEqualCells ? 0 : std::min(Table.FixedCols, Table.Cols()), Table.MergeEqualCells};
}

int GridModel::rowCount(const QModelIndex& Parent) const
{
    return Parent.isValid() ? 0 : Told.Rows - Told.HeadRows;
}

int GridModel::columnCount(const QModelIndex& Parent) const
{
    return Parent.isValid() ? 0 : Told.Cols - Told.HeadCols;
}

const GridCell* GridModel::CellOf(const QModelIndex& Index) const
{
    const bool There = Index.isValid() && RowOf(Index) < Record.Rows() && ColOf(Index) < Record.Cols();
    return There ? &Record.Cell(RowOf(Index), ColOf(Index)) : nullptr;
}

bool GridModel::IsData(const QModelIndex& Index) const
{
    return CellOf(Index) && !Record.IsFixed(RowOf(Index), ColOf(Index));
}

// A screen reader says a cell with the heading of its column and the name of its row.
QVariant GridModel::data(const QModelIndex& Index, int Role) const
{
    const GridCell* const Cell = CellOf(Index);
    if (!Cell || (Role != Qt::DisplayRole && Role != Qt::AccessibleTextRole)) return {};
    QString Text = Shown(Cell->Text);
    if (Role == Qt::DisplayRole || !IsData(Index)) return Text;
    QStringList Parts = {Heading(ColOf(Index)).replace('\n', ' ')};
    if (Record.FixedCols > 0) Parts += Shown(Record.Text(RowOf(Index), Record.FixedCols - 1));
    Parts += Text;
    Parts.removeAll(QString());
    return Parts.join(", ");
}

QString GridModel::Heading(int Col) const
{
    QStringList Lines;
    if (Col >= Record.Cols()) return {}; // gone, and not told yet
    for (int Row = 0; Row < std::min(HeadRows(), Record.Rows()); ++Row) Lines += Shown(Record.Text(Row, Col));
    Lines.removeAll(QString());
    return Lines.join('\n');
}

QVariant GridModel::headerData(int Section, Qt::Orientation Direction, int Role) const
{
    if (Role != Qt::DisplayRole) return {};
    if (Direction == Qt::Horizontal) return Heading(Section + HeadCols());
    const int Row = Section + HeadRows();
    return HeadCols() > 0 && HeadCols() <= Record.Cols() && Row < Record.Rows()
               ? Shown(Record.Text(Row, HeadCols() - 1))
               : QString();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& Index) const
{
    return IsData(Index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void GridModel::Reset()
{
    beginResetModel();
    Told = ShapeOf(Record);
    endResetModel();
}

void GridModel::Refresh()
{
    const int LastRow = rowCount() - 1;
    const int LastCol = columnCount() - 1;
    if (LastCol < 0) return;
    emit headerDataChanged(Qt::Horizontal, 0, LastCol);
    if (LastRow < 0) return;
    emit headerDataChanged(Qt::Vertical, 0, LastRow);
    emit dataChanged(index(0, 0), index(LastRow, LastCol));
}

// Neither out of the headers nor into them.
bool GridModel::Merges(int Row, int Col, int OtherRow, int OtherCol) const
{
    if (OtherCol < HeadCols() || OtherCol >= Record.Cols() || OtherRow >= Record.Rows()) return false;
    if (OtherRow != Row && std::min(Row, OtherRow) < HeadRows()) return false;
    const std::string& Text = Record.Text(Row, Col);
    return !Text.empty() && Text == Record.Text(OtherRow, OtherCol);
}

QRect GridModel::Span(int Row, int Col) const
{
    QRect Span(Col, Row, 1, 1);
    if (!Told.Merging || Row < 0) return Span;
    while (Merges(Row, Col, Row, Span.left() - 1)) Span.setLeft(Span.left() - 1);
    while (Merges(Row, Col, Row, Span.right() + 1)) Span.setRight(Span.right() + 1);
    const auto& Down = Record.MergeCols;
    if (Span.width() > 1 || std::find(Down.begin(), Down.end(), Col) == Down.end()) return Span;
    const auto Joins = [&](int Other) {
        return Merges(Row, Col, Other, Col) && !Merges(Other, Col, Other, Col - 1) &&
               !Merges(Other, Col, Other, Col + 1);
    };
    while (Joins(Span.top() - 1)) Span.setTop(Span.top() - 1);
    while (Joins(Span.bottom() + 1)) Span.setBottom(Span.bottom() + 1);
    return Span;
}

} // namespace velorix
