// The small tables of the input screen.
#include "input/CostTables.h"
#include "ProjectTest.h"

namespace velorix {
namespace {

class CostTablesTest : public ProjectTest {
protected:
    CostTablesTest() { StartNew(0); }
};

TEST_F(CostTablesTest, DemandIsReadForTheLifeAndClearedBeyond)
{
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

TEST_F(CostTablesTest, WhatATableHasNotIsZero)
{
    wLaying[14] = wExpenses[5] = 3.0;
    frmLCC.msgOtherOperational.SetText(5, 1, "");
    ReadLayingGrid();
    ReadExpensesGrid();
    EXPECT_EQ(wLaying[14], 0.0);
    EXPECT_EQ(wExpenses[5], 0.0);
}

TEST_F(CostTablesTest, HeadingsFollowCurrencyAndUnits)
{
    struct Case {
        std::string Sign, Length;
    };
    const Case Cases[] = {{"R", "m"}, {"$", "ft"}};
    for (const Case& Each : Cases) {
        wCurrency = wUnits = Each.Sign == "$" ? 1 : 0;
        FillCostHeadings();
        EXPECT_EQ(frmLCC.msgLaying.Text(0, 1), "Cost (" + Each.Sign + "/" + Each.Length + "³)");
        EXPECT_EQ(frmLCC.msgLaying.Text(14, 0), "Required cover (" + Each.Length + ")");
        EXPECT_EQ(frmLCC.msgLaying.Text(15, 0), "Excavation lower than pipe invert (" + Each.Length + ")");
        EXPECT_EQ(frmLCC.msgOperational.Text(0, 1), "Annual package (" + Each.Sign + ")");
        EXPECT_EQ(frmLCC.msgOtherOperational.Text(0, 1), "Annual amount (" + Each.Sign + ")");
    }
}

} // namespace
} // namespace velorix
