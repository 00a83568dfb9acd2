// How each kind of control wires its fields to its event, and returns to its state at design.
#include "platform/Controls.h"

#include <algorithm>

namespace velorix {

void Control::NoteDesign()
{
    DesignVisible = Visible;
    DesignEnabled = Enabled;
}

void Control::BackToDesign()
{
    Visible.Restore(DesignVisible);
    Enabled.Restore(DesignEnabled);
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
    DesignCaption = Caption;
    DesignColor = BackColor;
}

void Label::BackToDesign()
{
    Control::BackToDesign();
    Caption.Restore(DesignCaption);
    BackColor.Restore(DesignColor);
}

Frame::Frame(std::string Text)
    : Caption(std::move(Text))
{
}

TextBox::TextBox(std::string Hint, int LongestText)
    : Control(std::move(Hint))
    , MaxLength(LongestText)
{
    Text.Changed = [this] { Change(); };
}

void TextBox::BackToDesign()
{
    Control::BackToDesign();
    Text.Restore({});
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
    DesignList = List;
    DesignIndex = ListIndex;
}

void ComboBox::BackToDesign()
{
    Control::BackToDesign();
    List.Restore(DesignList);
    ListIndex.Restore(DesignIndex);
}

OptionButton::OptionButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
    Value.Changed = [this] {
        if (Value) Click();
    };
}

void OptionButton::BackToDesign()
{
    Control::BackToDesign();
    Value.Restore(false);
}

void GroupOptions(std::vector<OptionButton*> Members)
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

void CheckBox::BackToDesign()
{
    Control::BackToDesign();
    Value.Restore(false);
}

CommandButton::CommandButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(std::move(Text))
{
}

void CommandButton::NoteDesign()
{
    Control::NoteDesign();
    DesignCaption = Caption;
}

void CommandButton::BackToDesign()
{
    Control::BackToDesign();
    Caption.Restore(DesignCaption);
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
    DesignMin = Min;
    DesignMax = Max;
    DesignValue = Value;
}

void ScrollBar::BackToDesign()
{
    Control::BackToDesign();
    Min.Restore(DesignMin);
    Max.Restore(DesignMax);
    Value.Restore(DesignValue);
}

void ProgressBar::BackToDesign()
{
    Control::BackToDesign();
    Value.Restore(0);
}

TabControl::TabControl(std::vector<std::string> Captions)
    : TabCaptions(std::move(Captions))
    , TabVisible(std::vector<bool>(TabCaptions.size(), true))
{
}

void TabControl::BackToDesign()
{
    Control::BackToDesign();
    Tab.Restore(0);
    TabVisible.Restore(std::vector<bool>(TabCaptions.size(), true));
}

DatePicker::DatePicker(std::string Hint)
    : Control(std::move(Hint))
{
    Value.Changed = [this] { Change(); };
}

Timer::Timer(int Milliseconds)
    : Interval(Milliseconds)
{
    Enabled = false;
}

} // namespace velorix
