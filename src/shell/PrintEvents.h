// What frmPrint, frmSelectYear and the print buttons of the other screens do.
#pragma once

namespace velorix {

// Connects them, and lets the print command show frmPrint.
void ConnectPrinting();

} // namespace velorix
