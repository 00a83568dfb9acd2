// The parts that pages are laid out with: labelled rows, pages, boxes that turn with the width of the window.
#pragma once

#include <QBoxLayout>
#include <QWidget>

#include <functional>
#include <vector>

class QGridLayout;
class QLabel;
class QScrollArea;

namespace velorix {

class ScrollBarView;

// The room inside cards and between them (pixels at 100 %).
constexpr int CardMargin = 10;
constexpr int Gap = 8;

// What a window's frame takes of a display.
constexpr QSize FrameAllowance(20, 60);

// Rows of caption, sign, field and unit. The parts of all rows of one widget stand under each other, and none
// grows beyond what it holds.
class FormRows {
public:
    // Lays out the widget. Rows of a card keep its margins, rows of a group inside a card have none.
    enum class Margins { Card, None };
    explicit FormRows(QWidget* Owner, Margins Around = Margins::Card);

    // A field with its caption, which becomes its buddy and its accessible name. What stands behind it: a
    // unit or the selector of one, whose accessible name follows the field's.
    void Add(const QString& Caption, QWidget* Field, QWidget* Unit = nullptr, QWidget* Sign = nullptr);
    void Add(QLabel* Caption, QWidget* Field, QWidget* Unit = nullptr, QWidget* Sign = nullptr);

    // A field that takes the whole width beside the caption; or that stands at its left end, with something
    // behind it at the right.
    void AddLong(const QString& Caption, QWidget* Field, QWidget* Behind = nullptr);

    // A widget of the full width; it takes the height that is left when it stretches.
    void AddWide(QWidget* Content, int Stretch = 0);

    // Keeps the rows together at the top when the widget is higher than they are.
    void Close();

private:
    void PutCaption(QLabel* Caption, QWidget* Field);

    QGridLayout* Grid;
    int Row = 0;
};

// Ties a caption to a field: the field's accessible name is the caption's text.
void TieCaption(QLabel* Caption, QWidget* Field);
void NameField(QWidget* Field, const QString& Name);

// A short text that isn't a record's.
QLabel* Text(const QString& Words);
QLabel* MutedText(const QString& Words);

// A field as wide as so many digits, or a little narrower where the window has less room.
QWidget* DigitsWide(QWidget* Field, int Digits);

// Gives the number fields of bars that stand under each other one width.
void AlignBars(const std::vector<ScrollBarView*>& Bars);

// A label that shortens a text in its middle when there is no room for it.
QLabel* Elided(QLabel* Shown);

// Marks a widget for the style sheet.
template <typename Widget>
Widget* WithRole(Widget* Marked, const char* Role)
{
    Marked->setProperty("role", Role);
    return Marked;
}

// A row or a column of widgets without margins of its own. A nullptr is room that takes what is left.
QWidget* InRow(const std::vector<QWidget*>& Widgets);
QWidget* InColumn(const std::vector<QWidget*>& Widgets);

// A field behind its caption.
QWidget* Named(const char* Name, QWidget* Field);

// Tells whenever the widget is shown or hidden within its parent, and at once how it stands now.
void WhenShown(QWidget* Watched, std::function<void(bool)> Then);

// The pane takes the place of the content while it is shown; its first field gets the focus.
void StandInFor(QWidget* Pane, QWidget* Content, QWidget* FirstField);

// Small tables, and the cards around them, get no higher than their content.
QWidget* Snug(QWidget* Content);

// The content with a margin around, no wider than it is easy to read.
QWidget* Readable(QWidget* Content);

// A page of a screen. A display that is smaller than the content scrolls.
QScrollArea* Page(QWidget* Content);

// Widgets in a row from the given width on, if they find room there, and in a column below it, which is the
// room that they need at least. A box inside it turns the other way round.
class TurningBox : public QWidget {
public:
    explicit TurningBox(int RowFromDigits);
    explicit TurningBox(TurningBox& Outer);

    TurningBox(int RowFromDigits, const std::vector<QWidget*>& Content); // the last one takes what is left

    void Add(QWidget* Content, int Stretch = 0, Qt::Alignment Place = {});

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* Event) override;

private:
    int LeastWidth(QBoxLayout::Direction Way) const; // if the content stood that way
    void Turn();

    QBoxLayout* Box;
    int RowFromDigits = 0; // 0 in an inner box, which follows the outer one
    TurningBox* Inner = nullptr;
};

} // namespace velorix
