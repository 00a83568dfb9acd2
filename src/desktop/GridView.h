// The view of a grid: it paints the cells, moves the current cell, and lays the editors over it.
#pragma once

#include "desktop/GridMetrics.h"

#include <QAbstractScrollArea>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QPainter;

namespace velorix {

class GridView : public QAbstractScrollArea {
public:
    GridView(Grid& Shown, TextBox* Editor, ComboBox* List);

    Grid& Table() const { return Record; }

    struct Place {
        int Row;
        int Col;
        bool operator==(const Place&) const = default;
    };

    // The cell at a position of the viewport; one past the last row or column where there is none.
    Place CellAt(QPoint Position) const;

    // The cell's place in the viewport, as the view is scrolled now. Cells that show as one share it.
    QRect CellRect(int Row, int Col);

    // The view of the text box that lies over the current cell; nullptr when the grid has none.
    QLineEdit* EditorView() const { return Editor; }
    QComboBox* ListView() const { return List; }

    // Where a menu over the grid opens: at the last press of the right button, or of the menu key.
    QPoint MenuPlace() const { return PopupPlace; }

    // The selected cells, as a rule the current one alone: tab-separated, a line for each row.
    QString SelectedText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The grid scrolls until the cell is in sight.
    void Reveal(int Row, int Col);

protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    bool viewportEvent(QEvent* Event) override;
    void paintEvent(QPaintEvent* Paint) override;
    void resizeEvent(QResizeEvent* Resize) override;
    void showEvent(QShowEvent* Show) override;
    void changeEvent(QEvent* Change) override;
    void scrollContentsBy(int X, int Y) override;
    void keyPressEvent(QKeyEvent* Key) override;
    void keyReleaseEvent(QKeyEvent* Key) override;
    void mousePressEvent(QMouseEvent* Press) override;
    void mouseMoveEvent(QMouseEvent* Move) override;
    void mouseDoubleClickEvent(QMouseEvent* Press) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    void focusInEvent(QFocusEvent* Focus) override;
    void focusOutEvent(QFocusEvent* Focus) override;

private:
    // Everything in its place again, after code has changed the grid: at once, or when the event has ended.
    void Settle();
    void SettleSoon();
    void Measure();
    void SetScrollRanges();
    void PlaceEditors();
    void BringUpCurrent();
    void LayOver(QWidget& View);

    QSize SizeFor(int DataRows) const;

    // In the viewport, as it is scrolled now.
    int ViewX(int Col) const;
    int ViewY(int Row) const;
    QRect RectOf(int Row, int Col) const;
    QRect DataPane() const;
    Place DataCellNear(QPoint Position) const;

    Place Current() const { return {Record.Row(), Record.Col()}; }
    bool IsData(Place Cell) const;
    bool IsSelected(int Row, int Col) const;
    bool SelectsSeveral() const { return !(Extent == Current()); }

    void PaintPane(QPainter& Painter, const QRect& Pane, Place First);
    void PaintCell(QPainter& Painter, int Row, int Col);
    void PaintCursor(QPainter& Painter);

    void PressKey(QKeyEvent& Key);
    bool Extend(const QKeyEvent& Key);
    void ExtendTo(Place Corner);
    void OpenMenu(QPoint OnScreen);
    void TellCursor();

    Grid& Record;
    QLineEdit* const Editor;
    QComboBox* const List;
    GridMetrics Metrics;
    bool Measured = false;
    bool SettlePending = false;
    Place Revealed{-1, -1}; // the current cell that was last brought into sight
    Place Extent{0, 0};     // the corner of the selection that lies opposite to the current cell
    int ToldRows = 0;       // the number of rows that assistive tools know of
    int HeldKey = 0;        // the special key that went down over the grid or its editor
    QPoint PopupPlace;      // on the screen
};

} // namespace velorix
