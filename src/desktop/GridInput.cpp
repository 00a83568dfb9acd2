// What keys and mouse do on a grid.
#include "desktop/EventGuard.h"
#include "desktop/GridView.h"
#include "desktop/KeyEvents.h"
#include "platform/Keys.h"
#include "platform/Platform.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>

namespace velorix {
namespace {

constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int OtherButton = 4; // opens nothing, and still ends an editing

// Up and Down choose in the list; these go on in the grid.
bool LeavesList(const QKeyEvent& Key)
{
    switch (SpecialKey(Key)) {
    case Keys::Enter:
    case Keys::Escape:
    case Keys::Left:
    case Keys::Right: return true;
    default: return false;
    }
}

bool AsksForMenu(const QKeyEvent& Key)
{
    return Key.key() == Qt::Key_Menu || (Key.key() == Qt::Key_F10 && Key.modifiers() == Qt::ShiftModifier);
}

} // namespace

void GridView::keyPressEvent(QKeyEvent* Key)
{
    if (Editor && Editor->hasFocus()) return; // what the editor has no use for isn't meant for the grid
    if (List && List->hasFocus()) {
        if (!LeavesList(*Key)) return Key->ignore();
        setFocus();
        if (Key->key() == Qt::Key_Escape) return;
    }

    if (Key->matches(QKeySequence::Copy))
        System().SetClipboardText(SelectedText().toStdString());
    else if (Key->matches(QKeySequence::SelectAll)) {
        const Place First{Record.FixedRows, Record.FixedCols};
        if (!IsData(First)) return;
        Guarded([&] { Record.Select(First.Row, First.Col); });
        ExtendTo({Record.Rows() - 1, Record.Cols() - 1});
    } else if (AsksForMenu(*Key)) {
        BringUpCurrent();
        OpenMenu(viewport()->mapToGlobal(RectOf(Record.Row(), Record.Col()).bottomLeft()));
    } else if (!Extend(*Key))
        PressKey(*Key);
}

// The handler first, then what a grid does by itself, then the typed character.
void GridView::PressKey(QKeyEvent& Key)
{
    const int Special = SpecialKey(Key);
    HeldKey = Special;
    if (!PressDown(Record.KeyDown, Special)) return;
    bool Moved = false;
    Guarded([&] { Moved = Special != 0 && Record.Navigate(Special); });
    if (Moved) return Settle();
    const std::vector<int> Typed = TypedKeys(Key);
    Press(Record.KeyPress, Typed);
    if (Typed.empty() || Special == Keys::Escape) Key.ignore();
}

void GridView::keyReleaseEvent(QKeyEvent* Key)
{
    const int Special = SpecialKey(*Key);
    // A key that went down in a message box comes up here as well; that is no key of the grid.
    if (Key->isAutoRepeat() || !hasFocus() || Special == 0 || Special != HeldKey) return Key->ignore();
    HeldKey = 0;
    PressDown(Record.KeyUp, Special);
}

// Shift with an arrow: the selection grows from the current cell.
bool GridView::Extend(const QKeyEvent& Key)
{
    if (Key.modifiers() != Qt::ShiftModifier || !IsData(Current())) return false;
    Place Corner = Extent;
    switch (Key.key()) {
    case Qt::Key_Left: --Corner.Col; break;
    case Qt::Key_Right: ++Corner.Col; break;
    case Qt::Key_Up: --Corner.Row; break;
    case Qt::Key_Down: ++Corner.Row; break;
    case Qt::Key_Home: Corner.Col = 0; break;
    case Qt::Key_End: Corner.Col = Record.Cols(); break;
    default: return false;
    }
    ExtendTo(Corner);
    return true;
}

void GridView::ExtendTo(Place Corner)
{
    if (!IsData(Current())) return;
    Extent = {std::clamp(Corner.Row, Record.FixedRows, Record.Rows() - 1),
              std::clamp(Corner.Col, Record.FixedCols, Record.Cols() - 1)};
    Reveal(Extent.Row, Extent.Col);
    viewport()->update();
}

void GridView::OpenMenu(QPoint OnScreen)
{
    PopupPlace = OnScreen;
    Guarded([this] { Record.MouseDown(RightButton); });
}

void GridView::mousePressEvent(QMouseEvent* Press)
{
    const bool Left = Press->button() == Qt::LeftButton;
    const bool Right = Press->button() == Qt::RightButton;
    Settle();
    const Place Cell = CellAt(Press->position().toPoint());
    if (IsData(Cell) && Left && Press->modifiers() & Qt::ShiftModifier) {
        ExtendTo(Cell);
    } else if (IsData(Cell) && (Left || Right)) {
        Guarded([&] { Record.Select(Cell.Row, Cell.Col); });
        Extent = Current();
    }
    if (Right && IsData(Cell))
        OpenMenu(Press->globalPosition().toPoint());
    else
        Guarded([&] { Record.MouseDown(Left ? LeftButton : OtherButton); });
    Settle();
}

void GridView::mouseMoveEvent(QMouseEvent* Move)
{
    if (Move->buttons() & Qt::LeftButton && IsData(Current()))
        ExtendTo(DataCellNear(Move->position().toPoint()));
}

void GridView::mouseDoubleClickEvent(QMouseEvent* Press)
{
    if (Press->button() == Qt::LeftButton && CellAt(Press->position().toPoint()) == Current())
        Guarded([this] { Record.DblClick(); });
}

// The press has opened the menu already.
void GridView::contextMenuEvent(QContextMenuEvent* Event)
{
    Event->accept();
}

void GridView::focusInEvent(QFocusEvent*)
{
    TellCursor();
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent*)
{
    HeldKey = 0; // it comes up elsewhere
    viewport()->update();
}

} // namespace velorix
