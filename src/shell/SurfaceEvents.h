// What a surface with a plot does under the pointer.
#pragma once

#include "platform/DrawingSurface.h"
#include "platform/Screen.h"

namespace velorix {

// A press of the right button copies the picture and tells so; a move of the pointer over the surface is read
// out, where there is a read-out.
void ConnectSurface(DrawingSurface& Surface, const char* Copied, void (*ReadOut)(double, double) = nullptr);

// Over every control of the screen but the surfaces with a read-out the pointer is the arrow again.
void ConnectPointer(Screen& Target);

// The hourglass stands while the plot is drawn anew.
void ConnectRedraw(CommandButton& Button, void (*Draw)());

} // namespace velorix
