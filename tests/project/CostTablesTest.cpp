// The small tables of the input screen.
#include "project/CostTables.h"
#include "ProjectTest.h"

namespace velorix {
namespace {

using CostTablesTest = ProjectTest;

TEST_F(CostTablesTest, DemandIsReadForTheLifeAndClearedBeyond)
{
    StartNew(0);
    wLife = 3;
    wDemand[2] = 4.5;
    wDemand[4] = 9.0;
    FillDemandGrid(frmLCC.msgDemand);
    EXPECT_EQ(frmLCC.msgDemand.Rows(), 4);
    frmLCC.msgDemand.SetText(3, 1, "7,5"); // the scan ends at the comma
    wLife = 5;                             // rows that the grid hasn't got yet count as 0
    ReadDemandGrid();
    EXPECT_EQ(wDemand[2], 4.5);
    EXPECT_EQ(wDemand[3], 7.0);
    EXPECT_EQ(wDemand[4], 0.0);
}

TEST_F(CostTablesTest, LayingConditionsStandBelowTheRates)
{
    StartNew(0);
    for (int Entry = 1; Entry <= 14; ++Entry) wLaying[Entry] = Entry + 0.5;
    FillLayingGrid();
    EXPECT_EQ(frmLCC.msgLaying.Text(8, 1), "8.5");
    EXPECT_EQ(frmLCC.msgLaying.Text(11, 1), "9.5");
    EXPECT_EQ(frmLCC.msgLaying.Text(15, 1), "13.5");
    frmLCC.msgLaying.SetText(12, 1, "40");
    ReadLayingGrid();
    EXPECT_EQ(wLaying[10], 40.0);
    EXPECT_EQ(wLaying[13], 13.5);
    EXPECT_EQ(wLaying[14], 0.0);
}

TEST_F(CostTablesTest, HeadingsFollowCurrencyAndUnits)
{
    StartNew(0);
    wCurrency = 1;
    wUnits = 1;
    FillCostHeadings();
    EXPECT_EQ(frmLCC.msgLaying.Text(0, 1), "Cost ($/ft³)");
    EXPECT_EQ(frmLCC.msgLaying.Text(14, 0), "Required cover (ft)");
    EXPECT_EQ(frmLCC.msgOperational.Text(0, 1), "Annual package ($)");
}

TEST_F(CostTablesTest, StaffAndExpensesComeBackAsTyped)
{
    StartNew(0);
    EXPECT_EQ(frmLCC.msgOperational.Text(8, 1), "130000");
    frmLCC.msgOperational.SetText(8, 2, "12.5");
    frmLCC.msgOtherOperational.SetText(5, 1, "");
    frmLCC.msgOtherOperational.SetText(1, 1, "15000");
    wExpenses[5] = 3.0;
    ReadStaffGrid();
    ReadExpensesGrid();
    EXPECT_EQ(wStaffPackage[1], 300000.0);
    EXPECT_EQ(wStaffTime[8], 12.5);
    EXPECT_EQ(wExpenses[1], 15000.0);
    EXPECT_EQ(wExpenses[5], 0.0);
}

} // namespace
} // namespace velorix
