// The profile table: its end, its reading, its row operations.
#include "input/ProfileTable.h"
#include "ProjectTest.h"

namespace velorix {
namespace {

class ProfileTableTest : public ProjectTest {
protected:
    ProfileTableTest()
    {
        StartNew(0);
        SetNodes(4);
        FillProfileGrid();
    }

    // Nodes 100 m apart, each with numbers of its own.
    static void SetNodes(int Count)
    {
        for (int Row = 1; Row <= Count; ++Row) {
            wElevation[Row] = 50.5 + Row;
            wAccLength[Row] = 100.0 * (Row - 1);
            wDiameter[Row] = 300.0 + Row;
            wPipeCost[Row] = 10.0 * Row;
            wSecondaryLoss[Row] = 0.25 * Row;
            wNodeDesc[Row] = static_cast<std::int16_t>(Row);
        }
    }

    static std::string RowText(int Row)
    {
        std::string Text;
        for (int Col = 0; Col < 8; ++Col) Text += (Col > 0 ? "|" : "") + frmLCC.msgProfile.Text(Row, Col);
        return Text;
    }
};

TEST_F(ProfileTableTest, EndsAtTheFirstZeroOrUnusedEntry)
{
    EXPECT_EQ(NodeCount, 4);
    EXPECT_EQ(RowText(4), "4|54.5|300|304|0|40|1|Non-return valve    "); // padded to the table's width
    wElevation[3] = wAccLength[3] = 0.0;
    FillProfileGrid();
    EXPECT_EQ(NodeCount, 2);
    wElevation[1] = wAccLength[1] = 0.0; // a start at chainage 0 and level 0 ends the table
    FillProfileGrid();
    EXPECT_EQ(NodeCount, 2);
}

TEST_F(ProfileTableTest, FullTableLosesItsLastNode)
{
    SetNodes(500);
    FillProfileGrid();
    EXPECT_EQ(NodeCount, 499);
    frmLCC.msgProfile.SetRows(503);
    frmLCC.msgProfile.SetText(500, 1, "7");
    frmLCC.msgProfile.SetText(501, 1, "8");
    ReadProfileGrid();
    EXPECT_EQ(wElevation[500], 7.0);
    EXPECT_EQ(NodeCount, 502);
}

TEST_F(ProfileTableTest, ReadTakesLeadingDigitsAndPaddedNames)
{
    frmLCC.msgProfile.SetText(1, 1, "-12.5 m");
    frmLCC.msgProfile.SetText(2, 1, "");
    frmLCC.msgProfile.SetText(3, 1, "9e99"); // too large to be stored: the cell counts as unreadable
    frmLCC.msgProfile.SetText(3, 7, "Node");
    wWallThickness[5] = 6.0;
    ReadProfileGrid();
    EXPECT_EQ(wElevation[1], -12.5);
    EXPECT_EQ(wElevation[2], 0.0);
    EXPECT_EQ(wElevation[3], UnusedNode);
    EXPECT_EQ(wNodeDesc[3], 0);
    EXPECT_EQ(wNodeDesc[4], 4);
    EXPECT_EQ(wAccLength[5], UnusedNode);
    EXPECT_EQ(wWallThickness[5], 0.0);
}

// An added row copies from the row before the one that was current, an inserted one from its neighbour.
TEST_F(ProfileTableTest, NewRowsTakeOverThePipe)
{
    frmLCC.msgProfile.Select(4, 2);
    AddProfileRow();
    EXPECT_EQ(NodeCount, 5);
    EXPECT_EQ(RowText(5), "5|||303|0|30|0.75|Node");
    EXPECT_EQ(wDiameter[5], 303.0);
    EXPECT_EQ(frmLCC.msgProfile.Row(), 1);

    frmLCC.msgProfile.Select(3, 1);
    InsertProfileRow();
    EXPECT_EQ(NodeCount, 6);
    EXPECT_EQ(RowText(3), "3|||302|0|20|0|Node");
    EXPECT_EQ(RowText(4), "4|53.5|200|303|0|30|0.75|Isolating valve     ");
    frmLCC.msgProfile.Select(1, 1);
    InsertProfileRow();
    EXPECT_EQ(RowText(1), "1|||301|0|10|0|Reservoir");
    wSystemType = 1;
    InsertProfileRow();
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 7), "Pumpstation");
}

TEST_F(ProfileTableTest, DeleteAsksAboutDataAndKeepsTwoRows)
{
    frmLCC.msgProfile.Select(2, 1);
    DeleteProfileRow(); // answered with No
    EXPECT_EQ(NodeCount, 4);
    EXPECT_EQ(LastMessage(), "There is data in row2 ! Do you want to delete the row anyway?");
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix : Delete row!");

    Windows.Answers = {Answer::Yes, Answer::Yes};
    DeleteProfileRow();
    EXPECT_EQ(NodeCount, 3);
    EXPECT_EQ(RowText(2), "2|53.5|200|303|0|30|0.75|Isolating valve     ");
    frmLCC.msgProfile.Select(3, 1);
    DeleteLastProfileRow();
    EXPECT_EQ(NodeCount, 2);
    DeleteLastProfileRow();
    DeleteProfileRow();
    EXPECT_EQ(NodeCount, 2);
    EXPECT_EQ(Windows.Messages.size(), 3U);
}

} // namespace
} // namespace velorix
