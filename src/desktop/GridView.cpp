// The grid's place, scrolling and selection, and the editors over it.
#include "desktop/GridView.h"

#include "desktop/Binding.h"
#include "desktop/GridAccess.h"
#include "desktop/KeyEvents.h"
#include "desktop/Painting.h"
#include "desktop/Views.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace velorix {
namespace {

// The editor fills its cell: no frame of its own but the cell's.
constexpr const char* EditorSheet =
    "QLineEdit { border: 2px solid palette(highlight); border-radius: 0; padding: 0 1px; }";

} // namespace

GridView::GridView(Grid& Shown, TextBox* EditorRecord, ComboBox* ListRecord)
    : Record(Shown)
    , Editor(EditorRecord ? View(*EditorRecord) : nullptr)
    , List(ListRecord ? View(*ListRecord) : nullptr)
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    for (QWidget* Each : std::initializer_list<QWidget*>{Editor, List}) {
        if (!Each) continue;
        const bool Hidden = Each->isHidden();
        Each->setParent(viewport());
        Each->setVisible(!Hidden);
        Each->installEventFilter(this);
    }
    if (Editor) {
        Editor->setFocusPolicy(Qt::ClickFocus); // Tab leaves the grid, it doesn't enter its editor
        Editor->setStyleSheet(EditorSheet);
    }

    const QPointer<GridView> Alive(this);
    Record.CellView = [Alive](int Row, int Col) {
        if (!Alive) return;
        if (IsFixedCell(Alive->Record, Row, Col)) Alive->Measured = false;
        Alive->SettleSoon();
    };
    Record.ShapeView = [Alive] {
        if (!Alive) return;
        Alive->Extent = Alive->Current();
        Alive->SettleSoon();
    };
    Extent = Current();
    ServeGridAccess();
    Attach(Record, this);
}

void GridView::SettleSoon()
{
    if (SettlePending) return;
    SettlePending = true;
    QMetaObject::invokeMethod(
        this, [this] { Settle(); }, Qt::QueuedConnection);
}

void GridView::Settle()
{
    SettlePending = false;
    Measure();
    SetScrollRanges();
    if (isVisible() && !(Revealed == Current())) {
        Revealed = Current();
        if (IsData(Revealed)) Reveal(Revealed.Row, Revealed.Col);
        TellCursor();
    }
    if (ToldRows != Record.Rows()) AnnounceRows(*this);
    ToldRows = Record.Rows();
    PlaceEditors();
    viewport()->update();
}

void GridView::Measure()
{
    if (Measured && Metrics.Fits(Record)) return;
    Measured = true;
    const QSize Room = maximumViewportSize();
    Metrics.Measure(Record, font(), logicalDpiX(), Room.width());
    if (Metrics.Size().height() > Room.height())
        Metrics.Measure(Record, font(), logicalDpiX(),
                        Room.width() - verticalScrollBar()->sizeHint().width());
    updateGeometry(); // the layout reckons with rows and headings
}

// A bar that shows takes room of the other direction.
void GridView::SetScrollRanges()
{
    const QSize Room = maximumViewportSize();
    const int Bar = verticalScrollBar()->sizeHint().width();
    const int Height = Metrics.Size().height();
    bool Vertical = Height > Room.height();
    const bool Horizontal = Metrics.NaturalWidth() > Room.width() - (Vertical ? Bar : 0);
    Vertical = Vertical || (Horizontal && Height > Room.height() - Bar);
    const QSize View = Room - QSize(Vertical ? Bar : 0, Horizontal ? Bar : 0);

    verticalScrollBar()->setRange(0, std::max(0, Height - View.height()));
    horizontalScrollBar()->setRange(0, std::max(0, Metrics.NaturalWidth() - View.width()));
    verticalScrollBar()->setPageStep(std::max(1, View.height() - Metrics.FixedSize().height()));
    horizontalScrollBar()->setPageStep(std::max(1, View.width() - Metrics.FixedSize().width()));
    verticalScrollBar()->setSingleStep(Metrics.DataRowHeight());
    horizontalScrollBar()->setSingleStep(Metrics.DataRowHeight());
}

void GridView::Reveal(int Row, int Col)
{
    const QRect Pane = DataPane();
    const QRect Cell = RectOf(Row, Col);
    const auto Shift = [](QScrollBar& Bar, int First, int Last, int PaneFirst, int PaneLast) {
        if (First < PaneFirst)
            Bar.setValue(Bar.value() - (PaneFirst - First));
        else if (Last > PaneLast)
            Bar.setValue(Bar.value() + std::min(Last - PaneLast, First - PaneFirst));
    };
    Shift(*verticalScrollBar(), Cell.top(), Cell.bottom(), Pane.top(), Pane.bottom());
    Shift(*horizontalScrollBar(), Cell.left(), Cell.right(), Pane.left(), Pane.right());
}

// The current cell may have been scrolled away.
void GridView::BringUpCurrent()
{
    if (IsData(Current())) Reveal(Record.Row(), Record.Col());
    PlaceEditors();
}

void GridView::PlaceEditors()
{
    if (!IsData(Current())) return;
    if (Editor && !Editor->isHidden()) {
        Editor->setAlignment((IsNumberText(Editor->text(), false) ? Qt::AlignRight : Qt::AlignLeft) |
                             Qt::AlignVCenter);
        LayOver(*Editor);
    }
    if (List && !List->isHidden()) {
        List->setPlaceholderText(QString::fromStdString(Record.Text(Record.Row(), Record.Col())).trimmed());
        LayOver(*List);
    }
}

// Exactly over the current cell; what is scrolled below the headings doesn't show.
void GridView::LayOver(QWidget& View)
{
    const QRect Cell = RectOf(Record.Row(), Record.Col());
    const QRect Seen = Cell & DataPane();
    View.setGeometry(Cell);
    if (Seen == Cell)
        View.clearMask();
    else if (!Seen.isEmpty())
        View.setMask(Seen.translated(-Cell.topLeft()));
    else
        View.move(-2 * Cell.width(), -2 * Cell.height());
}

int GridView::ViewX(int Col) const
{
    return Metrics.Left(Col) - (Col < Record.FixedCols ? 0 : horizontalScrollBar()->value());
}

int GridView::ViewY(int Row) const
{
    return Metrics.Top(Row) - (Row < Record.FixedRows ? 0 : verticalScrollBar()->value());
}

QRect GridView::RectOf(int Row, int Col) const
{
    const ColSpan Span = MergedCols(Record, Row, Col);
    const int Right = ViewX(Span.Last) + Metrics.Left(Span.Last + 1) - Metrics.Left(Span.Last);
    const int Height = Metrics.Top(Row + 1) - Metrics.Top(Row);
    return {QPoint(ViewX(Span.First), ViewY(Row)), QSize(Right - ViewX(Span.First), Height)};
}

QRect GridView::CellRect(int Row, int Col)
{
    Settle();
    return RectOf(Row, Col);
}

QRect GridView::DataPane() const
{
    const QSize Fixed = Metrics.FixedSize();
    return viewport()->rect().adjusted(Fixed.width(), Fixed.height(), 0, 0);
}

GridView::Place GridView::CellAt(QPoint Position) const
{
    const QSize Fixed = Metrics.FixedSize();
    const int X = Position.x() + (Position.x() < Fixed.width() ? 0 : horizontalScrollBar()->value());
    const int Y = Position.y() + (Position.y() < Fixed.height() ? 0 : verticalScrollBar()->value());
    return {Metrics.RowAt(Y), Metrics.ColAt(X)};
}

GridView::Place GridView::DataCellNear(QPoint Position) const
{
    const Place Cell = CellAt(Position);
    return {std::clamp(Cell.Row, Record.FixedRows, Record.Rows() - 1),
            std::clamp(Cell.Col, Record.FixedCols, Record.Cols() - 1)};
}

bool GridView::IsData(Place Cell) const
{
    return Cell.Row < Record.Rows() && Cell.Col < Record.Cols() && !IsFixedCell(Record, Cell.Row, Cell.Col);
}

bool GridView::IsSelected(int Row, int Col) const
{
    const auto [FirstRow, LastRow] = std::minmax({Record.Row(), Extent.Row});
    const auto [FirstCol, LastCol] = std::minmax({Record.Col(), Extent.Col});
    return Row >= FirstRow && Row <= LastRow && Col >= FirstCol && Col <= LastCol;
}

QString GridView::SelectedText() const
{
    if (!IsData(Current())) return {};
    const auto [FirstRow, LastRow] = std::minmax({Record.Row(), Extent.Row});
    const auto [FirstCol, LastCol] = std::minmax({Record.Col(), Extent.Col});
    QStringList Lines;
    for (int Row = FirstRow; Row <= LastRow; ++Row) {
        QStringList Cells;
        for (int Col = FirstCol; Col <= LastCol; ++Col)
            Cells += QString::fromStdString(Record.Text(Row, Col)).trimmed();
        Lines += Cells.join('\t');
    }
    return Lines.join('\n');
}

void GridView::TellCursor()
{
    if (hasFocus()) AnnounceCell(*this);
}

QSize GridView::SizeFor(int DataRows) const
{
    GridMetrics Natural;
    Natural.Measure(Record, font(), logicalDpiX(), 0);
    const int Rows = std::min(Record.Rows() - Record.FixedRows, DataRows);
    const int Height = Natural.FixedSize().height() + Rows * Natural.DataRowHeight();
    const int Frame = 2 * frameWidth();
    return {Natural.NaturalWidth() + verticalScrollBar()->sizeHint().width() + Frame, Height + Frame};
}

QSize GridView::sizeHint() const
{
    constexpr int ShownRows = 15;
    return SizeFor(ShownRows);
}

QSize GridView::minimumSizeHint() const
{
    constexpr int LeastRows = 3;
    constexpr int LeastWidth = 200;
    return SizeFor(LeastRows).boundedTo({LeastWidth, QWIDGETSIZE_MAX});
}

void GridView::resizeEvent(QResizeEvent* Resize)
{
    QAbstractScrollArea::resizeEvent(Resize);
    Measured = false;
    SettleSoon();
}

void GridView::showEvent(QShowEvent* Show)
{
    QAbstractScrollArea::showEvent(Show);
    SettleSoon();
}

void GridView::changeEvent(QEvent* Change)
{
    QAbstractScrollArea::changeEvent(Change);
    if (Change->type() != QEvent::FontChange && Change->type() != QEvent::StyleChange) return;
    Measured = false;
    SettleSoon();
}

void GridView::scrollContentsBy(int, int)
{
    PlaceEditors();
    viewport()->update();
}

// The editors tell when they come, go, and have the focus.
bool GridView::eventFilter(QObject* Watched, QEvent* Event)
{
    if (Watched != Editor && Watched != List) return QAbstractScrollArea::eventFilter(Watched, Event);
    auto* const Over = static_cast<QWidget*>(Watched);
    switch (Event->type()) {
    case QEvent::Show:
        Settle();
        BringUpCurrent();
        break;
    case QEvent::Hide:
        // The focus must not wander off with it, nor come back to it with the window.
        if (Over->isHidden() && window()->focusWidget() == Over) setFocus();
        break;
    case QEvent::KeyPress:
        HeldKey = SpecialKey(*static_cast<QKeyEvent*>(Event));
        BringUpCurrent();
        break;
    case QEvent::FocusIn:
        if (Over == List && static_cast<QFocusEvent*>(Event)->reason() == Qt::OtherFocusReason) {
            BringUpCurrent();
            QMetaObject::invokeMethod(List, &QComboBox::showPopup, Qt::QueuedConnection);
        }
        [[fallthrough]];
    case QEvent::FocusOut: viewport()->update(); break;
    default: break;
    }
    return false;
}

// A text that doesn't fit its cell shows in full as a tip.
bool GridView::viewportEvent(QEvent* Event)
{
    if (Event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(Event);
    const auto* const Help = static_cast<QHelpEvent*>(Event);
    const Place Cell = CellAt(Help->pos());
    QString Tip = toolTip();
    if (IsData(Cell)) {
        const QString Text = QString::fromStdString(Record.Text(Cell.Row, Cell.Col)).trimmed();
        const int Room = RectOf(Cell.Row, Cell.Col).width() - 2 * CellPadding;
        if (fontMetrics().horizontalAdvance(Text) > Room) Tip = Text;
    }
    QToolTip::showText(Help->globalPos(), Tip, viewport());
    return true;
}

GridView* View(Grid& Record, TextBox& Editor, ComboBox* List)
{
    return new GridView(Record, &Editor, List);
}

GridView* View(Grid& Record)
{
    return new GridView(Record, nullptr, nullptr);
}

void PopUpOver(GridView& Table, MenuItem& Menu, const std::vector<MenuItem*>& Entries)
{
    auto* const Popup = new QMenu(&Table);
    for (MenuItem* Each : Entries) Popup->addAction(View(*Each));
    Follow(Menu.Visible, Popup, [&Table, &Menu, Popup](bool Visible) {
        if (!Visible) return;
        // Once the press that asks for it has ended.
        QMetaObject::invokeMethod(
            Popup, [&Table, Popup] { Popup->popup(Table.MenuPlace()); }, Qt::QueuedConnection);
        Menu.Visible = false;
    });
}

} // namespace velorix
