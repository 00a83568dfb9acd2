// Pointer, read-out and copy.
#include "shell/SurfaceEvents.h"

#include "platform/Platform.h"

namespace velorix {

void ConnectSurface(DrawingSurface& Surface, const char* Copied, void (*ReadOut)(double, double))
{
    if (ReadOut) Surface.PointerMoved = ReadOut;
    Surface.RightButtonPressed = [&Surface, Copied] {
        {
            const BusyPointer Copying;
            Surface.CopyImageToClipboard();
        }
        Inform(Copied);
    };
}

void ConnectPointer(Screen& Target)
{
    for (Control* Each : Target.Controls) {
        const auto* const Surface = dynamic_cast<DrawingSurface*>(Each);
        if (Surface && Surface->PointerMoved) continue;
        const Handler Hint = Each->MouseMove;
        Each->MouseMove = [Hint] {
            System().SetPointer(PointerShape::Default);
            Hint();
        };
    }
}

void ConnectRedraw(CommandButton& Button, void (*Draw)())
{
    Button.Click = [Draw] {
        const BusyPointer Drawing;
        Draw();
    };
}

} // namespace velorix
