// The roughness tool's screen.
#pragma once

namespace velorix {

// Connects frmRoughness, and the command that opens it. To be called before ConnectGridEditors.
void ConnectRoughness();

} // namespace velorix
