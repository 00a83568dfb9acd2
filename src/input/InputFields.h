// The inputs of the input screen, told once: what fills each, what a commit asks of it and where it stores
// it.
#pragma once

#include "base/Single.h"
#include "input/KeyFilters.h"
#include "platform/Controls.h"
#include "platform/Grid.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velorix {

// What a commit asks of an input, and when. The places count from 1, in the order in which the user is asked;
// inputs of one place stand in the order of the table.
struct Request {
    int Place = 0;                 // 0: nothing is asked
    std::string IfEmpty = {};      // the message for an empty box
    OptionButton* Under = nullptr; // asked only while this option is chosen
    void (*Instead)() = nullptr;   // done at this place instead of looking at a box: a grid is read
};

// Whether the load step fills an input, and whether a commit asks for it and takes it.
struct Use {
    bool (*IsShown)();
    bool (*IsTaken)();
};

// An input, or several that are shown and taken together.
struct InputField {
    Use When;
    std::function<void()> Show = {}; // working set to screen
    std::function<void()> Take = {}; // screen to working set, once all boxes are known to be good
    Request Asked = {};

    TextBox* Box = nullptr;
    const Single* Number = nullptr;    // what a box of a number stores
    const KeyFilter* Filter = nullptr; // the keys that the box takes; none: all

    ScrollBar* Bar = nullptr;
    std::string (*BarCaption)(int) = nullptr; // its value as the user reads it
    std::function<void()> Moved = {};         // what a move of the bar does at once
    Grid* Refilled = nullptr;                 // the demand grid that follows the bar
};

// In the order in which the load step fills the screen.
extern const std::vector<InputField> InputFields;

// Those that a commit asks for, in the order in which it asks: that of the checks as users know them, which
// differs from the fill on most pages.
std::vector<const InputField*> RequestedFields();

// The unit index of a selector. One without a choice, which stands for a unit that its list doesn't know,
// leaves the index as it was.
void TakeUnit(const ComboBox& Selector, std::int16_t& Index);

// What the demand and the pump are given by, as the options stand.
void TakeOptions();

} // namespace velorix
