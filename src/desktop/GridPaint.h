// How a grid looks: its headings and its cells.
#pragma once

#include <QFont>

class QAbstractItemDelegate;
class QHeaderView;
class QPainter;
class QWidget;

namespace velorix {

class GridModel;
class GridView;

// The room between a cell's border and its text (pixels).
constexpr int CellPadding = 5;

// The letters of the headings inside a table, for which headings have room too.
QFont HeadingFont(const QFont& Font);

// A heading fills the widget.
void DrawHeading(QWidget& Place, const QString& Text);

// What paints the headings and the cells of a grid; it belongs to the view.
QHeaderView* PaintedHeader(Qt::Orientation Direction, const GridModel& Model, QWidget* View);
QAbstractItemDelegate* PaintedCells(GridView& View);

} // namespace velorix
