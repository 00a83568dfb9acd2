// The results screen as it stands before an analysis.
#include "screens/Results.h"

namespace velorix {

ResultsScreen::ResultsScreen()
    : Screen("frmResults", "  RESULTS")
{
    sstResults.TabVisible = std::vector<bool>{true, false, true}; // the second page comes with its plots
    sstResults.Tab = 2;
    fraDuty.Visible = false;
    sscDutypoint.Visible = false;
    sscDutypoint.Enabled = false; // until there is a plot of the duty points to show
    msgCost.ColWidth = {3100, 1850};
    msgCost.DataRowHeight = msgCost.HeaderHeight = 350;
    msgAnnualCost.ColWidth = {2350, 1250, 1850};
    msgAnnualCost.DataRowHeight = msgAnnualCost.HeaderHeight = 350;
    msgAnnualCost.MergeEqualCells = true;
    msgAnnualCost.MergeCols = {0, 1};
    DesignEnds();
}

} // namespace velorix
