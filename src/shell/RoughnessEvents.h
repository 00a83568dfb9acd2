// The roughness tool's screen.
#pragma once

namespace velorix {

// To be called before ConnectGridEditors.
void ConnectRoughness();

// Shows frmRoughness in place of its plot.
void ShowRoughness();

} // namespace velorix
