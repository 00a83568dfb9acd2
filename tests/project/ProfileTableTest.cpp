// The profile table: its end, its reading, its row operations.
#include "project/ProfileTable.h"
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

    static std::string Cell(int Row, int Col) { return frmLCC.msgProfile.Text(Row, Col); }
};

TEST_F(ProfileTableTest, EndsAtTheFirstZeroOrUnusedEntry)
{
    EXPECT_EQ(NodeCount, 4);
    EXPECT_EQ(Cell(2, 1), "52.5");
    EXPECT_EQ(Cell(4, 7), "Non-return valve    "); // padded to the table's width
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
    ReadProfileGrid();
    EXPECT_EQ(wElevation[1], -12.5);
    EXPECT_EQ(wElevation[2], 0.0);
    EXPECT_EQ(wElevation[3], UnusedNode);
    EXPECT_EQ(wNodeDesc[3], 0);
    EXPECT_EQ(wNodeDesc[4], 4);
    EXPECT_EQ(wAccLength[5], UnusedNode);
    EXPECT_EQ(wWallThickness[5], 0.0);
}

// The copied cells come from the row before the one that was current.
TEST_F(ProfileTableTest, AddCopiesFromBeforeTheRowThatWasCurrent)
{
    frmLCC.msgProfile.Select(4, 2);
    AddProfileRow();
    EXPECT_EQ(NodeCount, 5);
    EXPECT_EQ(Cell(5, 0), "5");
    EXPECT_EQ(Cell(5, 1), "");
    EXPECT_EQ(Cell(5, 3), "303");
    EXPECT_EQ(Cell(5, 6), "0.75");
    EXPECT_EQ(Cell(5, 7), "Node");
    EXPECT_EQ(wDiameter[5], 303.0);
    EXPECT_EQ(frmLCC.msgProfile.Row(), 1);
}

TEST_F(ProfileTableTest, InsertMovesTheRowsDown)
{
    frmLCC.msgProfile.Select(3, 1);
    InsertProfileRow();
    EXPECT_EQ(NodeCount, 5);
    EXPECT_EQ(Cell(3, 1), "");
    EXPECT_EQ(Cell(3, 3), "302");
    EXPECT_EQ(Cell(3, 6), "0");
    EXPECT_EQ(Cell(4, 1), "53.5");
    EXPECT_EQ(Cell(5, 2), "300");

    frmLCC.msgProfile.Select(1, 1);
    InsertProfileRow();
    EXPECT_EQ(Cell(1, 7), "Reservoir");
    EXPECT_EQ(Cell(1, 3), "301"); // from the row below, there being none above
    wSystemType = 1;
    InsertProfileRow();
    EXPECT_EQ(Cell(1, 7), "Pumpstation");
}

TEST_F(ProfileTableTest, DeleteAsksAboutDataAndKeepsTwoRows)
{
    frmLCC.msgProfile.Select(2, 1);
    DeleteProfileRow(); // answered with No
    EXPECT_EQ(NodeCount, 4);
    EXPECT_EQ(Windows.Messages.back().Text, "There is data in row2 ! Do you want to delete the row anyway?");
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix : Delete row!");

    Windows.Answers = {Answer::Yes, Answer::Yes};
    DeleteProfileRow();
    EXPECT_EQ(NodeCount, 3);
    EXPECT_EQ(Cell(2, 1), "53.5");
    EXPECT_EQ(Cell(2, 0), "2");
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
