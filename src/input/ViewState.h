// Which screen stands in the main window, around dialogs and side screens.
#pragma once

namespace velorix {

// A dialog loads: hides the input screen, or the results screen, and notes in ViewState which it was.
void HideScreens();

// The dialog closes: the input screen comes back. When the results screen was up the currency signs are
// refreshed a moment later.
void RestoreScreens();

// A command takes the screens of the open project out of the way: input screen, viewers, results screen.
void LeaveProjectScreens();

// Unloads the viewers that stand in the main window, and hides the roughness screen that is reached from one.
void CloseViewers();

// Tells in the empty workspace how to go on, with a project that is hidden or with none.
void TellWayOn();

// The input screen comes to the front, the results screen goes.
void ShowInputScreen();

} // namespace velorix
