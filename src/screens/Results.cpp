// The results screen as it stands before an analysis.
#include "screens/Results.h"

namespace velorix {

ResultsScreen::ResultsScreen()
    : Screen("frmResults", "  RESULTS")
{
    GroupOptions({&ssoDemandCapacity, &ssoIncomeExpenditure});
    for (Frame* Each : {&fraComponents, &fraTable, &fraDuty, &fraViewTable, &fraIncomeLegend})
        Each->Visible = false;
    chkComponents.Value = chkGradeline.Value = true;
    ssoDemandCapacity.Value = true;
    sscDutypoint.Visible = false;
    lblGridColor.Visible = false;
    lblGridColor.BackColor = CurveGridColor;
    msgHydraulic.ColWidth = {1050, 1450, 1450, 1450, 1450, 1700};
    msgHydraulic.HeaderHeight = 500;
    msgDuty.ColWidth = {950, 1150, 1150, 1050};
    msgDuty.FixedRows = msgSystem.FixedRows = 2;
    msgDuty.HeaderHeight = 600;
    msgDuty.DataRowHeight = 300;
    msgCost.ColWidth = {3100, 1850};
    msgCost.DataRowHeight = msgCost.HeaderHeight = 350;
    msgAnnualCost.ColWidth = {1700, 1100, 1800};
    msgAnnualCost.DataRowHeight = msgAnnualCost.HeaderHeight = 350;
    msgAnnualCost.MergeEqualCells = true;
    msgAnnualCost.MergeCols = {0, 1};

    lblDemandColor.BackColor = picCapitalColor.BackColor = PureRed;
    lblShortageColor.BackColor = picIncomeColor.BackColor = PureBlue;
    lblYieldColor.BackColor = picMaintenanceColor.BackColor = PureGreen;
    picOperationalColor.BackColor = PureYellow;
    picEnergyColor.BackColor = EnergyInk;
    DesignEnds();
}

} // namespace velorix
