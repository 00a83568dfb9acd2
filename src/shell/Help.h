// Help pages by topic number.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

#include <vector>

namespace velorix {

// Opens the help file at the topic.
void ShowHelpTopic(int Topic);

// The button opens the topic.
void HelpOn(CommandButton& Button, int Topic);

// Presses the help button of the last of the dialogs that has one; without any it opens the topic of the
// analysis and its results. They stand one over the other, the front one last.
void ShowHelpOf(const std::vector<Screen*>& Dialogs);

} // namespace velorix
