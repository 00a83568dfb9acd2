// The grid's headers, sizes and selection, and the editors over it.
#include "desktop/GridView.h"

#include "desktop/Binding.h"
#include "desktop/Painting.h"
#include "desktop/Views.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace velorix {
namespace {

// The editor fills its cell: no frame of its own but the cell's.
constexpr const char* EditorSheet =
    "QLineEdit { border: 2px solid palette(highlight); border-radius: 0; padding: 0 1px; }";

} // namespace

GridView::GridView(Grid& Shown, TextBox* EditorRecord, ComboBox* ListRecord)
    : Record(Shown)
    , Model(Shown, nullptr)
    , Editor(EditorRecord ? View(*EditorRecord) : nullptr)
    , List(ListRecord ? View(*ListRecord) : nullptr)
{
    setItemDelegate(new GridCells(*this));
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false); // the cells paint their own borders
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    TakeHeaders();
    setModel(&Model);
    if (Editor) TakeEditor(Editor);
    if (List) TakeEditor(List);
    if (Editor) {
        Editor->setFocusPolicy(Qt::ClickFocus); // Tab leaves the grid, it doesn't enter its editor
        Editor->setStyleSheet(EditorSheet);
    }

    const QPointer<GridView> Alive(this);
    Record.CellView = [Alive](int Row, int Col) {
        if (!Alive) return;
        if (Alive->Record.IsFixed(Row, Col)) Alive->HeadingsChanged = true;
        Alive->SettleSoon();
    };
    Record.ShapeView = [Alive] {
        if (Alive && Alive->Model.Fits()) Alive->ShowSelection();
        if (Alive) Alive->SettleSoon();
    };
    Settle();
    Attach(Record, this);
}

// The first column's heading stands in the corner, which the toolkit leaves blank.
void GridView::TakeHeaders()
{
    setHorizontalHeader(new GridHeader(Qt::Horizontal, Model, this));
    setVerticalHeader(new GridHeader(Qt::Vertical, Model, this));
    HeadCorner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    HeadCorner->disconnect(this);
    connect(HeadCorner, &QAbstractButton::pressed, this, &GridView::SelectAllCells);
    HeadCorner->installEventFilter(this);
    for (QHeaderView* Header : {horizontalHeader(), verticalHeader()}) {
        // The toolkit would select without the record's knowledge.
        disconnect(Header, SIGNAL(sectionPressed(int)), this, nullptr);
        disconnect(Header, SIGNAL(sectionEntered(int)), this, nullptr);
        connect(Header, &QHeaderView::sectionPressed, this, [this, Header](int Section) {
            if (!(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier)) HeadAnchor = Section;
            SelectHeads(Header, Section);
        });
        connect(Header, &QHeaderView::sectionEntered, this,
                [this, Header](int Section) { SelectHeads(Header, Section); });
        Header->viewport()->installEventFilter(this);
    }
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (Sizing) return;
        SizedByHand = true;
        SizeHeadings();
    });
}

void GridView::TakeEditor(QWidget* Over)
{
    const bool Hidden = Over->isHidden();
    Over->setParent(viewport());
    Over->setVisible(!Hidden);
    Over->installEventFilter(this);
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
    const bool Reshaped = !Model.Fits();
    if (Reshaped)
        Model.Reset();
    else
        Model.Refresh();
    if (Reshaped || HeadingsChanged) Measure();
    clearSpans();
    for (int Row = 0; Record.MergeEqualCells && Row < Model.rowCount(); ++Row)
        for (int Col = 0; Col < Model.columnCount(); ++Col) {
            const QRect Span = Model.Span(Model.index(Row, Col));
            if (Span.topLeft() == QPoint(Col, Row) && Span.size() != QSize(1, 1))
                setSpan(Row, Col, Span.height(), Span.width());
        }
    if (Reshaped) ShowSelection();
    PlaceEditors();
}

void GridView::Measure()
{
    HeadingsChanged = false;
    const QFontMetrics Letters(HeadingFont(font()));
    LeastWidths = NeededWidths(Record, Model, Letters, logicalDpiX());
    verticalHeader()->setVisible(Model.HeadCols() > 0);
    verticalHeader()->setFixedWidth(
        std::accumulate(LeastWidths.begin(), LeastWidths.begin() + Model.HeadCols(), 0));
    verticalHeader()->setDefaultSectionSize(
        std::max(Pixels(Record.DataRowHeight, logicalDpiX()), Letters.height() + CellPadding));
    SpreadColumns();
}

// The columns that aren't fixed share what is left of the room, in proportion to their least widths, until
// the user has sized one.
void GridView::SpreadColumns()
{
    const QScopedValueRollback<bool> Guard(Sizing, true);
    const int Heads = Model.HeadCols();
    int Fixed = 0; // columns and their width, of those among the cells
    int FixedWidth = 0;
    for (int Col = Heads; Col < std::min(Record.FixedCols, Record.Cols()); ++Col, ++Fixed)
        FixedWidth += LeastWidths[static_cast<std::size_t>(Col)];
    const int Least = std::accumulate(LeastWidths.begin() + Heads, LeastWidths.end(), 0) - FixedWidth;
    const int Room = std::max(viewport()->width() - FixedWidth, Least);
    int Sum = 0;
    for (int Col = 0; !SizedByHand && Col < Model.columnCount(); ++Col) {
        const int Width = LeastWidths[static_cast<std::size_t>(Col + Heads)];
        const auto Spread = [&](int Part) {
            return static_cast<int>(std::int64_t{Part} * Room / std::max(Least, 1));
        };
        setColumnWidth(Col, Col < Fixed ? Width : Spread(Sum + Width) - Spread(Sum));
        if (Col >= Fixed) Sum += Width;
    }
    SizeHeadings();
}

// As high as the told height, or as the heading with the most lines.
void GridView::SizeHeadings()
{
    constexpr int AnyHeight = 10000;
    const QFontMetrics Letters(HeadingFont(font()));
    const int Dots = logicalDpiX();
    int Height = Pixels(Record.HeaderHeight + (Model.HeadRows() - 1) * Record.DataRowHeight, Dots);
    for (int Section = 0; Section < Model.columnCount(); ++Section) {
        const auto [First, Last] = Model.HeadingSpan(Section);
        int Room = -2 * CellPadding - 1;
        for (int Each = First; Each <= Last; ++Each) Room += columnWidth(Each);
        const QRect Text = Letters.boundingRect({0, 0, Room, AnyHeight}, Qt::AlignCenter | Qt::TextWordWrap,
                                                Model.headerData(Section, Qt::Horizontal).toString());
        Height = std::max(Height, Text.height() + CellPadding);
    }
    horizontalHeader()->setFixedHeight(Height);
    updateGeometry(); // the layout reckons with rows and headings
}

// The toolkit's current cell is the record's, and so is its selection.
void GridView::ShowSelection()
{
    const QScopedValueRollback<bool> Guard(Following, true);
    const CellRange Chosen = Record.Selected();
    selectionModel()->select(QItemSelection(Model.IndexOf(Chosen.FirstRow, Chosen.FirstCol),
                                            Model.IndexOf(Chosen.LastRow, Chosen.LastCol)),
                             QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(Model.IsData(Current()) ? Current() : QModelIndex(),
                                      QItemSelectionModel::NoUpdate);
    viewport()->update();
    PlaceEditors();
}

// The user has moved.
void GridView::currentChanged(const QModelIndex& Now, const QModelIndex& Before)
{
    QTableView::currentChanged(Now, Before);
    if (!Following && Model.IsData(Now)) GoTo(Now);
}

QRect GridView::CellRect(int Row, int Col)
{
    Settle();
    return visualRect(Model.IndexOf(Row, Col));
}

bool GridView::HasCursor() const
{
    return hasFocus() || (Editor && Editor->hasFocus());
}

// The current cell may have been scrolled away.
void GridView::BringUpCurrent()
{
    scrollTo(currentIndex());
    PlaceEditors();
}

void GridView::PlaceEditors()
{
    if (!currentIndex().isValid()) return;
    const QRect Cell = visualRect(currentIndex());
    if (Editor && !Editor->isHidden()) {
        Editor->setAlignment((IsNumberText(Editor->text(), false) ? Qt::AlignRight : Qt::AlignLeft) |
                             Qt::AlignVCenter);
        Editor->setGeometry(Cell);
    }
    if (List && !List->isHidden()) {
        List->setPlaceholderText(currentIndex().data().toString());
        List->setGeometry(Cell);
    }
}

void GridView::updateEditorGeometries()
{
    QTableView::updateEditorGeometries();
    PlaceEditors();
}

void GridView::scrollContentsBy(int X, int Y)
{
    QTableView::scrollContentsBy(X, Y);
    PlaceEditors();
}

QSize GridView::sizeHint() const
{
    constexpr int ShownRows = 15;
    const int Rows = std::min(Model.rowCount(), ShownRows);
    const int Frame = 2 * frameWidth();
    return {std::accumulate(LeastWidths.begin(), LeastWidths.end(), Frame) +
                verticalScrollBar()->sizeHint().width(),
            horizontalHeader()->minimumHeight() + Rows * verticalHeader()->defaultSectionSize() + Frame};
}

QSize GridView::minimumSizeHint() const
{
    constexpr int LeastRows = 3;
    constexpr int LeastWidth = 200;
    const int Rows = std::min(Model.rowCount(), LeastRows);
    return {std::min(sizeHint().width(), LeastWidth), horizontalHeader()->minimumHeight() +
                                                          Rows * verticalHeader()->defaultSectionSize() +
                                                          2 * frameWidth()};
}

void GridView::resizeEvent(QResizeEvent* Resize)
{
    QTableView::resizeEvent(Resize);
    SpreadColumns();
}

void GridView::showEvent(QShowEvent* Show)
{
    QTableView::showEvent(Show);
    Settle();
    BringUpCurrent();
}

void GridView::changeEvent(QEvent* Change)
{
    QTableView::changeEvent(Change);
    if (Change->type() != QEvent::FontChange && Change->type() != QEvent::StyleChange) return;
    HeadingsChanged = true;
    SettleSoon();
}

// The editors tell when they come, go, and have the focus.
bool GridView::EditorEvent(QWidget& Over, QEvent& Event)
{
    switch (Event.type()) {
    case QEvent::Show:
        Settle();
        BringUpCurrent();
        break;
    case QEvent::Hide:
        // The focus must not wander off with it, nor come back to it with the window.
        if (Over.isHidden() && window()->focusWidget() == &Over) setFocus();
        break;
    case QEvent::FocusIn:
        if (&Over == List && static_cast<QFocusEvent&>(Event).reason() == Qt::OtherFocusReason) {
            BringUpCurrent();
            QMetaObject::invokeMethod(List, &QComboBox::showPopup, Qt::QueuedConnection);
        }
        [[fallthrough]];
    case QEvent::FocusOut: viewport()->update(); break;
    default: break;
    }
    return false;
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
