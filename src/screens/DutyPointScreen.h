// The dialog of a year in which pump and system curve don't cross.
#pragma once

#include "platform/Controls.h"
#include "platform/DrawingSurface.h"
#include "platform/Screen.h"
#include "screens/Surfaces.h"

namespace velorix {

struct DutyPointScreen : Screen {
    DutyPointScreen()
        : Screen("frmDutyPoint", "  PUMP AND SYSTEM CURVE")
    {
        lblGridColor.Visible = false;
        lblGridColor.BackColor = CurveGridColor;
        DesignEnds();
    }

    DrawingSurface picDuty{GraphWidth, GraphHeight, "Pump curve and system curve of the year"};
    Label lblGridColor; // hidden: its colour is that of the grid

    Label lblAdvice{"Choose a pump curve that reaches the head of the system curve between its first and its "
                    "sixth point,\n"
                    "or a pipeline with less head loss."};
    CommandButton sscOK{"&OK", "Click to return"};
};

inline DutyPointScreen frmDutyPoint;

} // namespace velorix
