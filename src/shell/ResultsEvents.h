// What the controls of the results screen and of the screens that open from it do.
#pragma once

namespace velorix {

// Connects frmResults, frmIRRView and frmDutyPoint.
void ConnectResults();

} // namespace velorix
