// How a grid looks.
#include "desktop/GridView.h"
#include "desktop/Painting.h"
#include "desktop/Style.h"

#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace velorix {
namespace {

QColor BackOf(const GridCell& Cell, bool Fixed, const QPalette& Palette)
{
    if (!IsPaletteColor(Cell.BackColor)) return ToQColor(Cell.BackColor);
    return Palette.color(Fixed || Cell.BackColor == ButtonColor ? QPalette::Button : QPalette::Base);
}

QColor InkOf(const GridCell& Cell, bool Fixed, const QPalette& Palette)
{
    const bool Told = !IsPaletteColor(Cell.BackColor);
    if (Told && Palette.currentColorGroup() != QPalette::Disabled) return Qt::black;
    return Palette.color(Fixed ? QPalette::ButtonText : QPalette::Text);
}

// Headings in the middle, numbers at the right, texts at the left. What a cell that can be edited won't be
// read as, with commas or blanks in it, is a text.
Qt::Alignment AlignmentOf(const QString& Text, bool Heading, bool Editable)
{
    if (Heading) return Qt::AlignCenter;
    return (IsNumberText(Text, !Editable) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

} // namespace

void GridView::paintEvent(QPaintEvent* Paint)
{
    Measure(); // a size that has just changed
    QPainter Painter(viewport());
    Painter.fillRect(Paint->rect(), palette().color(QPalette::Base));

    const QSize Fixed = Metrics.FixedSize();
    const QRect All = viewport()->rect();
    const QRect Data = DataPane();
    const Place First = CellAt(Data.topLeft());
    PaintPane(Painter, Data, First);
    PaintPane(Painter, {All.left(), Data.top(), Fixed.width(), Data.height()}, {First.Row, 0});
    PaintPane(Painter, {Data.left(), All.top(), Data.width(), Fixed.height()}, {0, First.Col});
    PaintPane(Painter, {All.topLeft(), Fixed}, {0, 0});
    Painter.setClipping(false);
    PaintCursor(Painter);
}

// The cells of one of the four panes, from the first that shows.
void GridView::PaintPane(QPainter& Painter, const QRect& Pane, Place First)
{
    if (Pane.isEmpty()) return;
    Painter.setClipRect(Pane);
    const int RowEnd =
        Pane.top() < Metrics.FixedSize().height() ? std::min(Record.FixedRows, Record.Rows()) : Record.Rows();
    const int ColEnd =
        Pane.left() < Metrics.FixedSize().width() ? std::min(Record.FixedCols, Record.Cols()) : Record.Cols();
    for (int Row = First.Row; Row < RowEnd && ViewY(Row) <= Pane.bottom(); ++Row)
        for (int Col = First.Col; Col < ColEnd && ViewX(Col) <= Pane.right(); ++Col) {
            PaintCell(Painter, Row, Col);
            Col = MergedCols(Record, Row, Col).Last;
        }
}

void GridView::PaintCell(QPainter& Painter, int Row, int Col)
{
    const ColSpan Span = MergedCols(Record, Row, Col);
    const GridCell& Cell = Record.Cell(Row, Span.First);
    const bool Fixed = IsFixedCell(Record, Row, Span.First);
    const bool Heading = Row < Record.FixedRows || Span.First != Span.Last;
    const QRect Rect = RectOf(Row, Col);
    const QRect Inside = Rect.adjusted(0, 0, -1, -1);

    Painter.fillRect(Rect, Colors().Border);
    Painter.fillRect(Inside, BackOf(Cell, Fixed, palette()));
    if (SelectsSeveral() && !Fixed && IsSelected(Row, Col)) {
        constexpr int Veil = 70; // of 255
        QColor Tint = palette().color(QPalette::Highlight);
        Tint.setAlpha(Veil);
        Painter.fillRect(Inside, Tint);
    }

    const QString Text = QString::fromStdString(Cell.Text).trimmed();
    if (Text.isEmpty()) return;
    QFont Letters = font();
    Letters.setBold(Cell.Bold);
    Painter.setFont(Letters);
    Painter.setPen(InkOf(Cell, Fixed, palette()));
    const QRect Room = Inside.adjusted(CellPadding, 0, -CellPadding, 0);
    if (Heading)
        Painter.drawText(Room, Qt::AlignCenter | Qt::TextWordWrap, Text);
    else
        Painter.drawText(Room, AlignmentOf(Text, Heading, Editor) | Qt::TextSingleLine,
                         Painter.fontMetrics().elidedText(Text, Qt::ElideRight, Room.width()));
}

// Around the current cell; without one around the grid, so that the focus always shows.
void GridView::PaintCursor(QPainter& Painter)
{
    const bool Active = hasFocus() || (Editor && Editor->hasFocus());
    const QColor Ink = Active ? palette().color(QPalette::Highlight) : Colors().Muted;
    if (IsData(Current())) {
        Painter.setClipRect(DataPane());
        DrawFrame(Painter, RectOf(Record.Row(), Record.Col()).adjusted(0, 0, -1, -1), Ink);
    } else if (Active)
        DrawFrame(Painter, viewport()->rect().adjusted(0, 0, -1, -1), Ink);
}

} // namespace velorix
