// The two viewers that open from the input screen: the pipeline profile and the pump curve.
#pragma once

#include "platform/Screen.h"

namespace velorix {

struct ProfileViewScreen : Screen {
    ProfileViewScreen()
        : Screen("frmView", "  PIPELINE PROFILE")
    {
        DesignEnds();
    }
};

struct PumpViewScreen : Screen {
    PumpViewScreen()
        : Screen("frmPumpView", "  PUMP CURVE")
    {
        DesignEnds();
    }
};

inline ProfileViewScreen frmView;
inline PumpViewScreen frmPumpView;

} // namespace velorix
