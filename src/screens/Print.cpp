// The screens of printing as they open.
#include "screens/Print.h"

namespace velorix {

PrintScreen::PrintScreen()
    : Screen("frmPrint", "  PRINT")
{
    DesignEnds();
}

SelectYearScreen::SelectYearScreen(std::string ScreenName, std::string Question)
    : Screen(std::move(ScreenName), "Select year")
    , lblQuestion(std::move(Question))
{
    DesignEnds();
}

} // namespace velorix
