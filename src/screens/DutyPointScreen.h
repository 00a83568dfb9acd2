// The dialog of a year in which pump and system curve don't cross.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct DutyPointScreen : Screen {
    DutyPointScreen()
        : Screen("frmDutyPoint", "  PUMP AND SYSTEM CURVE")
    {
        DesignEnds();
    }

    Label lblAdvice{"Choose a pump curve that reaches the head of the system curve between its first and its "
                    "sixth point,\n"
                    "or a pipeline with less head loss."};
    CommandButton sscOK{"&OK", "Click to return"};
};

inline DutyPointScreen frmDutyPoint;

} // namespace velorix
