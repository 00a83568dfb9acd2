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
struct Control {
    Control(std::string Hint = {});
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    std::string ToolTip; // also the hint of the status bar
    std::string Tag;     // a note that the domain keeps at the control
    Property<bool> Visible{true};
    Property<bool> Enabled{true};
    Handler GotFocus;
    Handler MouseMove;

    // Notes the present state as the one that BackToDesign returns to. Neither raises an event of the
    // control.
    virtual void NoteDesign();
    virtual void BackToDesign();
};

// A line of text, or a coloured field that can be clicked.
struct Label : Control {
    Label(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption;
    Property<Color> BackColor{ButtonColor};
    Handler Click;

    void NoteDesign() override;
    void BackToDesign() override;
};

struct Frame : Control {
    explicit Frame(std::string Text = {});
    Property<std::string> Caption;

    void NoteDesign() override;
    void BackToDesign() override;
};

struct TextBox : Control {
    TextBox(std::string Hint = {}, int LongestText = 0);
    Property<std::string> Text;
    int MaxLength = 0; // characters that can be typed; 0 for no limit
    int SelStart = 0;  // the caret, in characters
    Handler Change;
    KeyHandler KeyPress;
    KeyHandler KeyDown;
    Event<const std::string&> Inserted; // what came into a line untyped, as by a paste; raised after Change

    void NoteDesign() override;
    void BackToDesign() override;
};

// A list to choose from, without typing.
struct ComboBox : Control {
    explicit ComboBox(std::vector<std::string> Entries = {}, std::string Hint = {});
    Property<std::vector<std::string>> List;
    Property<int> ListIndex{-1}; // -1 when nothing is chosen; an index outside the list becomes -1
    Handler Change;

    // The chosen entry, empty when there is none.
    std::string Text() const;

    void NoteDesign() override;
    void BackToDesign() override;
};

// One of a group of which one is set.
struct OptionButton : Control {
    explicit OptionButton(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption;
    Property<bool> Value{false};
    Handler Click; // raised when the option is set, by the user or by code

    void NoteDesign() override;
    void BackToDesign() override;
};

// Makes options exclude each other: setting one clears the others.
void GroupOptions(const std::vector<OptionButton*>& Members);

struct CheckBox : Control {
    explicit CheckBox(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption;
    Property<bool> Value{false};
    Handler Click;

    void NoteDesign() override;
    void BackToDesign() override;
};

struct CommandButton : Control {
    explicit CommandButton(std::string Text = {}, std::string Hint = {});
    Property<std::string> Caption; // "&" marks the letter that presses it
    Handler Click;

    void NoteDesign() override;
    void BackToDesign() override;
};

// An entry of a menu; "&" marks its letter.
struct MenuItem : Control {
    explicit MenuItem(std::string Text, std::string Hint = {});
    Property<std::string> Caption;
    Handler Click;
};

// A bar that carries a whole number between Min and Max. A value outside is held at the bound.
struct ScrollBar : Control {
    ScrollBar(int Least, int Most, int LargeStep, std::string Hint = {});
    Property<int> Min;
    Property<int> Max;
    Property<int> Value;
    int SmallChange = 1;
    int LargeChange = 1;
    Handler Change;
    Handler Refused; // what was typed or pasted is no number between Min and Max

    void NoteDesign() override;
    void BackToDesign() override;
};

struct ProgressBar : Control {
    Property<int> Value{0}; // percent

    void NoteDesign() override;
    void BackToDesign() override;
};

struct TabControl : Control {
    explicit TabControl(std::vector<std::string> Captions);
    const std::vector<std::string> TabCaptions;
    Property<int> Tab{0}; // the page on top
    Property<std::vector<bool>> TabVisible;
    Handler Change; // raised when another page has come to the top

    void NoteDesign() override;
    void BackToDesign() override;
};

struct DatePicker : Control {
    explicit DatePicker(std::string Hint = {});
    Property<Date> Value;
    Handler Change;

    void NoteDesign() override;
    void BackToDesign() override;
};

// Raises Tick every Interval milliseconds while it is enabled, from the event loop only.
struct Timer : Control {
    explicit Timer(int Milliseconds);
    Property<int> Interval;
    Handler Tick;

    void NoteDesign() override;
    void BackToDesign() override;
};

} // namespace velorix
