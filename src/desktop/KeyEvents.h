// Key codes of the toolkit's key events, as the handlers of controls take them (platform/Keys.h).
#pragma once

#include "platform/Controls.h"

#include <vector>

class QKeyEvent;
class QString;

namespace velorix {

// The code of a key that types no character, or 0 for any other key. Arrows and their like count only when
// pressed alone: with Shift they select, with Ctrl they jump, and that is the view's own affair.
int SpecialKey(const QKeyEvent& Key);

// What the key types, in code points: one character as a rule, or the code of Backspace, Enter and Escape.
// Empty for a key that types nothing and for a shortcut.
std::vector<int> TypedKeys(const QKeyEvent& Key);

// True for a character typed with Alt or Meta, which is meant as a command and not as text.
bool IsCommandKey(const QKeyEvent& Key);

// Raises the event for each character; false when the handler has dropped one.
bool Press(const KeyHandler& Pressed, const std::vector<int>& Typed);

// Raises KeyDown for a special key; false when the handler has dropped it.
bool PressDown(const KeyHandler& Pressed, int Key);

std::vector<int> CodePoints(const QString& Text);

} // namespace velorix
