// The main window at the program's start.
#include "screens/MainWindow.h"

namespace velorix {

MainWindowScreen::MainWindowScreen()
    : Screen("MDIProject", ProgramTitle)
{
    for (Control* Each : std::initializer_list<Control*>{&mnuExit1, &mnuRoughness, &mnuFGridRows, &lblWelcome,
                                                         &lblProgessBar, &proProgressBar})
        Each->Visible = false;
    DesignEnds();
}

} // namespace velorix
