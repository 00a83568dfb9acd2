// Help pages by topic number.
#pragma once

#include "platform/Controls.h"

namespace velorix {

// Opens the help file at the topic.
void ShowHelpTopic(int Topic);

// The button opens the topic.
void HelpOn(CommandButton& Button, int Topic);

} // namespace velorix
