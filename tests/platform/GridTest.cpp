// Cells, bounds and the current cell of a grid.
#include "platform/Grid.h"

#include "base/Failure.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridTest : public testing::Test {
protected:
    GridTest()
    {
        Table.LeaveCell = [this] { Heard.push_back("leave " + Place()); };
        Table.EnterCell = [this] { Heard.push_back("enter " + Place()); };
        Table.CellView = [this](int Row, int Col) {
            Heard.push_back("cell " + std::to_string(Row) + "," + std::to_string(Col) + " " +
                            Table.Text(Row, Col));
        };
    }

    std::string Place() const { return std::to_string(Table.Row()) + "," + std::to_string(Table.Col()); }

    Grid Table{3, 2};
    std::vector<std::string> Heard;
};

TEST_F(GridTest, ACellOutsideTheGridFails)
{
    Table.SetText(2, 1, "last");
    EXPECT_EQ(Table.Text(2, 1), "last");
    EXPECT_THROW(Table.SetText(3, 0, "x"), SubscriptFailure);
    EXPECT_THROW(Table.SetText(0, 2, "x"), SubscriptFailure);
    EXPECT_THROW(Table.Text(-1, 0), SubscriptFailure);
    EXPECT_THROW(Table.SetBold(0, -1, true), SubscriptFailure);
    EXPECT_THROW(Table.SetRows(-1), SubscriptFailure);
}

TEST_F(GridTest, TheOldCellIsLeftBeforeTheNewOneIsEntered)
{
    Table.Select(2, 1);
    Table.Select(2, 1);
    EXPECT_THAT(Heard, ElementsAre("leave 0,0", "enter 2,1"));
}

TEST_F(GridTest, ARefusedSelectionLeavesTheCurrentCellAlone)
{
    EXPECT_THROW(Table.Select(3, 0), SubscriptFailure);
    EXPECT_THROW(Table.Select(0, 2), SubscriptFailure);
    EXPECT_EQ(Place(), "0,0");
    EXPECT_THAT(Heard, IsEmpty());
}

TEST_F(GridTest, TheViewHearsOfACellThatChangedAndOnlyThen)
{
    Table.SetText(1, 1, "5.00");
    Table.SetText(1, 1, "5.00");
    EXPECT_THAT(Heard, ElementsAre("cell 1,1 5.00"));
}

TEST_F(GridTest, RowsThatStayKeepTheirCells)
{
    Table.SetText(1, 0, "kept");
    Table.SetText(2, 0, "dropped");
    Table.Select(2, 1);
    Table.SetRows(2);
    EXPECT_EQ(Place(), "1,1"); // kept inside
    EXPECT_THROW(Table.Text(2, 0), SubscriptFailure);
    Table.SetRows(500);
    EXPECT_EQ(Table.Text(1, 0), "kept");
    EXPECT_EQ(Table.Text(2, 0), "");
    EXPECT_EQ(Table.Text(499, 1), "");
}

TEST_F(GridTest, TheDesignComesBackWithHeadingsAndColumns)
{
    Table.SetText(0, 0, "Year");
    Table.ColWidth[0] = 900;
    Table.NoteDesign();

    Table.SetRows(10);
    Table.SetText(0, 0, "Node");
    Table.SetText(1, 1, "7");
    Table.ColWidth[0] = 100;
    Table.MergeEqualCells = true;
    Table.Select(9, 1);
    Heard.clear();
    Table.BackToDesign();

    EXPECT_EQ(Table.Rows(), 3);
    EXPECT_EQ(Table.Text(0, 0), "Year");
    EXPECT_EQ(Table.Text(1, 1), "");
    EXPECT_EQ(Table.ColWidth[0], 900);
    EXPECT_FALSE(Table.MergeEqualCells);
    EXPECT_EQ(Place(), "0,0");
    EXPECT_THAT(Heard, IsEmpty());
}

} // namespace
} // namespace velorix
