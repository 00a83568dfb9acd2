// The small dialogs as they open.
#include "screens/Dialogs.h"

namespace velorix {

LccTypeScreen::LccTypeScreen()
    : Screen("frmLCCType", "  TYPE OF SYSTEM")
{
    GroupOptions({&optGravity, &optPumping});
    optGravity.Value = true;
    DesignEnds();
}

PrefScreen::PrefScreen()
    : Screen("frmPref", "  PREFERENCES")
{
    GroupOptions({&optMetric, &optUS});
    GroupOptions({&optRand, &optDollars});
    DesignEnds();
}

} // namespace velorix
