// The small tables of the input screen, and the lists of its unit selectors.
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

TEST_F(CostTablesTest, EntriesStandInTheirRowsUnderCurrencyAndUnits)
{
    for (int Entry = 1; Entry <= 14; ++Entry) wLaying[Entry] = Entry + 0.5;
    FillLayingGrid();
    EXPECT_EQ(frmLCC.msgLaying.Text(8, 1), "8.5");
    EXPECT_EQ(frmLCC.msgLaying.Text(11, 1), "9.5"); // the conditions, below a heading
    EXPECT_EQ(frmLCC.msgLaying.Text(15, 1), "13.5");
    ReadLayingGrid();
    EXPECT_EQ(wLaying[14], 0.0);
    EXPECT_EQ(frmLCC.msgOperational.Text(8, 1), "130000");
    frmLCC.msgOtherOperational.SetText(5, 1, "");
    wExpenses[5] = 3.0;
    ReadExpensesGrid();
    EXPECT_EQ(wExpenses[5], 0.0);

    wCurrency = wUnits = 1;
    FillCostHeadings();
    EXPECT_EQ(frmLCC.msgLaying.Text(0, 1), "Cost ($/ft³)");
    EXPECT_EQ(frmLCC.msgLaying.Text(14, 0), "Required cover (ft)");
    EXPECT_EQ(frmLCC.msgOperational.Text(0, 1), "Annual package ($)");
}

// The place of an entry is what files hold.
TEST_F(CostTablesTest, UnitsHaveTheirPlaces)
{
    EXPECT_EQ(FlowUnitList[3], "l/s");
    EXPECT_EQ(FlowUnitList[4], "ft³/s");
    EXPECT_EQ(FlowUnitList[9], "gal/s (EUR)");
    EXPECT_EQ(TariffUnitList[1], "/Ml");
    std::vector<std::string> Operating = FlowUnitList; // but for the units by the day
    for (const int Daily : {12, 8, 0}) Operating.erase(Operating.begin() + Daily);
    EXPECT_EQ(OperatingFlowUnitList, Operating);
}

} // namespace
} // namespace velorix
