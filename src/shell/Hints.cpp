// The hints of the status bar.
#include "shell/Hints.h"

#include "screens/MainWindow.h"

namespace velorix {

void ConnectHints(Screen& Target)
{
    for (Control* Each : Target.Controls) {
        const auto ShowHint = [Each] { MDIProject.StatusText.Caption = Each->ToolTip; };
        Each->GotFocus = ShowHint;
        const bool Pressed = dynamic_cast<CommandButton*>(Each) || dynamic_cast<OptionButton*>(Each) ||
                             dynamic_cast<MenuItem*>(Each);
        if (Pressed && !Each->ToolTip.empty()) Each->MouseMove = ShowHint;
    }
    Target.Hidden = ClearHint;
}

void ClearHint()
{
    MDIProject.StatusText.Caption = "";
}

} // namespace velorix
