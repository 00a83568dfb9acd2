// The main window at the program's start.
#include "screens/MainWindow.h"

namespace velorix {

MainWindowScreen::MainWindowScreen()
    : Screen("MDIProject", "  Velorix")
{
    lblProgessBar.Visible = false;
    proProgressBar.Visible = false;
    DesignEnds();
}

} // namespace velorix
