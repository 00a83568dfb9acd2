// Painting of headings and cells.
#include "desktop/GridPaint.h"

#include "desktop/GridView.h"
#include "desktop/Painting.h"
#include "desktop/Style.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace velorix {
namespace {

constexpr int LeastWidth = 40; // pixels

// A border at the right and below, the surface, the text.
void DrawCell(QPainter& Painter, const QRect& Place, const QColor& Back, int Flags, const QString& Text)
{
    const QRect Inside = Place.adjusted(0, 0, -1, -1);
    Painter.fillRect(Place, Colors().Border);
    Painter.fillRect(Inside, Back);
    const QRect Room = Inside.adjusted(CellPadding, 0, -CellPadding, 0);
    const bool OneLine = !(Flags & Qt::TextWordWrap);
    Painter.drawText(Room, Flags,
                     OneLine ? Painter.fontMetrics().elidedText(Text, Qt::ElideRight, Room.width()) : Text);
}

// Numbers at the right, texts at the left. What a cell that can be edited won't be read as, with commas or
// blanks in it, is a text.
Qt::Alignment AlignmentOf(const QString& Text, bool Editable)
{
    return (IsNumberText(Text, !Editable) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

// The least width in which a text stands on at most two lines.
int TwoLineWidth(const QString& Text, const QFontMetrics& Letters)
{
    const QStringList Words = Text.split(' ', Qt::SkipEmptyParts);
    int Least = Letters.horizontalAdvance(Text.trimmed());
    for (qsizetype Break = 1; Break < Words.size(); ++Break) {
        const int Upper = Letters.horizontalAdvance(Words.mid(0, Break).join(' '));
        const int Lower = Letters.horizontalAdvance(Words.mid(Break).join(' '));
        Least = std::min(Least, std::max(Upper, Lower));
    }
    return Least;
}

} // namespace

QFont HeadingFont(const QFont& Font)
{
    QFont Bold = Font; // those inside a table are bold, and any may become one
    Bold.setBold(true);
    return Bold;
}

int Pixels(int Twips, int DotsPerInch)
{
    constexpr int TwipsAnInch = 1440;
    return Twips * DotsPerInch / TwipsAnInch;
}

// What spans columns asks nothing of a single one.
std::vector<int> NeededWidths(const Grid& Table, const GridModel& Model, const QFontMetrics& Letters,
                              int DotsPerInch)
{
    std::vector<int> Widths;
    for (int Col = 0; Col < Table.Cols(); ++Col) {
        int Needed = 0;
        const int LastRow = Col < Table.FixedCols ? Table.Rows() : Model.HeadRows();
        for (int Row = 0; Row < LastRow; ++Row) {
            const QString Text = QString::fromStdString(Table.Text(Row, Col)).trimmed();
            const QModelIndex Index = Model.IndexOf(Row, Col);
            if (Row < Model.HeadRows())
                Needed = std::max(Needed, TwoLineWidth(Text, Letters));
            else if (!Index.isValid() || Model.Span(Index).width() == 1)
                Needed = std::max(Needed, Letters.horizontalAdvance(Text));
        }
        const int Least = Pixels(Table.ColWidth.at(static_cast<std::size_t>(Col)), DotsPerInch);
        Widths.push_back(std::max({Least, Needed + 2 * CellPadding + 1, LeastWidth}));
    }
    return Widths;
}

void DrawHeading(QPainter& Painter, const QRect& Place, const QString& Text, const QWidget& View)
{
    Painter.setFont(View.font());
    Painter.setPen(View.palette().color(QPalette::ButtonText));
    DrawCell(Painter, Place, View.palette().color(QPalette::Button), Qt::AlignCenter | Qt::TextWordWrap,
             Text);
}

GridHeader::GridHeader(Qt::Orientation Direction, const GridModel& Shown, QWidget* Owner)
    : QHeaderView(Direction, Owner)
    , Model(Shown)
{
    constexpr int LeastHeight = 1;
    setSectionsClickable(true);
    setMinimumSectionSize(Direction == Qt::Horizontal ? LeastWidth : LeastHeight);
    if (Direction == Qt::Vertical) setSectionResizeMode(Fixed);
}

// Equal headings side by side show as one where the cells do.
void GridHeader::paintSection(QPainter* Painter, const QRect& Place, int Section) const
{
    Painter->save();
    const QString Text = Model.headerData(Section, orientation()).toString();
    if (orientation() == Qt::Vertical) {
        Painter->setPen(palette().color(QPalette::ButtonText));
        DrawCell(*Painter, Place, palette().color(QPalette::Button), AlignmentOf(Text, true), Text);
    } else {
        const auto [First, Last] = Model.HeadingSpan(Section);
        const int Left = sectionViewportPosition(First);
        const int Right = sectionViewportPosition(Last) + sectionSize(Last);
        DrawHeading(*Painter, {Left, Place.top(), Right - Left, Place.height()}, Text, *this);
    }
    Painter->restore();
}

GridCells::GridCells(GridView& Shown)
    : QStyledItemDelegate(&Shown)
    , View(Shown)
{
}

void GridCells::paint(QPainter* Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const
{
    const GridModel& Model = View.Cells();
    const GridCell* const Cell = Model.CellOf(Index);
    if (!Cell) return;
    const QRect& Place = Option.rect;
    const QPalette& Palette = View.palette();
    const bool Fixed = !Model.IsData(Index);
    const bool Heading = View.Table().IsHeadingRow(Model.RowOf(Index)) || Model.Span(Index).width() > 1;
    const bool Told = !IsPaletteColor(Cell->BackColor) && View.isEnabled();
    const bool OnButton = Fixed || Heading || Cell->BackColor == ButtonColor;

    Painter->save();
    Painter->setFont(Heading ? HeadingFont(View.font()) : View.font());
    Painter->setPen(Told ? QColor(Qt::black)
                         : Palette.color(OnButton ? QPalette::ButtonText : QPalette::Text));
    const QString Text = Index.data().toString();
    DrawCell(*Painter, Place,
             Told ? ToQColor(Cell->BackColor) : Palette.color(OnButton ? QPalette::Button : QPalette::Base),
             Heading ? static_cast<int>(Qt::AlignCenter) : AlignmentOf(Text, View.EditorView()), Text);

    const QRect Current = View.visualRect(View.currentIndex());
    const CellRange Chosen = View.Table().Selected();
    if (!Fixed && Chosen.IsSeveral() && Chosen.Holds(Model.RowOf(Index), Model.ColOf(Index))) {
        constexpr int Veil = 70; // of 255
        QColor Tint = Palette.color(QPalette::Highlight);
        Tint.setAlpha(Veil);
        Painter->fillRect(Place.adjusted(0, 0, -1, -1), Tint);
    }
    if (Place == Current && View.isEnabled())
        DrawFrame(*Painter, Place.adjusted(0, 0, -1, -1),
                  View.HasCursor() ? Palette.color(QPalette::Highlight) : Colors().Muted);
    Painter->restore();
}

bool GridCells::helpEvent(QHelpEvent* Help, QAbstractItemView* Asked, const QStyleOptionViewItem& Option,
                          const QModelIndex& Index)
{
    const QString Text = Index.data().toString();
    const int Room = Option.rect.width() - 2 * CellPadding;
    const bool Fits = View.fontMetrics().horizontalAdvance(Text) <= Room;
    QToolTip::showText(Help->globalPos(), Fits ? View.toolTip() : Text, Asked->viewport());
    return true;
}

} // namespace velorix
