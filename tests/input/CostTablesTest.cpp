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

// The first column of each table and its first row, in the order of reading.
TEST_F(CostTablesTest, TablesHaveTheirHeadings)
{
    const auto Heads = [](const Grid& Table, bool Down) {
        std::vector<std::string> Texts;
        for (int Place = 0; Place < (Down ? Table.Rows() : Table.Cols()); ++Place)
            Texts.push_back(Down ? Table.Text(Place, 0) : Table.Text(0, Place));
        return Texts;
    };
    using Texts = std::vector<std::string>;
    for (const bool US : {false, true}) {
        wCurrency = wUnits = US ? 1 : 0;
        FillCostHeadings();
        const std::string Sign = US ? "$" : "R";
        const std::string Length = US ? "ft" : "m";
        EXPECT_EQ(Heads(frmLCC.msgProfile, false),
                  (Texts{"Node nr", "Elevation", "Accumulated length", "Pipe diameter", "Wall thickness",
                         "Pipe cost/metre", "Secondary loss ", "Description"}));
        EXPECT_EQ(Heads(frmLCC.msgDemand, false), (Texts{"Year", "Demand"}));
        EXPECT_EQ(Heads(frmLCC.msgLaying, false),
                  (Texts{"Description", "Cost (" + Sign + "/" + Length + "³)"}));
        EXPECT_EQ(frmLCC.msgLaying.Text(10, 1), "Percentage expected");
        EXPECT_EQ(
            Heads(frmLCC.msgLaying, true),
            (Texts{"Description", "Laying (including joining)", "Excavation", "Rock excavation",
                   "Bedding import", "Bedding trench", "Blanket import", "Blanket trench", "Backfilling",
                   "Anticipated laying conditions", "Description", "Rock", "Bedding import", "Blanket import",
                   "Required cover (" + Length + ")", "Excavation lower than pipe invert (" + Length + ")"}));
        EXPECT_EQ(Heads(frmLCC.msgOperational, false),
                  (Texts{"Staff", "Annual package (" + Sign + ")", "Percentage of time (%)"}));
        EXPECT_EQ(Heads(frmLCC.msgOperational, true),
                  (Texts{"Staff", "Manager", "Engineer", "Technologist", "Technician", "Foreman", "Labourers",
                         "Administration", "Financial"}));
        EXPECT_EQ(Heads(frmLCC.msgOtherOperational, false),
                  (Texts{"Description of expenses", "Annual amount (" + Sign + ")"}));
        EXPECT_EQ(
            Heads(frmLCC.msgOtherOperational, true),
            (Texts{"Description of expenses", "Transport", "Fuel", "Electricity", "Training", "Housing"}));
    }
    wSystemType = 1;
    NewProjectDefaults();
    EXPECT_EQ(Heads(frmLCC.msgPumpDemand, false), (Texts{"Year", "Demand"}));
}

} // namespace
} // namespace velorix
