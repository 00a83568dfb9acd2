// The help file and its topics.
#include "shell/Help.h"

#include "platform/Platform.h"

namespace velorix {
namespace {

constexpr int OtherHelp = 5000; // of a screen without a topic of its own

} // namespace

void ShowHelpTopic(int Topic)
{
    System().ShowHelp(System().ProgramFolder() / "Velorix.hlp", Topic);
}

void HelpOn(CommandButton& Button, int Topic)
{
    Button.IsHelp = true;
    Button.Click = [Topic] { ShowHelpTopic(Topic); };
}

void ShowHelpOf(const std::vector<Screen*>& Dialogs)
{
    for (auto Dialog = Dialogs.rbegin(); Dialog != Dialogs.rend(); ++Dialog)
        for (const Control* Each : (*Dialog)->Controls)
            if (const auto* const Button = dynamic_cast<const CommandButton*>(Each);
                Button && Button->Visible && Button->IsHelp)
                return Button->Click();
    ShowHelpTopic(OtherHelp);
}

} // namespace velorix
