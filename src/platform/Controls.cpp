// How each kind of control wires its fields to its event, and returns to its state at design.
#include "platform/Controls.h"

#include <algorithm>

namespace velorix {

void Control::NoteDesign()
{
    Visible.NoteDesign();
    Enabled.NoteDesign();
}

void Control::BackToDesign()
{
    Visible.BackToDesign();
    Enabled.BackToDesign();
    Tag.clear();
}

Label::Label(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
}

void Label::NoteDesign()
{
    Control::NoteDesign();
    Caption.NoteDesign();
    BackColor.NoteDesign();
}

void Label::BackToDesign()
{
    Control::BackToDesign();
    Caption.BackToDesign();
    BackColor.BackToDesign();
}

Frame::Frame(std::string Text)
    : Caption(std::move(Text))
{
}

void Frame::NoteDesign()
{
    Control::NoteDesign();
    Caption.NoteDesign();
}

void Frame::BackToDesign()
{
    Control::BackToDesign();
    Caption.BackToDesign();
}

TextBox::TextBox(std::string Hint, int LongestText)
    : Control(std::move(Hint))
    , MaxLength(LongestText)
{
    Text.Changed = [this] { Change(); };
}

void TextBox::NoteDesign()
{
    Control::NoteDesign();
    Text.NoteDesign();
}

void TextBox::BackToDesign()
{
    Control::BackToDesign();
    Text.BackToDesign();
    SelStart = 0;
}

ComboBox::ComboBox(std::vector<std::string> Entries, std::string Hint)
    : Control(std::move(Hint))
    , List(std::move(Entries))
{
    ListIndex.Fit = [this](int Index) {
        return Index >= 0 && Index < static_cast<int>(List.Get().size()) ? Index : -1;
    };
    ListIndex.Changed = [this] { Change(); };
    List.Changed = [this] { ListIndex = ListIndex.Get(); };
}

std::string ComboBox::Text() const
{
    return ListIndex < 0 ? std::string() : List.Get().at(static_cast<std::size_t>(ListIndex.Get()));
}

void ComboBox::NoteDesign()
{
    Control::NoteDesign();
    List.NoteDesign();
    ListIndex.NoteDesign();
}

void ComboBox::BackToDesign()
{
    Control::BackToDesign();
    List.BackToDesign();
    ListIndex.BackToDesign();
}

OptionButton::OptionButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
    Value.Changed = [this] {
        if (Value) Click();
    };
}

void OptionButton::NoteDesign()
{
    Control::NoteDesign();
    Caption.NoteDesign();
    Value.NoteDesign();
}

void OptionButton::BackToDesign()
{
    Control::BackToDesign();
    Caption.BackToDesign();
    Value.BackToDesign();
}

void GroupOptions(const std::vector<OptionButton*>& Members)
{
    for (OptionButton* Each : Members)
        Each->Value.Changed = [Each, Members] {
            if (!Each->Value) return;
            for (OptionButton* Other : Members)
                if (Other != Each) Other->Value = false;
            Each->Click();
        };
}

CheckBox::CheckBox(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
    Value.Changed = [this] { Click(); };
}

void CheckBox::NoteDesign()
{
    Control::NoteDesign();
    Caption.NoteDesign();
    Value.NoteDesign();
}

void CheckBox::BackToDesign()
{
    Control::BackToDesign();
    Caption.BackToDesign();
    Value.BackToDesign();
}

CommandButton::CommandButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
}

void CommandButton::NoteDesign()
{
    Control::NoteDesign();
    Caption.NoteDesign();
}

void CommandButton::BackToDesign()
{
    Control::BackToDesign();
    Caption.BackToDesign();
}

MenuItem::MenuItem(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
}

ScrollBar::ScrollBar(int Least, int Most, int LargeStep, std::string Hint)
    : Control(std::move(Hint))
    , Min(Least)
    , Max(Most)
    , Value(Least)
    , LargeChange(LargeStep)
{
    // std::clamp would ask for Min <= Max, which code that sets the two one after the other can't promise.
    Value.Fit = [this](int Wanted) { return std::max(Min.Get(), std::min(Max.Get(), Wanted)); };
    Value.Changed = [this] { Change(); };
    Min.Changed = [this] { Value = Value.Get(); };
    Max.Changed = [this] { Value = Value.Get(); };
}

void ScrollBar::NoteDesign()
{
    Control::NoteDesign();
    Min.NoteDesign();
    Max.NoteDesign();
    Value.NoteDesign();
}

void ScrollBar::BackToDesign()
{
    Control::BackToDesign();
    Min.BackToDesign();
    Max.BackToDesign();
    Value.BackToDesign();
}

void ProgressBar::NoteDesign()
{
    Control::NoteDesign();
    Value.NoteDesign();
}

void ProgressBar::BackToDesign()
{
    Control::BackToDesign();
    Value.BackToDesign();
}

TabControl::TabControl(std::vector<std::string> Captions)
    : TabCaptions(std::move(Captions))
    , TabVisible(std::vector<bool>(TabCaptions.size(), true))
{
    Tab.Changed = [this] { Change(); };
}

void TabControl::NoteDesign()
{
    Control::NoteDesign();
    Tab.NoteDesign();
    TabVisible.NoteDesign();
}

void TabControl::BackToDesign()
{
    Control::BackToDesign();
    Tab.BackToDesign();
    TabVisible.BackToDesign();
}

DatePicker::DatePicker(std::string Hint)
    : Control(std::move(Hint))
{
    Value.Changed = [this] { Change(); };
}

void DatePicker::NoteDesign()
{
    Control::NoteDesign();
    Value.NoteDesign();
}

void DatePicker::BackToDesign()
{
    Control::BackToDesign();
    Value.BackToDesign();
}

Timer::Timer(int Milliseconds)
    : Interval(Milliseconds)
{
    Enabled = false;
}

void Timer::NoteDesign()
{
    Control::NoteDesign();
    Interval.NoteDesign();
}

void Timer::BackToDesign()
{
    Control::BackToDesign();
    Interval.BackToDesign();
}

} // namespace velorix
