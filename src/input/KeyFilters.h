// Which typed keys a field or a cell takes, and what the user is told of one that it doesn't take.
#pragma once

#include "platform/Controls.h"

#include <string>

namespace velorix {

struct KeyFilter {
    bool (*Takes)(int Key);
    const char* Sentence; // tells which characters can be typed
};

// Digits, the decimal point, Backspace and Enter. No sign: no value can be typed negative.
extern const KeyFilter NumberKeys;

// The same, Escape and the codes of the arrow keys. As typed characters those four are "%", "&", "'" and "(".
extern const KeyFilter CellNumberKeys;

// Whether the filter takes the key. Of a character that it doesn't take the user is told in the status bar.
bool Passes(const KeyFilter& Filter, int Key);

// Tells the same of a text that was put in unfiltered, when it holds what couldn't be typed.
void TellOfInserted(const KeyFilter& Filter, const std::string& Text);

// The box drops the keys that its filter doesn't take.
void FilterKeys(TextBox& Box, const KeyFilter& Filter);

// The same of the number field of a bar: it tells the bounds, as the bar's caption writes them.
void TellBounds(ScrollBar& Bar, std::string (*Caption)(int));

} // namespace velorix
