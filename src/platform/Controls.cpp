// How each kind of control wires its fields to its event.
#include "platform/Controls.h"

#include <algorithm>

namespace velorix {

Label::Label(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(*this, std::move(Text))
{
}

Frame::Frame(std::string Text)
    : Caption(*this, std::move(Text))
{
}

TextBox::TextBox(std::string Hint, int LongestText)
    : Control(std::move(Hint))
    , MaxLength(LongestText)
{
    Keep(MaxLength, SelStart);
    Text.Changed = [this] { Change(); };
}

ComboBox::ComboBox(std::vector<std::string> Entries, std::string Hint)
    : Control(std::move(Hint))
    , List(*this, std::move(Entries))
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

OptionButton::OptionButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(*this, std::move(Text))
{
    Value.Changed = [this] {
        if (Value) Click();
    };
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
    , Caption(*this, std::move(Text))
{
    Value.Changed = [this] { Click(); };
}

CommandButton::CommandButton(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(*this, std::move(Text))
{
}

MenuItem::MenuItem(std::string Text, std::string Hint)
    : Control(std::move(Hint))
    , Caption(*this, std::move(Text))
{
}

ScrollBar::ScrollBar(int Least, int Most, int LargeStep, std::string Hint)
    : Control(std::move(Hint))
    , Min(*this, Least)
    , Max(*this, Most)
    , Value(*this, Least)
    , LargeChange(LargeStep)
{
    Keep(SmallChange, LargeChange);
    // std::clamp would ask for Min <= Max, which code that sets the two one after the other can't promise.
    Value.Fit = [this](int Wanted) { return std::max(Min.Get(), std::min(Max.Get(), Wanted)); };
    Value.Changed = [this] { Change(); };
    Min.Changed = [this] { Value = Value.Get(); };
    Max.Changed = [this] { Value = Value.Get(); };
}

TabControl::TabControl(std::vector<std::string> Captions)
    : TabCaptions(std::move(Captions))
    , TabVisible(*this, std::vector<bool>(TabCaptions.size(), true))
{
    Tab.Changed = [this] { Change(); };
}

DatePicker::DatePicker(std::string Hint)
    : Control(std::move(Hint))
{
    Value.Changed = [this] { Change(); };
}

Image::Image(std::string Name)
    : Picture(*this, std::move(Name))
{
}

Timer::Timer(int Milliseconds)
    : Interval(*this, Milliseconds)
{
    Enabled = false;
}

} // namespace velorix
