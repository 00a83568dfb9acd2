// The main window: the frame that holds all screens.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct MainWindowScreen : Screen {
    MainWindowScreen();

    Label lblSystem;     // the kind of system of the open project
    Label lblProgessBar; // what a load or save is doing
    ProgressBar proProgressBar;
    Label StatusText; // the text panel of the status bar
};

inline MainWindowScreen MDIProject;

} // namespace velorix
