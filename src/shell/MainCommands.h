// The commands of the main window: each a guard in front of a flow that lives elsewhere.
#pragma once

namespace velorix {

void ConnectMainWindow();

// The window comes up: its welcome line, its menus.
void MainWindowLoads();

// Commands of the menus that have a guard of their own.
void AnalyseCommand();
void InputDataCommand();
void ResultsCommand();
void PrintCommand();
void ImportCommand();
void ConvertCommand();
void RoughnessCommand();
void PreferencesCommand();
void DisclaimerCommand();
void AboutCommand();

// One tick of the welcome line in the window's title.
void WelcomeTick();

void ResetMainCommands();

} // namespace velorix
