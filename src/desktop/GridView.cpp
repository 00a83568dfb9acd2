// The grid's headers, sizes and selection, and the editors over it.
#include "desktop/GridView.h"

#include "desktop/Binding.h"
#include "desktop/Painting.h"
#include "desktop/Style.h"
#include "desktop/Views.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFocusEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace velorix {
namespace {

// The editor fills its cell: no frame of its own but the cell's, quiet while the keys go elsewhere.
QString EditorSheet()
{
    return QString("QLineEdit { border: 2px solid %1; border-radius: 0; padding: 0 1px; }"
                   "QLineEdit:focus { border-color: palette(highlight); }")
        .arg(Colors().Muted.name());
}

// The frame of the current cell, over the list that covers the cell.
class ListFrame : public QWidget {
public:
    ListFrame(const GridView& Shown, QComboBox& List)
        : QWidget(&List)
        , Table(Shown)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter Painter(this);
        DrawFrame(Painter, rect(), Table.HasCursor() ? palette().color(QPalette::Highlight) : Colors().Muted);
    }

private:
    const GridView& Table;
};

} // namespace

GridView::GridView(Grid& Shown, TextBox* EditorRecord, ComboBox* ListRecord)
    : Record(Shown)
    , Model(Shown, nullptr)
    , Editor(EditorRecord ? View(*EditorRecord) : nullptr)
    , List(ListRecord ? View(*ListRecord) : nullptr)
{
    setItemDelegate(PaintedCells(*this));
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false); // the cells paint their own borders
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    TakeHeaders();
    setModel(&Model);
    if (Editor) TakeEditor(Editor);
    if (List) TakeList();
    if (Editor) {
        Editor->setFocusPolicy(Qt::ClickFocus); // Tab leaves the grid, it doesn't enter its editor
        Editor->setStyleSheet(EditorSheet());
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
    setHorizontalHeader(PaintedHeader(Qt::Horizontal, Model, this));
    setVerticalHeader(PaintedHeader(Qt::Vertical, Model, this));
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

// It shows the cell's text as the cell would.
void GridView::TakeList()
{
    TakeEditor(List);
    QPalette Palette = List->palette();
    Palette.setColor(QPalette::PlaceholderText, palette().color(QPalette::Text));
    List->setPalette(Palette);
    CursorFrame = new ListFrame(*this, *List);
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
    if (Reshaped) {
        Model.Reset();
        updateGeometries(); // a new row can be scrolled to at once
    } else
        Model.Refresh();
    if (Reshaped || HeadingsChanged || !Editor) Measure();
    clearSpans();
    for (int Row = Model.HeadRows(); Record.MergeEqualCells && Row < Record.Rows(); ++Row)
        for (int Col = 0; Col < Record.Cols(); ++Col) {
            const QRect Span = Model.Span(Row, Col);
            if (Span.topLeft() == QPoint(Col, Row) && Span.size() != QSize(1, 1))
                setSpan(Row - Model.HeadRows(), Col, Span.height(), Span.width());
        }
    ShowSelection();
}

// The columns are as wide as told, or wider where the longest word of the heading, a row's name or, in a
// table that is only read, any cell needs it.
void GridView::Measure()
{
    constexpr int OneWordALine = 1;
    HeadingsChanged = false;
    const QFontMetrics Letters(HeadingFont(font()));
    LeastWidths.clear();
    for (int Col = 0; Col < Record.Cols(); ++Col) {
        int Needed =
            Letters.boundingRect({0, 0, OneWordALine, 0}, Qt::TextWordWrap, Model.Heading(Col)).width();
        const bool ByCells = !Editor || Col < Record.FixedCols;
        for (int Row = Model.HeadRows(); ByCells && Row < Record.Rows(); ++Row)
            if (Model.Span(Row, Col).size() == QSize(1, 1))
                Needed =
                    std::max(Needed, // which may be rounded down
                             Letters.horizontalAdvance(QString::fromStdString(Record.Text(Row, Col))) + 1);
        LeastWidths.push_back(std::max(Pixels(Record.ColWidth.at(static_cast<std::size_t>(Col))),
                                       Needed + 2 * CellPadding + 1));
    }
    verticalHeader()->setVisible(Model.HeadCols() > 0);
    verticalHeader()->setFixedWidth(WidthOf(0, Model.HeadCols()));
    verticalHeader()->setDefaultSectionSize(
        std::max(Pixels(Record.DataRowHeight), Letters.height() + CellPadding));
    SpreadColumns();
}

int GridView::WidthOf(int FirstCol, int ColEnd) const
{
    return std::accumulate(LeastWidths.begin() + FirstCol, LeastWidths.begin() + ColEnd, 0);
}

// The columns that aren't fixed share what is left of the room, in proportion to their least widths, until
// the user has sized one.
void GridView::SpreadColumns()
{
    const QScopedValueRollback<bool> Guard(Sizing, true);
    const int Heads = Model.HeadCols();
    const int ColEnd = static_cast<int>(LeastWidths.size());
    const int First = std::clamp(Record.FixedCols, Heads, ColEnd);
    const int Room = viewport()->width() - WidthOf(Heads, First);
    const double Stretch = std::max(1.0, Room / std::max(1.0, double(WidthOf(First, ColEnd))));
    for (int Col = Heads; !SizedByHand && Col < ColEnd; ++Col) {
        const auto Left = [&](int Each) { return qRound(WidthOf(First, Each) * Stretch); };
        setColumnWidth(Col - Heads, Col < First ? WidthOf(Col, Col + 1) : Left(Col + 1) - Left(Col));
    }
    SizeHeadings();
}

// As high as the told height, or as the heading with the most lines.
void GridView::SizeHeadings()
{
    constexpr int AnyHeight = 10000;
    const QFontMetrics Letters(HeadingFont(font()));
    int Height = Pixels(Record.HeaderHeight + (Model.HeadRows() - 1) * Record.DataRowHeight);
    for (int Col = Model.HeadCols(); Col < Record.Cols(); ++Col) {
        const QRect Span = Model.Span(Model.HeadRows() - 1, Col);
        int Room = -2 * CellPadding - 1;
        for (int Each = Span.left(); Each <= Span.right(); ++Each)
            Room += columnWidth(Each - Model.HeadCols());
        const QRect Lines = Letters.boundingRect({0, 0, Room, AnyHeight}, Qt::AlignCenter | Qt::TextWordWrap,
                                                 Model.Heading(Col));
        Height = std::max(Height, Lines.height() + CellPadding);
    }
    horizontalHeader()->setFixedHeight(Height);
    updateGeometry(); // the layout reckons with rows and headings
}

int GridView::Pixels(int Twips) const
{
    constexpr int TwipsAnInch = 1440;
    return Twips * logicalDpiX() / TwipsAnInch;
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
    if (HasCursor()) BringUpOnPage();
}

QRect GridView::CellRect(int Row, int Col)
{
    Settle();
    return visualRect(Model.IndexOf(Row, Col));
}

bool GridView::HasCursor() const
{
    return hasFocus() || (Editor && Editor->hasFocus()) || (List && List->hasFocus());
}

// The current cell may have been scrolled away.
void GridView::BringUpCurrent()
{
    scrollTo(currentIndex());
    PlaceEditors();
    if (HasCursor()) BringUpOnPage();
}

// A page that is higher than the window scrolls too.
void GridView::BringUpOnPage()
{
    if (!currentIndex().isValid()) return;
    for (QWidget* Each = parentWidget(); Each; Each = Each->parentWidget())
        if (auto* const Area = qobject_cast<QScrollArea*>(Each)) Area->ensureWidgetVisible(this);
}

// Where the cursor stands: what a page scrolls to is the current cell, not the middle of the table.
QVariant GridView::inputMethodQuery(Qt::InputMethodQuery Query) const
{
    if (Query != Qt::ImCursorRectangle || !currentIndex().isValid())
        return QTableView::inputMethodQuery(Query);
    return visualRect(currentIndex()).translated(viewport()->pos());
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
        List->setGeometry(Cell.adjusted(0, 0, -1, -1)); // within the cell's border
        CursorFrame->resize(List->size());
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

void GridView::ShowWhole()
{
    Whole = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize GridView::SizeFor(int DataRows) const
{
    const int Rows = Whole ? Model.rowCount() : std::min(Model.rowCount(), DataRows);
    const int BarWidth = Whole ? 0 : verticalScrollBar()->sizeHint().width();
    return QSize(WidthOf(0, static_cast<int>(LeastWidths.size())) + BarWidth,
                 horizontalHeader()->minimumHeight() + Rows * verticalHeader()->defaultSectionSize()) +
           QSize(2, 2) * frameWidth();
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
    return Whole ? sizeHint() : SizeFor(LeastRows).boundedTo({LeastWidth, QWIDGETSIZE_MAX});
}

void GridView::resizeEvent(QResizeEvent* Resize)
{
    QTableView::resizeEvent(Resize);
    if (!LeastWidths.empty()) SpreadColumns(); // not while the view is being put together
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
