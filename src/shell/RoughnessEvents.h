// The roughness tool's screen.
#pragma once

namespace velorix {

// To be called before ConnectGridEditors.
void ConnectRoughness();

// Shows frmRoughness in place of the profile view or of its own plot.
void ShowRoughness();

} // namespace velorix
