// Painting of headings and cells.
#include "desktop/GridPaint.h"

#include "desktop/GridView.h"
#include "desktop/Painting.h"
#include "desktop/Style.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace velorix {
namespace {

constexpr int Centred = Qt::AlignCenter | Qt::TextWordWrap;

// A border at the right and below, the surface, and the text in the painter's font and pen: on several lines
// when the flags say so, else shortened where it doesn't fit.
void DrawCell(QPainter& Painter, const QRect& Place, const QColor& Back, int Flags, const QString& Text)
{
    const QRect Inside = Place.adjusted(0, 0, -1, -1);
    const QRect Room = Inside.adjusted(CellPadding, 0, -CellPadding, 0);
    Painter.fillRect(Place, Colors().Border);
    Painter.fillRect(Inside, Back);
    Painter.drawText(Room, Flags,
                     Flags & Qt::TextWordWrap
                         ? Text
                         : Painter.fontMetrics().elidedText(Text, Qt::ElideRight, Room.width()));
}

// Numbers at the right, texts at the left. What a cell that can be edited won't be read as, with commas or
// blanks in it, is a text.
int AlignmentOf(const QString& Text, bool Editable)
{
    return (IsNumberText(Text, !Editable) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

class Header : public QHeaderView {
public:
    Header(Qt::Orientation Direction, const GridModel& Shown, QWidget* View)
        : QHeaderView(Direction, View)
        , Model(Shown)
    {
        constexpr int LeastWidth = 40;
        setSectionsClickable(true);
        setMinimumSectionSize(Direction == Qt::Horizontal ? LeastWidth : 1);
        if (Direction == Qt::Vertical) setSectionResizeMode(Fixed);
    }

protected:
    // Equal headings side by side show as one where the cells do.
    void paintSection(QPainter* Painter, const QRect& Place, int Section) const override
    {
        const QString Text = Model.headerData(Section, orientation(), Qt::DisplayRole).toString();
        QRect Whole = Place;
        if (orientation() == Qt::Horizontal) {
            const QRect Span = Model.Span(Model.HeadRows() - 1, Section + Model.HeadCols());
            const int Last = Span.right() - Model.HeadCols();
            Whole.setLeft(sectionViewportPosition(Span.left() - Model.HeadCols()));
            Whole.setWidth(sectionViewportPosition(Last) + sectionSize(Last) - Whole.left());
        }
        Painter->setFont(HeadingFont(font()));
        Painter->setPen(palette().color(QPalette::ButtonText));
        DrawCell(*Painter, Whole, palette().color(QPalette::Button),
                 orientation() == Qt::Horizontal ? Centred : AlignmentOf(Text, true), Text);
    }

private:
    const GridModel& Model;
};

class Cells : public QStyledItemDelegate {
public:
    explicit Cells(GridView& Shown)
        : QStyledItemDelegate(&Shown)
        , View(Shown)
    {
    }

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;

    // A text that doesn't fit its cell shows in full as a tip.
    bool helpEvent(QHelpEvent* Help, QAbstractItemView* Asked, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override
    {
        const QString Text = Index.data().toString();
        const int Room = Option.rect.width() - 2 * CellPadding;
        const bool Fits = QFontMetrics(FontOf(Index)).horizontalAdvance(Text) <= Room;
        QToolTip::showText(Help->globalPos(), Fits ? View.toolTip() : Text, Asked->viewport());
        return true;
    }

private:
    bool OnButton(const QModelIndex& Index) const
    {
        const GridModel& Model = View.Cells();
        return View.Table().IsHeadingRow(Model.RowOf(Index)) || !Model.IsData(Index);
    }
    QFont FontOf(const QModelIndex& Index) const
    {
        return OnButton(Index) ? HeadingFont(View.font()) : View.font();
    }
    int AlignmentIn(const QModelIndex& Index, const QString& Text) const
    {
        if (View.Table().IsHeadingRow(View.Cells().RowOf(Index))) return Centred;
        return View.Table().Centred ? int(Qt::AlignCenter) : AlignmentOf(Text, View.EditorView());
    }

    GridView& View;
};

void Cells::paint(QPainter* Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const
{
    const GridModel& Model = View.Cells();
    const GridCell* const Cell = Model.CellOf(Index);
    if (!Cell) return;
    const int Row = Model.RowOf(Index);
    const int Col = Model.ColOf(Index);
    const QPalette& Palette = View.palette();
    const bool Current = Option.rect == View.visualRect(View.currentIndex());
    // A merged cell is painted as its first one, but the current one of them tells the colour.
    const GridCell* const Chosen = Current ? Model.CellOf(View.currentIndex()) : Cell;
    const Color Back = (Chosen ? Chosen : Cell)->BackColor;
    const bool Told = !IsPaletteColor(Back) && View.isEnabled();
    const bool Raised = OnButton(Index);

    Painter->save();
    Painter->setFont(FontOf(Index));
    Painter->setPen(Told ? QColor(Qt::black) : Palette.color(Raised ? QPalette::ButtonText : QPalette::Text));
    const QString Text = Index.data().toString();
    const int Lines = Model.Span(Row, Col).height() > 1 ? Qt::TextWordWrap : 0;
    DrawCell(*Painter, Option.rect,
             Told ? ToQColor(Back) : Palette.color(Raised ? QPalette::Button : QPalette::Base),
             AlignmentIn(Index, Text) | Lines, Text);

    const QRect Inside = Option.rect.adjusted(0, 0, -1, -1);
    if (View.isEnabled() && Model.IsData(Index) && !Current && View.Table().Selected().Holds(Row, Col)) {
        constexpr int Veil = 70; // of 255
        QColor Tint = Palette.color(QPalette::Highlight);
        Tint.setAlpha(Veil);
        Painter->fillRect(Inside, Tint);
    }
    if (View.isEnabled() && Current)
        DrawFrame(*Painter, Inside, View.HasCursor() ? Palette.color(QPalette::Highlight) : Colors().Muted);
    Painter->restore();
}

} // namespace

QFont HeadingFont(const QFont& Font)
{
    QFont Bold = Font;
    Bold.setBold(true);
    return Bold;
}

void DrawHeading(QWidget& Place, const QString& Text)
{
    QPainter Painter(&Place);
    Painter.setFont(HeadingFont(Place.font()));
    Painter.setPen(Place.palette().color(QPalette::ButtonText));
    DrawCell(Painter, Place.rect(), Place.palette().color(QPalette::Button), Centred, Text);
}

QHeaderView* PaintedHeader(Qt::Orientation Direction, const GridModel& Model, QWidget* View)
{
    return new Header(Direction, Model, View);
}

QAbstractItemDelegate* PaintedCells(GridView& View)
{
    return new Cells(View);
}

} // namespace velorix
