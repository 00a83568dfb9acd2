// The control records. A control holds what a user sees and can change; it knows no toolkit and no screen.
#pragma once

#include "base/Date.h"
#include "platform/Color.h"
#include "platform/Property.h"

#include <string>
#include <vector>

namespace velorix {

using Handler = Event<>;
using KeyHandler = Event<int&>; // a key's code; the handler sets it to 0 to drop the key

// What all controls have in common.
struct Control : PropertyOwner {
    Control(std::string Hint = {});
    virtual ~Control() = default;

    std::string ToolTip; // also the hint of the status bar
    std::string Tag;     // a note that the domain keeps at the control
    Property<bool> Visible{*this, true};
    Property<bool> Enabled{*this, true};
    Handler GotFocus;
    Handler MouseMove;
};

// A line of text, or a coloured field that can be clicked.
struct Label : Control {
    Label(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption{*this};
    Property<Color> BackColor{*this, ButtonColor};
    Handler Click;
};

struct Frame : Control {
    explicit Frame(std::string Text = {});
    Property<std::string> Caption{*this};
};

struct TextBox : Control {
    TextBox(std::string Hint = {}, int LongestText = 0);
    Property<std::string> Text{*this};
    int MaxLength = 0; // characters that can be typed; 0 for no limit
    int SelStart = 0;  // the caret, in characters
    Handler Change;
    KeyHandler KeyPress;
    KeyHandler KeyDown;
    Event<const std::string&> Inserted; // what came into a line untyped, as by a paste; raised after Change
};

// A list to choose from, without typing.
struct ComboBox : Control {
    ComboBox(std::vector<std::string> Entries = {}, std::string Hint = {});
    Property<std::vector<std::string>> List{*this};
    Property<int> ListIndex{*this, -1}; // -1 when nothing is chosen; an index outside the list becomes -1
    Handler Change;
    Handler Click; // the user has chosen an entry, be it the same as before; raised after Change

    // The chosen entry, empty when there is none.
    std::string Text() const;
};

// One of a group of which one is set.
struct OptionButton : Control {
    explicit OptionButton(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    Handler Click; // raised when the option is set, by the user or by code
};

// Makes options exclude each other: setting one clears the others.
void GroupOptions(const std::vector<OptionButton*>& Members);

struct CheckBox : Control {
    CheckBox(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    Handler Click;
};

struct CommandButton : Control {
    explicit CommandButton(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption{*this}; // "&" marks the letter that presses it
    bool IsHelp = false;                  // F1 presses it where it stands in a dialog
    Handler Click;
};

// An entry of a menu; "&" marks its letter.
struct MenuItem : Control {
    explicit MenuItem(std::string Text, std::string Hint = {});
    Property<std::string> Caption{*this};
    Handler Click;
};

// A bar that carries a whole number between Min and Max. A value outside is held at the bound.
struct ScrollBar : Control {
    ScrollBar(int Least, int Most, int LargeStep, std::string Hint = {});
    Property<int> Min{*this};
    Property<int> Max{*this};
    Property<int> Value{*this};
    int SmallChange = 1;
    int LargeChange = 1;
    Handler Change;
    Handler Refused; // what was typed or pasted is no number between Min and Max
};

struct ProgressBar : Control {
    Property<int> Value{*this, 0}; // percent
};

struct TabControl : Control {
    explicit TabControl(std::vector<std::string> Captions);
    const std::vector<std::string> TabCaptions;
    Property<int> Tab{*this, 0}; // the page on top
    Property<std::vector<bool>> TabVisible{*this};
    Handler Change; // raised when another page has come to the top
};

struct DatePicker : Control {
    explicit DatePicker(std::string Hint = {});
    Property<Date> Value{*this};
    Handler Change;
};

// Shows the pages of a PDF document. What can't be shown leaves it empty.
struct PdfViewer : Control {
    explicit PdfViewer(std::string Hint = {});
    void LoadFile(const std::string& Path) { File = Path; }
    Property<std::string> File{*this};
    Property<std::string> Bookmark{*this}; // the document opens there; empty for its first page
};

// A picture of the program, by its name.
struct Image : Control {
    Image(std::string Name = {});
    Property<std::string> Picture{*this};
};

// Raises Tick every Interval milliseconds while it is enabled, from the event loop only.
struct Timer : Control {
    explicit Timer(int Milliseconds);
    Property<int> Interval{*this};
    Handler Tick;
};

} // namespace velorix
