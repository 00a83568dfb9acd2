// The unit converter's screen.
#pragma once

namespace velorix {

// Connects frmConverter, and the command that opens it.
void ConnectConverter();

} // namespace velorix
