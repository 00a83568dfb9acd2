// The unit converter's screen.
#pragma once

namespace velorix {

// Connects frmConverter.
void ConnectConverter();

} // namespace velorix
