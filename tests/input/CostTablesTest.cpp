// The small tables of the input screen, and the headings of all its tables.
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

// Of each table the first row, and of those with names down their side the first column.
TEST_F(CostTablesTest, TablesHaveTheirHeadings)
{
    const auto Across = [](const Grid& Table) {
        std::string Texts;
        for (int Col = 0; Col < Table.Cols(); ++Col) Texts += Table.Text(0, Col) + "|";
        return Texts;
    };
    const auto Down = [](const Grid& Table) {
        std::string Texts;
        for (int Row = 1; Row < Table.Rows(); ++Row) Texts += Table.Text(Row, 0) + "|";
        return Texts;
    };
    wSystemType = 1;
    NewProjectDefaults(); // after the gravity system's
    for (const std::string Length : {"m", "ft"}) {
        wCurrency = wUnits = Length == "ft" ? 1 : 0;
        FillCostHeadings();
        const std::string Sign = Length == "ft" ? "$" : "R";
        EXPECT_EQ(Across(frmLCC.msgProfile),
                  "Node nr|Elevation|Accumulated length|Pipe diameter|Wall thickness|"
                  "Pipe cost/metre|Secondary loss |Description|");
        EXPECT_EQ(Across(frmLCC.msgDemand), "Year|Demand|");
        EXPECT_EQ(Across(frmLCC.msgPumpDemand), "Year|Demand|");
        EXPECT_EQ(Across(frmLCC.msgLaying), "Description|Cost (" + Sign + "/" + Length + "³)|");
        EXPECT_EQ(frmLCC.msgLaying.Text(10, 1), "Percentage expected");
        EXPECT_EQ(Down(frmLCC.msgLaying),
                  "Laying (including joining)|Excavation|Rock excavation|Bedding import|Bedding trench|"
                  "Blanket import|Blanket trench|Backfilling|Anticipated laying conditions|Description|Rock|"
                  "Bedding import|Blanket import|Required cover (" +
                      Length + ")|Excavation lower than pipe invert (" + Length + ")|");
        EXPECT_EQ(Across(frmLCC.msgOperational),
                  "Staff|Annual package (" + Sign + ")|Percentage of time (%)|");
        EXPECT_EQ(Down(frmLCC.msgOperational),
                  "Manager|Engineer|Technologist|Technician|Foreman|Labourers|Administration|Financial|");
        EXPECT_EQ(Across(frmLCC.msgOtherOperational),
                  "Description of expenses|Annual amount (" + Sign + ")|");
        EXPECT_EQ(Down(frmLCC.msgOtherOperational), "Transport|Fuel|Electricity|Training|Housing|");
    }
}

} // namespace
} // namespace velorix
