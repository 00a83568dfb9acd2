// The hints of the status bar.
#include "shell/Hints.h"

#include "screens/MainWindow.h"

namespace velorix {
namespace {

void ConnectHintsOf(Screen& Target)
{
    for (Control* Each : Target.Controls) {
        const auto Show = [Each] { ShowHint(*Each); };
        Each->GotFocus = Show;
        const bool Pressed = dynamic_cast<CommandButton*>(Each) || dynamic_cast<OptionButton*>(Each) ||
                             dynamic_cast<MenuItem*>(Each);
        if (Pressed && !Each->ToolTip.empty()) Each->MouseMove = Show;
    }
    Target.Hidden = ClearHint;
}

} // namespace

void ConnectHints()
{
    for (Screen* Each : AllScreens()) ConnectHintsOf(*Each);
}

void ShowHint(const Control& Source)
{
    MDIProject.StatusText.Caption = Source.ToolTip;
}

void ClearHint()
{
    MDIProject.StatusText.Caption = "";
}

} // namespace velorix
