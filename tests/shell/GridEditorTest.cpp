// Cells edited from the keyboard, the list over a cell, and what loads and row operations leave behind.
#include "shell/GridEditor.h"

#include "InputTest.h"
#include "project/ProfileTable.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;

using Place = std::pair<int, int>; // row, col

class GridEditorTest : public InputTest {
protected:
    GridEditorTest()
    {
        for (int Row = 1; Row <= 4; ++Row) {
            wElevation[Row] = 50.0 + Row;
            wAccLength[Row] = 100.0 * Row;
            wDiameter[Row] = 300.0 + Row;
        }
        FillProfileGrid();
        Saved = 1;
    }

    static Place Current(const Grid& Table) { return {Table.Row(), Table.Col()}; }

    static std::vector<Place> Tinted(const Grid& Table)
    {
        std::vector<Place> Cells;
        for (int Row = 0; Row < Table.Rows(); ++Row)
            for (int Col = 0; Col < Table.Cols(); ++Col)
                if (Table.Cell(Row, Col).BackColor == CurrentCellColor) Cells.emplace_back(Row, Col);
        return Cells;
    }

    Grid& Profile = frmLCC.msgProfile;
    TextBox& Editor = frmLCC.txtCell;
};

TEST_F(GridEditorTest, TheCursorTakesItsTintAlongAndMarksTheProject)
{
    Profile.Select(3, 2);
    ExpectMarked(true, "a move of the cursor");
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(3, 2)));
    EXPECT_EQ(Profile.Tag, "300");
    Profile.Select(0, 2);
    Profile.Select(1, 1);
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
    EXPECT_EQ(Profile.Cell(3, 2).BackColor, WindowColor);
    EXPECT_EQ(Profile.Cell(0, 2).BackColor, ButtonColor);
}

TEST_F(GridEditorTest, TypingReplacesTheCellAndEnterGoesOn)
{
    Go(Profile, 1, 1);
    Type(U"7");
    EXPECT_EQ(Profile.Text(1, 1), "7");
    EXPECT_EQ(Windows.Focused, &Editor);
    EXPECT_TRUE(Editor.Visible);
    EXPECT_EQ(Editor.SelStart, 1);
    ExpectMarked(true, "a key in the cell that was current when the project was saved");
    Type(U"5.5");
    EXPECT_EQ(Profile.Text(1, 1), "75.5"); // before Enter
    Press(Keys::Enter);
    EXPECT_EQ(Profile.Text(1, 1), "75.5");
    EXPECT_EQ(Current(Profile), Place(1, 2));
    EXPECT_EQ(Windows.Focused, &Profile);
    EXPECT_FALSE(Editor.Visible);

    Press(Keys::Backspace);
    EXPECT_EQ(Profile.Text(1, 2), "10");
    EXPECT_EQ(Editor.Text.Get(), "10");
    Press(Keys::Backspace);
    EXPECT_EQ(Profile.Text(1, 2), "1");
}

TEST_F(GridEditorTest, TheCellShowsWhatIsTypedInTheMiddle)
{
    Go(Profile, 2, 2);
    Press(Keys::F2);
    EXPECT_EQ(Editor.Text.Get(), "200");
    for (int Step = 0; Step < 2; ++Step) Press(Keys::Left);
    Type(U"5");
    EXPECT_EQ(Profile.Text(2, 2), "2500");
    Press(Keys::Backspace);
    EXPECT_EQ(Profile.Text(2, 2), "200");
    Editor.Text = "8"; // pasted over
    Profile.MouseDown(1);
    EXPECT_FALSE(Editor.Visible);
    EXPECT_EQ(Profile.Text(2, 2), "8");
}

TEST_F(GridEditorTest, EscapeBringsBackTheTextAsEntered)
{
    Go(Profile, 2, 2);
    Type(U"66");
    Profile.MouseDown(1);
    Windows.SetFocus(Profile);
    Press(Keys::F2);
    EXPECT_EQ(Editor.Text.Get(), "66");
    Press(Keys::Escape);
    EXPECT_EQ(Editor.Text.Get(), "200"); // not what it opened on
    EXPECT_EQ(Editor.SelStart, 3);
    EXPECT_EQ(Profile.Text(2, 2), "200");
    EXPECT_TRUE(Editor.Visible);
    Windows.SetFocus(Profile);
    Press(Keys::Escape); // in the grid: nothing
    EXPECT_EQ(Profile.Text(2, 2), "200");
}

TEST_F(GridEditorTest, ArrowsLeaveTheEditorAtTheEndsOfItsText)
{
    struct Case {
        Place From;
        int Key;
        Place To;
    };
    for (const Case& Each : {Case{{2, 2}, Keys::Left, {2, 1}}, Case{{2, 1}, Keys::Left, {1, 7}},
                             Case{{1, 1}, Keys::Left, {1, 1}}, Case{{2, 5}, Keys::Up, {1, 5}},
                             Case{{1, 5}, Keys::Up, {1, 5}}, Case{{1, 6}, Keys::Right, {1, 7}},
                             Case{{1, 5}, Keys::Down, {2, 5}}, Case{{4, 5}, Keys::Down, {4, 5}}}) {
        Go(Profile, Each.From.first, Each.From.second);
        Type(U"9");
        if (Each.Key == Keys::Left) Press(Keys::Left); // to the start of the text
        EXPECT_TRUE(Editor.Visible);
        Press(Each.Key);
        EXPECT_EQ(Current(Profile), Each.To) << Each.From.first << "," << Each.From.second;
        EXPECT_EQ(Profile.Text(Each.From.first, Each.From.second), "9");
        EXPECT_FALSE(Editor.Visible);
        EXPECT_EQ(Windows.Focused, &Profile);
    }

    Go(frmLCC.msgOperational, 3, 2); // from the last column into the next row, column 1
    Type(U"1");
    Press(Keys::Right);
    EXPECT_EQ(Current(frmLCC.msgOperational), Place(4, 1));
}

// Grid and editor filter different columns of the profile.
TEST_F(GridEditorTest, GridAndEditorEachHaveTheirFilter)
{
    std::vector<int> TakenByGrid;
    std::vector<int> TakenByEditor;
    for (int Col = 1; Col <= 6; ++Col) {
        Go(Profile, 1, Col);
        Profile.SetText(1, Col, "4");
        Type(U"-");
        if (Profile.Text(1, Col) == "-") TakenByGrid.push_back(Col);
        Profile.MouseDown(1);
        Windows.SetFocus(Profile);
        Type(U"4");
        Type(U"-");
        if (Profile.Text(1, Col) == "4-") TakenByEditor.push_back(Col);
    }
    EXPECT_THAT(TakenByGrid, ElementsAre(3, 4));
    EXPECT_THAT(TakenByEditor, ElementsAre(3, 5, 6));

    Go(Profile, 2, 1);
    Type(U"('");
    EXPECT_EQ(Profile.Text(2, 1), "('"); // the arrow keys' codes pass as characters
    Go(frmLCC.msgDemand, 1, 1);
    Type(U"x2-");
    EXPECT_EQ(frmLCC.msgDemand.Text(1, 1), "2");
}

TEST_F(GridEditorTest, OnlyAFilteredColumnOpensAtF2)
{
    std::vector<int> Opened;
    for (int Col = 1; Col <= 7; ++Col) {
        Go(Profile, 1, Col);
        Press(Keys::F2);
        if (Editor.Visible) Opened.push_back(Col);
    }
    EXPECT_THAT(Opened, ElementsAre(1, 2, 5, 6));
}

TEST_F(GridEditorTest, ACharacterOfSeveralBytesIsOne)
{
    Go(Profile, 1, 3);
    Type(U"°");
    EXPECT_EQ(Profile.Text(1, 3), "°");
    EXPECT_EQ(Editor.SelStart, 1);
    Profile.SetText(1, 3, "9°");
    Windows.SetFocus(Profile);
    Press(Keys::Backspace);
    EXPECT_EQ(Profile.Text(1, 3), "9");
    Windows.SetFocus(Profile);
    Type(U"\x03"); // a control key
    EXPECT_EQ(Profile.Text(1, 3), "9");
}

TEST_F(GridEditorTest, TheComponentIsChosenFromTheList)
{
    Profile.Select(2, 6);
    EXPECT_FALSE(frmLCC.comNode.Visible);
    Go(Profile, 2, 7);
    EXPECT_TRUE(frmLCC.comNode.Visible);
    EXPECT_EQ(frmLCC.comNode.List.Get().size(), 10U);
    EXPECT_EQ(frmLCC.comNode.ListIndex, 0); // a new project's "Node"
    Saved = 1;

    Type(U"x");
    Press(Keys::Backspace);
    EXPECT_EQ(Windows.Focused, &frmLCC.comNode);
    EXPECT_FALSE(Editor.Visible);
    ExpectMarked(false, "opening the list");
    frmLCC.comNode.ListIndex = 6;
    EXPECT_EQ(Profile.Text(2, 7), "90° bend            ");
    ExpectMarked(true, "a choice");

    Profile.SetText(3, 7, "Node"); // unpadded, as a new row has it
    Profile.Select(3, 7);
    EXPECT_EQ(frmLCC.comNode.ListIndex, -1);
    EXPECT_EQ(Profile.Text(3, 7), "Node");
    frmLCC.comNode.ListIndex = 1;
    Profile.Select(3, 6);
    EXPECT_FALSE(frmLCC.comNode.Visible);
    frmLCC.comNode.ListIndex = 2;
    EXPECT_EQ(Profile.Text(3, 7), ComponentTable[2]);
    EXPECT_EQ(Profile.Text(3, 6), "0");
    ReadProfileGrid();
    EXPECT_EQ(wNodeDesc[2], 6);
    EXPECT_EQ(wNodeDesc[3], 1);
}

TEST_F(GridEditorTest, EnterOnTheLastRowOfTheProfileAddsOne)
{
    Go(Profile, 1, 7);
    Press(Keys::Enter);
    EXPECT_EQ(Current(Profile), Place(2, 7));
    EXPECT_EQ(Profile.Rows(), 5);
    Go(Profile, 4, 7);
    Press(Keys::Enter);
    EXPECT_EQ(Profile.Rows(), 6);
    EXPECT_EQ(Current(Profile), Place(5, 1));
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(5, 1)));
    EXPECT_EQ(Profile.Text(5, 3), "303");
    EXPECT_EQ(NodeCount, 5);

    Grid& Expenses = frmLCC.msgOtherOperational;
    Go(Expenses, 5, 1);
    Press(Keys::Enter);
    EXPECT_EQ(Current(Expenses), Place(5, 1));
    EXPECT_EQ(Expenses.Rows(), 6);
}

TEST_F(GridEditorTest, HeadingsInsideTheLayingTableAreClosed)
{
    Grid& Laying = frmLCC.msgLaying;
    Windows.SetFocus(Laying);
    Type(U"99"); // a table that nobody has been in yet stands on its first cell
    EXPECT_EQ(Laying.Text(1, 1), "99");
    Go(Laying, 8, 1);
    Type(U"12");
    Press(Keys::Enter);
    EXPECT_EQ(Current(Laying), Place(9, 1));
    Type(U"5");
    Press(Keys::F2);
    Press(Keys::Backspace);
    EXPECT_FALSE(frmLCC.txtLaying.Visible);
    EXPECT_EQ(Laying.Text(9, 1), "Anticipated laying conditions");
    Press(Keys::Down);
    Type(U"5");
    EXPECT_EQ(Laying.Text(10, 1), "Percentage expected");
    Press(Keys::Enter);
    Type(U"30");
    EXPECT_EQ(Laying.Text(11, 1), "30");
    EXPECT_EQ(Laying.Text(8, 1), "12");
}

TEST_F(GridEditorTest, TheRightButtonOpensTheRowMenuOfTheProfile)
{
    Go(Profile, 1, 1);
    Type(U"5");
    Profile.MouseDown(1);
    EXPECT_FALSE(MDIProject.mnuFGridRows.Visible);
    Profile.MouseDown(2);
    EXPECT_TRUE(MDIProject.mnuFGridRows.Visible);
    MDIProject.mnuFGridRows.Visible = false;
    frmLCC.msgDemand.MouseDown(2);
    EXPECT_FALSE(MDIProject.mnuFGridRows.Visible);
}

TEST_F(GridEditorTest, ALoadIsNoEditAndLeavesNoTrace)
{
    Profile.Select(4, 3);
    frmLCC.msgDemand.Select(25, 1);
    Go(frmLCC.msgOperational, 3, 1);
    Type(U"777");
    frmLCC.Visible = false; // as every command does that loads
    Start(0);
    EXPECT_EQ(Saved, 1);
    EXPECT_FALSE(frmLCC.txtCellOperational.Visible);
    EXPECT_EQ(frmLCC.msgOperational.Tag, frmLCC.msgOperational.Text(3, 1));
    EXPECT_NE(frmLCC.msgOperational.Tag, "777");
    EXPECT_EQ(Profile.Rows(), 3);
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
    EXPECT_THAT(Tinted(frmLCC.msgOperational), ElementsAre(Place(3, 1)));

    frmResults.LoadHidden();
    Analysed = 1;
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from the results
    EXPECT_EQ(Analysed, 1);
    Go(frmLCC.msgOperational, 3, 1); // the cell that was current already
    Type(U"7");
    EXPECT_EQ(Analysed, 0);
}

TEST_F(GridEditorTest, ALongerAndAShorterDemandTableHaveOneCurrentCell)
{
    Grid& Demand = frmLCC.msgDemand;
    Go(Demand, 30, 1);
    Type(U"8");
    frmLCC.hscLife.Value = 10;
    EXPECT_EQ(Current(Demand), Place(10, 1));
    EXPECT_FALSE(frmLCC.txtDemand.Visible);
    EXPECT_EQ(Demand.Tag, Demand.Text(10, 1));
    EXPECT_THAT(Tinted(Demand), ElementsAre(Place(10, 1)));
    frmLCC.hscLife.Value = 60;
    EXPECT_THAT(Tinted(Demand), ElementsAre(Place(10, 1)));
}

TEST_F(GridEditorTest, RowOperationsAreEditsWhenTheyChangeTheRows)
{
    frmLCC.sscAdd.Click(); // the cursor is on row 1 before and after
    ExpectMarked(true, "an insertion");
    EXPECT_EQ(Profile.Rows(), 6);
    EXPECT_EQ(Profile.Tag, "");
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
    MDIProject.mnuFGridExtrRow.Click(); // answered with No
    MDIProject.mnuFGridDelRow.Click();
    ExpectMarked(false, "a refused deletion");
    Windows.Answers = {Answer::Yes, Answer::Yes};
    MDIProject.mnuFGridExtrRow.Click();
    ExpectMarked(true, "the deletion of the current row");
    EXPECT_EQ(Profile.Tag, "51");
    MDIProject.mnuFGridDelRow.Click();
    ExpectMarked(true, "the deletion of the last row");
    MDIProject.mnuFGridAddRow.Click();
    ExpectMarked(true, "a row at the end");
    MDIProject.mnuFGridInsRow.Click();
    ExpectMarked(true, "an insertion from the menu");
    EXPECT_EQ(Profile.Rows(), 6);
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
}

} // namespace
} // namespace velorix
