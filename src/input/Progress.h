// The progress of a load or save in the main window.
#pragma once

#include <string>

namespace velorix {

void ShowProgress(int Percent);
void ShowDoing(const std::string& Doing); // what the bar stands for
void HideProgress();

} // namespace velorix
