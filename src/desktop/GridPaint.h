// How a grid looks: its headings, its cells, and the room that they need.
#pragma once

#include "desktop/GridModel.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include <vector>

class QFontMetrics;

namespace velorix {

class GridView;

// The room between a cell's border and its text (pixels).
constexpr int CellPadding = 5;

// The letters of headings.
QFont HeadingFont(const QFont& Font);

// The least width of each column of the grid, in pixels: the told one, or more where a heading on at most two
// lines or the name of a row needs more.
std::vector<int> NeededWidths(const Grid& Table, const GridModel& Model, const QFontMetrics& Letters,
                              int DotsPerInch);
int Pixels(int Twips, int DotsPerInch);

// A heading in the middle of its place.
void DrawHeading(QPainter& Painter, const QRect& Place, const QString& Text, const QWidget& View);

class GridHeader : public QHeaderView {
public:
    GridHeader(Qt::Orientation Direction, const GridModel& Shown, QWidget* Owner);

protected:
    void paintSection(QPainter* Painter, const QRect& Place, int Section) const override;

private:
    const GridModel& Model;
};

class GridCells : public QStyledItemDelegate {
public:
    explicit GridCells(GridView& Shown);

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;

    // A text that doesn't fit its cell shows in full as a tip.
    bool helpEvent(QHelpEvent* Help, QAbstractItemView* Asked, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override;

private:
    GridView& View;
};

} // namespace velorix
