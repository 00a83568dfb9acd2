// The results screen as it stands before an analysis.
#include "screens/Results.h"

namespace velorix {

ResultsScreen::ResultsScreen()
    : Screen("frmResults", "  RESULTS")
{
    fraDuty.Visible = false;
    sscDutypoint.Visible = false;
    msgCost.ColWidth = {4200, 2400};
    msgCost.DataRowHeight = msgCost.HeaderHeight = 350;
    msgAnnualCost.ColWidth = {1700, 1100, 1800};
    msgAnnualCost.DataRowHeight = msgAnnualCost.HeaderHeight = 350;
    msgAnnualCost.MergeEqualCells = true;
    DesignEnds();
}

} // namespace velorix
