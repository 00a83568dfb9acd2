// The program's shell: every control's event connected to its procedure, and the way in.
#pragma once

namespace velorix {

// Connects all screens. Called once, before the first of them is shown.
void ConnectScreens();

// The agreement, the intro, and then the main window with a new gravity project. False when the user doesn't
// accept the agreement; the program ends then.
bool StartProgram();

} // namespace velorix
