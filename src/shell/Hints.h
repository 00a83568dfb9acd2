// The hints of the status bar.
#pragma once

#include "platform/Screen.h"

namespace velorix {

// Shows a control's tool tip in the status bar: that of an input when it gets the focus, that of a button or
// menu entry when the pointer comes over it. The hint goes with its screen, and when a control without one
// gets the focus.
void ConnectHints(Screen& Target);

void ClearHint();

} // namespace velorix
