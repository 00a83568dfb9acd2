// Cells, bounds and the current cell of a grid.
#include "platform/Grid.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

TEST(GridTest, ACellOutsideTheGridFails)
{
    Grid Table(3, 2);
    EXPECT_THROW(Table.SetText(3, 0, "x"), SubscriptFailure);
    EXPECT_THROW(Table.SetText(0, 2, "x"), SubscriptFailure);
    EXPECT_THROW(Table.Text(-1, 0), SubscriptFailure);
    EXPECT_THROW(Table.SetRows(-1), SubscriptFailure);
}

TEST(GridTest, OnlyWhatChangesIsTold)
{
    Grid Table(3, 2);
    std::string Heard;
    const auto Note = [&](const std::string& What) {
        Heard += What + std::to_string(Table.Row()) + std::to_string(Table.Col()) + " ";
    };
    Table.LeaveCell = [&] { Note("leave "); };
    Table.EnterCell = [&] { Note("enter "); };
    Table.CellView = [&](int Row, int Col) { Note(Table.Text(Row, Col) + " told at "); };
    for (int Twice = 0; Twice < 2; ++Twice) {
        Table.Select(2, 1);
        EXPECT_THROW(Table.Select(3, 0), SubscriptFailure);
        Table.SetText(1, 0, "5.00");
    }
    EXPECT_EQ(Heard, "leave 00 enter 21 5.00 told at 21 ");
}

TEST(GridTest, TheSelectionReachesFromTheCurrentCellAndIsCopiedRowByRow)
{
    Grid Table(3, 3);
    Table.FixedCols = 1;
    EXPECT_EQ(Table.SelectedText(), ""); // on a heading
    for (int Row = 0; Row < 3; ++Row)
        for (int Col = 0; Col < 3; ++Col)
            Table.SetText(Row, Col, " " + std::to_string(Row) + std::to_string(Col));
    Table.Select(2, 2);
    EXPECT_EQ(Table.SelectedText(), "22\n");
    Table.SelectTo(2, 1);
    EXPECT_EQ(Table.Col(), 2);
    EXPECT_EQ(Table.SelectedText(), "21\t22\n");
    EXPECT_THROW(Table.SelectTo(3, 1), SubscriptFailure);

    // Whole columns have their headings, the whole table those of its rows too.
    Table.Select(2, 1);
    Table.SelectTo(1, 1);
    EXPECT_EQ(Table.SelectedText(), "01\n11\n21\n");
    Table.SelectTo(1, 2);
    EXPECT_EQ(Table.SelectedText(), "00\t01\t02\n10\t11\t12\n20\t21\t22\n");
    Table.Paste = [] {}; // what is copied from here can be pasted here
    EXPECT_EQ(Table.SelectedText(), "11\t12\n21\t22\n");

    Table.History.emplace_back();
    Table.SetRows(2);
    EXPECT_EQ(Table.SelectedText(), "11\n");
    EXPECT_TRUE(Table.History.empty());
}

TEST(GridTest, RowsThatStayKeepTheirCellsAndTheDesignComesBack)
{
    Grid Table(3, 2);
    Table.SetText(1, 0, "Year");
    Table.SetText(2, 0, "last");
    Table.ColWidth[0] = 900;
    Table.NoteDesign();
    const auto Shape = [&] {
        return std::tuple(Table.Rows(), Table.Row(), Table.Col(), Table.Text(2, 0), Table.ColWidth,
                          Table.MergeEqualCells, Table.HeadingRows, Table.HeaderHeight, Table.DataRowHeight,
                          Table.FixedRows, Table.FixedCols);
    };
    const auto Design = Shape();

    Table.Select(2, 1);
    Table.SetRows(2);
    EXPECT_EQ(Table.Row(), 1); // kept inside
    Table.SetRows(500);
    EXPECT_EQ(Table.Text(1, 0) + Table.Text(2, 0) + Table.Text(499, 1), "Year");

    Table.ColWidth[0] = 100;
    Table.MergeEqualCells = true;
    Table.HeadingRows = {1};
    Table.HeaderHeight = Table.DataRowHeight = Table.FixedRows = Table.FixedCols = 2;
    Table.EnterCell = [] { ADD_FAILURE() << "an event"; };
    int Told = 0;
    Table.ShapeView = [&] { ++Told; };
    Table.BackToDesign();
    EXPECT_EQ(Told, 1);
    EXPECT_TRUE(Shape() == Design);
}

} // namespace
} // namespace velorix
