// The opening dialogs and the notices: agreement, intro, disclaimer, about box.
#pragma once

#include <string>

namespace velorix {

void ConnectNotices();

// Shows the agreement and, once it is accepted, the intro. False when the user cancels.
bool AgreementAccepted();

void AcceptPressed(); // the agreement's own buttons
void RefusePressed();
void IntroEnds(); // its time is over, or the user cut it short

// "Version: " and the program's version.
std::string VersionCaption();

} // namespace velorix
