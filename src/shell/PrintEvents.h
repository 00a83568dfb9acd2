// What frmPrint, frmSelectYear and the print buttons of the other screens do.
#pragma once

namespace velorix {

void ConnectPrinting();

} // namespace velorix
