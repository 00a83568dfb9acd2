// What keys and mouse do on a grid.
#include "desktop/EventGuard.h"
#include "desktop/GridView.h"
#include "desktop/KeyEvents.h"
#include "platform/Keys.h"
#include "platform/Platform.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace velorix {
namespace {

constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int OtherButton = 4; // opens nothing, and still ends an editing

// Up and Down choose in the list; these go on in the grid.
bool LeavesList(const QKeyEvent& Key)
{
    const int Code = SpecialKey(Key);
    return Code == Keys::Enter || Code == Keys::Escape || Code == Keys::Left || Code == Keys::Right;
}

bool AsksForMenu(const QKeyEvent& Key)
{
    return Key.key() == Qt::Key_Menu || (Key.key() == Qt::Key_F10 && Key.modifiers() == Qt::ShiftModifier);
}

// Home, End, the arrows and the page keys, with which the toolkit moves the current cell.
bool Moves(const QKeyEvent& Key)
{
    return Key.key() >= Qt::Key_Home && Key.key() <= Qt::Key_PageDown &&
           !(Key.modifiers() & (Qt::AltModifier | Qt::MetaModifier));
}

// Whether the clipboard holds more than the text of one cell.
bool ClipboardHoldsCells()
{
    const std::string Text = System().ClipboardText();
    return Text.find_first_of("\t\n") < Text.find_last_not_of("\r\n");
}

} // namespace

bool GridView::eventFilter(QObject* Watched, QEvent* Event)
{
    if (Watched == Editor || Watched == List) {
        if (Event->type() == QEvent::KeyPress) {
            auto& Key = *static_cast<QKeyEvent*>(Event);
            HeldKey = SpecialKey(Key);
            BringUpCurrent();
            if (Watched == Editor && Key.matches(QKeySequence::Paste) && ClipboardHoldsCells()) {
                Guarded([this] { Record.Paste(); });
                return true;
            }
        }
        return EditorEvent(*static_cast<QWidget*>(Watched), *Event);
    }
    if (Watched == viewport()) return QTableView::eventFilter(Watched, Event);

    // The headers and their corner.
    if (Event->type() == QEvent::MouseButtonPress) {
        const bool Left = static_cast<QMouseEvent*>(Event)->button() == Qt::LeftButton;
        Guarded([&] { Record.MouseDown(Left ? LeftButton : OtherButton); });
    }
    if (Watched != HeadCorner || Event->type() != QEvent::Paint)
        return QTableView::eventFilter(Watched, Event);
    DrawHeading(*HeadCorner, Model.Heading(0));
    return true;
}

void GridView::keyPressEvent(QKeyEvent* Key)
{
    if (Editor && Editor->hasFocus()) return; // what the editor has no use for isn't meant for the grid
    if (SettlePending) Settle();
    if (PressCommand(*Key)) return;
    if (List && List->hasFocus()) {
        if (!LeavesList(*Key)) return Key->ignore();
        setFocus();
        if (Key->key() == Qt::Key_Escape) return;
    }
    PressKey(*Key);
}

bool GridView::PressCommand(const QKeyEvent& Key)
{
    if (Key.matches(QKeySequence::Copy))
        System().SetClipboardText(Record.SelectedText());
    else if (Key.matches(QKeySequence::Paste))
        Guarded([this] { Record.Paste(); });
    else if (Key.matches(QKeySequence::Undo))
        Guarded([this] { Record.Undo(); });
    else if (Key.matches(QKeySequence::SelectAll))
        SelectAllCells();
    else if (AsksForMenu(Key)) {
        BringUpCurrent();
        OpenMenu(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
    } else
        return false;
    return true;
}

// The handler first, then what a table does by itself, then the typed character.
void GridView::PressKey(QKeyEvent& Key)
{
    const int Special = SpecialKey(Key);
    HeldKey = Special;
    if (!PressDown(Record.KeyDown, Special)) return;
    if (Moves(Key)) return Move(Key);
    const std::vector<int> Typed = TypedKeys(Key);
    Press(Record.KeyPress, Typed);
    if (Typed.empty() || Special == Keys::Escape) Key.ignore();
}

// The far corner of the selection, which lies opposite to the current cell.
QModelIndex GridView::FarCorner() const
{
    const CellRange Chosen = Record.Selected();
    return Model.IndexOf(Chosen.FirstRow == Record.Row() ? Chosen.LastRow : Chosen.FirstRow,
                         Chosen.FirstCol == Record.Col() ? Chosen.LastCol : Chosen.FirstCol);
}

// A row up or down, by the record: the toolkit stops at a merged cell that begins in a fixed column, as a
// heading in the midst of a table does.
void GridView::StepRow(int Step, bool Extends)
{
    if (Record.Rows() <= Record.FixedRows) return;
    const auto Stepped = [&](int Row) { return std::clamp(Row + Step, Record.FixedRows, Record.Rows() - 1); };
    const QModelIndex Far = FarCorner();
    if (Extends) return ExtendTo(Model.IndexOf(Stepped(Model.RowOf(Far)), Model.ColOf(Far)));
    ExtendTo(Current());
    GoTo(Model.IndexOf(Stepped(Record.Row()), Record.Col()));
}

// With Shift the selection's far corner moves and the current cell stays.
void GridView::Move(QKeyEvent& Key)
{
    const int Step = Key.key() == Qt::Key_Down ? 1 : Key.key() == Qt::Key_Up ? -1 : 0;
    if (Step != 0 && !(Key.modifiers() & Qt::ControlModifier) && Model.IsData(Current()))
        return StepRow(Step, Key.modifiers() & Qt::ShiftModifier);
    if (!(Key.modifiers() & Qt::ShiftModifier)) {
        ExtendTo(Current());
        return QTableView::keyPressEvent(&Key);
    }
    if (!Model.IsData(Current())) return;
    QModelIndex Far = FarCorner();
    {
        const QScopedValueRollback<bool> Guard(Following, true);
        selectionModel()->setCurrentIndex(Far, QItemSelectionModel::NoUpdate);
        QTableView::keyPressEvent(&Key);
        Far = currentIndex();
    }
    ExtendTo(Far);
}

void GridView::keyReleaseEvent(QKeyEvent* Key)
{
    const int Special = SpecialKey(*Key);
    // A key that went down in a message box comes up here as well; that is no key of the grid.
    if (Key->isAutoRepeat() || !hasFocus() || Special == 0 || Special != HeldKey) return Key->ignore();
    HeldKey = 0;
    PressDown(Record.KeyUp, Special);
}

void GridView::GoTo(const QModelIndex& Cell)
{
    Guarded([&] { Record.Select(Model.RowOf(Cell), Model.ColOf(Cell)); });
}

void GridView::ExtendTo(const QModelIndex& Corner)
{
    if (!Model.IsData(Corner) || !Model.IsData(Current())) return;
    Record.SelectTo(Model.RowOf(Corner), Model.ColOf(Corner));
    scrollTo(Corner);
}

void GridView::SelectAllCells()
{
    if (SettlePending) Settle();
    const QModelIndex First = Model.IndexOf(Record.FixedRows, Record.FixedCols);
    if (!Model.IsData(First)) return;
    GoTo(First);
    ExtendTo(Model.IndexOf(Record.Rows() - 1, Record.Cols() - 1));
}

// Whole rows or columns, from the one on which the selection has begun; its first cell becomes current.
void GridView::SelectHeads(const QHeaderView* Header, int Section)
{
    if (SettlePending) Settle();
    const bool Cols = Header->orientation() == Qt::Horizontal;
    const QModelIndex First = Cols ? Model.IndexOf(Record.FixedRows, HeadAnchor + Model.HeadCols())
                                   : Model.IndexOf(HeadAnchor + Model.HeadRows(), Record.FixedCols);
    if (!Model.IsData(First)) return;
    GoTo(First);
    ExtendTo(Cols ? Model.IndexOf(Record.Rows() - 1, Section + Model.HeadCols())
                  : Model.IndexOf(Section + Model.HeadRows(), Record.Cols() - 1));
}

void GridView::OpenMenu(QPoint OnScreen)
{
    PopupPlace = OnScreen;
    Guarded([this] { Record.MouseDown(RightButton); });
}

void GridView::mousePressEvent(QMouseEvent* Press)
{
    if (SettlePending) Settle();
    const bool Left = Press->button() == Qt::LeftButton;
    const bool Right = Press->button() == Qt::RightButton;
    const QModelIndex Cell = indexAt(Press->position().toPoint());
    const bool OnData = Model.IsData(Cell);
    if (OnData && Left && Press->modifiers() & Qt::ShiftModifier) {
        ExtendTo(Cell);
    } else if (OnData && (Left || Right)) {
        GoTo(Cell);
        ExtendTo(Current());
    }
    if (Right && OnData)
        OpenMenu(Press->globalPosition().toPoint());
    else
        Guarded([&] { Record.MouseDown(Left ? LeftButton : OtherButton); });
}

void GridView::mouseMoveEvent(QMouseEvent* Move)
{
    if (Move->buttons() & Qt::LeftButton) ExtendTo(DataCellNear(Move->position().toPoint()));
}

// The press has selected already.
void GridView::mouseReleaseEvent(QMouseEvent*) {}

QModelIndex GridView::DataCellNear(QPoint Position) const
{
    const auto Near = [](int Section, int At, int Least, int Count) {
        if (Section < 0) Section = At < 0 ? Least : Count - 1; // beside the table
        return std::max(Section, Least);
    };
    return Model.index(
        Near(rowAt(Position.y()), Position.y(), 0, Model.rowCount()),
        Near(columnAt(Position.x()), Position.x(), Record.FixedCols - Model.HeadCols(), Model.columnCount()));
}

void GridView::mouseDoubleClickEvent(QMouseEvent* Press)
{
    const QModelIndex Cell = indexAt(Press->position().toPoint());
    if (Press->button() == Qt::LeftButton && Cell.isValid() && Cell == currentIndex())
        Guarded([this] { Record.DblClick(); });
}

// The press has opened the menu already.
void GridView::contextMenuEvent(QContextMenuEvent* Event)
{
    Event->accept();
}

// A press goes to a cell in sight; any other way the keys come to the current one.
void GridView::focusInEvent(QFocusEvent* Focus)
{
    QTableView::focusInEvent(Focus);
    if (SettlePending) Settle();
    if (Focus->reason() != Qt::MouseFocusReason) BringUpCurrent();
}

void GridView::focusOutEvent(QFocusEvent* Focus)
{
    QTableView::focusOutEvent(Focus);
    HeldKey = 0; // it comes up elsewhere
}

} // namespace velorix
