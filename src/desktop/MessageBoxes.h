// The boxes that tell or ask something.
#pragma once

#include "platform/Platform.h"

class QWidget;

namespace velorix {

// Shows the box over its owner and waits for the answer; Escape answers what changes nothing.
Answer ShowMessageBox(const Message& Box, QWidget* Owner);

} // namespace velorix
