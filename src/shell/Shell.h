// The program's shell: every control's event connected to its procedure, and the way in.
#pragma once

#include "platform/Controls.h"

namespace velorix {

// Screens that stand beside the shell and announce themselves here: what the command does once its guards
// have been passed. A command without one when the screens are connected is disabled.
extern Handler ShowPrintScreen;
extern Handler ShowImportWizard;
extern Handler ShowConverter;
extern Handler ShowGuide;
extern Handler ShowRoughness;

// Connects all screens. Called once, before the first of them is shown.
void ConnectScreens();

// The agreement, the intro, and then the main window with a new gravity project. False when the user doesn't
// accept the agreement; the program ends then.
bool StartProgram();

} // namespace velorix
