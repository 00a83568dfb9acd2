// The dialog that shows pump and system curve of a year in which they don't cross.
#pragma once

#include "platform/Screen.h"

namespace velorix {

struct DutyPointScreen : Screen {
    DutyPointScreen()
        : Screen("frmDutyPoint", "  PUMP AND SYSTEM CURVE")
    {
        DesignEnds();
    }
};

inline DutyPointScreen frmDutyPoint;

} // namespace velorix
