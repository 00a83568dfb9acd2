// What stands around a plot: the lines' colours with what they stand for, and what the pointer is at.
#pragma once

#include "platform/Controls.h"

#include <QWidget>

#include <vector>

namespace velorix {

// A name, once there is a value, and the value with room for any, so that nothing moves while the pointer
// does.
QWidget* ReadOut(const char* Name, Label& Value);

struct KeyEntry {
    Color Ink;
    const char* Words;
};

// A stroke of each line on the white of the plot's sheet, with its name.
QWidget* LineKey(const std::vector<KeyEntry>& Entries);

} // namespace velorix
