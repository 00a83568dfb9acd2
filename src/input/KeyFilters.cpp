// The two number filters.
#include "input/KeyFilters.h"

#include "base/Text.h"
#include "platform/Keys.h"
#include "screens/MainWindow.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr const char* NumbersOnly = "Only digits and a decimal point can be typed here";

bool IsNumberKey(int Key)
{
    return (Key >= '0' && Key <= '9') || Key == '.' || Key == Keys::Backspace || Key == Keys::Enter;
}

bool IsCellNumberKey(int Key)
{
    return IsNumberKey(Key) || Key == Keys::Escape || (Key >= Keys::Left && Key <= Keys::Down);
}

} // namespace

const KeyFilter NumberKeys = {IsNumberKey, NumbersOnly};
const KeyFilter CellNumberKeys = {IsCellNumberKey, NumbersOnly};

bool Passes(const KeyFilter& Filter, int Key)
{
    constexpr int FirstPrintable = ' ';
    if (Filter.Takes(Key)) return true;
    if (Key >= FirstPrintable) MDIProject.StatusText.Caption = Filter.Sentence;
    return false;
}

void TellOfInserted(const KeyFilter& Filter, const std::string& Text)
{
    // The bytes of a foreign character are no digits either.
    const std::string_view Line = TrimmedCell(Text);
    const auto Taken = [&Filter](char Each) { return Filter.Takes(static_cast<unsigned char>(Each)); };
    if (!std::all_of(Line.begin(), Line.end(), Taken)) MDIProject.StatusText.Caption = Filter.Sentence;
}

void FilterKeys(TextBox& Box, const KeyFilter& Filter)
{
    Box.KeyPress = [&Filter](int& Key) {
        if (!Passes(Filter, Key)) Key = 0;
    };
    Box.Inserted = [&Box, &Filter](const std::string& Text) {
        TellOfInserted(Filter, Text);
        const std::string_view Kept =
            TrimmedCell(Box.Text.Get()); // a cell of a table brings its line end along
        if (Kept.size() < Box.Text.Get().size()) Box.Text = std::string(Kept);
    };
}

void TellBounds(ScrollBar& Bar, std::string (*Caption)(int))
{
    Bar.Refused = [&Bar, Caption] {
        MDIProject.StatusText.Caption =
            "Only a number from " + Caption(Bar.Min) + " to " + Caption(Bar.Max) + " can be typed here";
    };
}

} // namespace velorix
