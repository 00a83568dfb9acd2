// The hints of the status bar.
#pragma once

#include "platform/Controls.h"

namespace velorix {

// Shows a control's tool tip in the status bar, on every screen: that of an input when it gets the focus,
// that of a button or menu entry when the pointer comes over it. The hint goes with its screen, and when a
// control without one gets the focus.
void ConnectHints();

void ShowHint(const Control& Source);
void ClearHint();

} // namespace velorix
