// The dialog that shows a profile row before it is deleted.
#pragma once

namespace velorix {

void ConnectDeleteRow();

// Shows the current row of the profile table and asks whether it shall go.
void AskToDeleteRow();

} // namespace velorix
