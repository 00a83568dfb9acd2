// The analysis dialog as it opens.
#include "screens/Analyse.h"

namespace velorix {

AnalyseScreen::AnalyseScreen()
    : Screen("frmAnalyse", "  ANALYSE")
{
    // Everything but the timers waits behind the opening decoration.
    for (Control* Each : std::initializer_list<Control*>{&lblAnalyse, &lbl0, &lbl100, &proBar, &sscAnalyse,
                                                         &sscCancel, &sscHelp})
        Each->Visible = false;
    DesignEnds();
}

} // namespace velorix
