// The help file and its topics.
#include "shell/Help.h"

#include "platform/Platform.h"

namespace velorix {

void ShowHelpTopic(int Topic)
{
    System().ShowHelp(System().ProgramFolder() / "Velorix.hlp", Topic);
}

void HelpOn(CommandButton& Button, int Topic)
{
    Button.Click = [Topic] { ShowHelpTopic(Topic); };
}

} // namespace velorix
