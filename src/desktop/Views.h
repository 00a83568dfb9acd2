// Views of the control records: one Qt widget for each kind of control, bound both ways.
#pragma once

#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"

#include <QString>

#include <vector>

class QAction;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolButton;
class QWidget;

namespace velorix {

class GridView;
class ScrollBarView;

// Each view shows the record's fields, follows them as code changes them, writes what the user does back
// through the same assignment with itself as the source, shows and hides, enables and disables itself as the
// record tells, raises GotFocus and MouseMove, and bears the tool tip. The accessible name is the tool tip
// until a layout gives a better one. A view that is shown or hidden takes the buddies that the layout has
// tied to it along.
QLabel* View(Label& Record);
QGroupBox* View(Frame& Record);
QLineEdit* View(TextBox& Record);       // text
QLineEdit* NumberView(TextBox& Record); // a number: right-aligned, tabular digits
QPlainTextEdit* MultilineView(TextBox& Record);
QComboBox* View(ComboBox& Record);
QListWidget* OpenView(ComboBox& Record); // all its entries in sight
QRadioButton* View(OptionButton& Record);
QCheckBox* View(CheckBox& Record);
QPushButton* View(CommandButton& Record);
QToolButton* ToolView(CommandButton& Record, const QString& IconName); // icon only
QProgressBar* View(ProgressBar& Record);
QDateEdit* View(DatePicker& Record);
ScrollBarView* View(ScrollBar& Record, const QString& Suffix = QString()); // a slider and a spin box
ScrollBarView* HundredthsView(ScrollBar& Record, const QString& Suffix);   // the spin box shows 25 as 0.25
QTabWidget* View(TabControl& Record, const std::vector<QWidget*>& Pages);
QAction* View(MenuItem& Record);

// The grid with the editors that lie over its current cell: a text box, and a list or none.
GridView* View(Grid& Record, TextBox& Editor, ComboBox* List = nullptr);
GridView* View(Grid& Record); // a grid that is only read

// Opens the entries as a menu over the grid, at the pointer or at the current cell, whenever Menu becomes
// visible, and hides Menu again.
void PopUpOver(GridView& Table, MenuItem& Menu, const std::vector<MenuItem*>& Entries);

// Runs the timers of a screen on the event loop, while they are enabled.
void RunTimers(Screen& Record);

} // namespace velorix
