// The view of a grid: the toolkit's table on the grid's record, with the grid's editors laid over the current
// cell. The record says which cell is current and what is selected; the view follows.
#pragma once

#include "desktop/GridModel.h"
#include "desktop/GridPaint.h"

#include <QTableView>

#include <vector>

class QAbstractButton;
class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace velorix {

class GridView : public QTableView {
public:
    GridView(Grid& Shown, TextBox* Editor, ComboBox* List);

    Grid& Table() const { return Record; }
    const GridModel& Cells() const { return Model; }

    // A cell's place in the viewport, as the view is scrolled now; empty for one in a header. Cells that show
    // as one share it.
    QRect CellRect(int Row, int Col);

    // The view of the text box that lies over the current cell; nullptr when the grid has none.
    QLineEdit* EditorView() const { return Editor; }
    QComboBox* ListView() const { return List; }

    // True while keys go to the current cell or to what lies over it.
    bool HasCursor() const;

    // Where a menu over the grid opens: at the last press of the right button, or of the menu key.
    QPoint MenuPlace() const { return PopupPlace; }

    // From now on the view asks for room for all rows and columns, and the page scrolls instead of the table.
    void ShowWhole();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QVariant inputMethodQuery(Qt::InputMethodQuery Query) const override;

protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void currentChanged(const QModelIndex& Now, const QModelIndex& Before) override;
    void updateEditorGeometries() override;
    void scrollContentsBy(int X, int Y) override;
    void resizeEvent(QResizeEvent* Resize) override;
    void showEvent(QShowEvent* Show) override;
    void changeEvent(QEvent* Change) override;
    void keyPressEvent(QKeyEvent* Key) override;
    void keyReleaseEvent(QKeyEvent* Key) override;
    void mousePressEvent(QMouseEvent* Press) override;
    void mouseMoveEvent(QMouseEvent* Move) override;
    void mouseReleaseEvent(QMouseEvent* Release) override;
    void mouseDoubleClickEvent(QMouseEvent* Press) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    void focusInEvent(QFocusEvent* Focus) override;
    void focusOutEvent(QFocusEvent* Focus) override;

private:
    void TakeHeaders();
    void TakeEditor(QWidget* Over);
    void TakeList();

    // Everything as the record has it, after code has changed the grid: at once, or when the event has ended.
    void Settle();
    void SettleSoon();
    void Measure();
    void SpreadColumns();
    void SizeHeadings();
    int WidthOf(int FirstCol, int ColEnd) const;
    int Pixels(int Twips) const;
    QSize SizeFor(int DataRows) const;
    void ShowSelection();

    bool EditorEvent(QWidget& Over, QEvent& Event);
    void BringUpCurrent();
    void BringUpOnPage();
    void PlaceEditors();

    QModelIndex Current() const { return Model.IndexOf(Record.Row(), Record.Col()); }
    QModelIndex DataCellNear(QPoint Position) const;
    void GoTo(const QModelIndex& Cell);
    void ExtendTo(const QModelIndex& Corner);
    void SelectHeads(const QHeaderView* Header, int Section);
    void SelectAllCells();

    bool PressCommand(const QKeyEvent& Key);
    void PressKey(QKeyEvent& Key);
    void Move(QKeyEvent& Key);
    void StepRow(int Step, bool Extends);
    QModelIndex FarCorner() const;
    void OpenMenu(QPoint OnScreen);

    Grid& Record;
    GridModel Model;
    QLineEdit* const Editor;
    QComboBox* const List;
    QWidget* CursorFrame = nullptr;        // over the list
    QAbstractButton* HeadCorner = nullptr; // where the headers meet
    std::vector<int> LeastWidths;          // of the grid's columns, without what they are stretched by
    bool Whole = false;
    bool SettlePending = false;
    bool HeadingsChanged = true;
    bool Following = false;   // the view is on its way to the record's selection
    bool Sizing = false;      // the columns are taking their widths
    bool SizedByHand = false; // from then on they keep them
    int HeadAnchor = 0;       // the section on which a selection of whole rows or columns has begun
    int HeldKey = 0;          // the special key that went down over the grid or its editor
    QPoint PopupPlace;        // on the screen
};

} // namespace velorix
