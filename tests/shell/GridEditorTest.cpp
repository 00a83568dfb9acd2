// Cells edited from the keyboard, the list over a cell, and what loads and row operations leave behind.
#include "shell/GridEditor.h"

#include "InputTest.h"
#include "base/Text.h"
#include "input/ProfileTable.h"
#include "model/Components.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;

using Place = std::pair<int, int>; // row, col

class GridEditorTest : public InputTest {
protected:
    GridEditorTest() { Fill(); }

    void Fill()
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

    Go(Profile, 1, 1);
    Saved = 1;
    Type(U"7");
    ExpectMarked(true, "a key in the cell that was current when the project was saved");
}

TEST_F(GridEditorTest, KeysEditTheCellAndMoveOn)
{
    struct Case {
        Place From;
        std::u32string Keys;
        std::string Text; // of the cell then
        Place To;
        bool Open; // the editor
    };
    const Case Cases[] = {
        {{1, 1}, U"75.5", "75.5", {1, 1}, true}, // in the cell before Enter
        {{1, 1}, U"75.5⏎", "75.5", {1, 2}, false},
        {{1, 7}, U"⏎", "Node                ", {2, 7}, false},
        {{1, 2}, U"⌫", "10", {1, 2}, true}, // the grid's, and then the editor's
        {{1, 2}, U"⌫⌫", "1", {1, 2}, true},
        {{2, 2}, U"✎←←5", "2500", {2, 2}, true},
        {{2, 2}, U"✎←←5⌫", "200", {2, 2}, true},
        {{2, 2}, U"66⎋", "200", {2, 2}, true},
        {{2, 2}, U"⎋", "200", {2, 2}, false}, // in the grid: nothing
        {{1, 3}, U"°", "°", {1, 3}, true},
        {{1, 3}, U"\x03ч", "301", {1, 3}, false}, // a control key, a letter that no file holds
        // The arrows leave the editor at the ends of its text.
        {{2, 2}, U"9←←", "9", {2, 1}, false},
        {{2, 1}, U"9←←", "9", {1, 7}, false},
        {{1, 1}, U"9←←", "9", {1, 1}, false},
        {{2, 5}, U"9↑", "9", {1, 5}, false},
        {{1, 5}, U"9↑", "9", {1, 5}, false},
        {{1, 6}, U"9→", "9", {1, 7}, false},
        {{1, 5}, U"9↓", "9", {2, 5}, false},
        {{4, 5}, U"9↓", "9", {4, 5}, false},
    };
    for (const Case& Each : Cases) {
        Fill();
        Go(Profile, Each.From.first, Each.From.second);
        Type(Each.Keys);
        SCOPED_TRACE(&Each - Cases); // the place in the table
        EXPECT_EQ(Profile.Text(Each.From.first, Each.From.second), Each.Text);
        EXPECT_EQ(Current(Profile), Each.To);
        EXPECT_EQ(Editor.Visible, Each.Open);
        EXPECT_EQ(Windows.Focused, Each.Open ? static_cast<Control*>(&Editor) : &Profile);
        if (Each.Open) {
            EXPECT_EQ(Editor.Text.Get(), Each.Text);
        }
    }
    Go(frmLCC.msgOperational, 3, 2); // from the last column into the next row, column 1
    Type(U"1→");
    EXPECT_EQ(Current(frmLCC.msgOperational), Place(4, 1));
}

TEST_F(GridEditorTest, APressClosesTheEditorAndEscapeBringsBackTheTextAsEntered)
{
    Go(Profile, 2, 2);
    Type(U"6");
    EXPECT_EQ(Editor.SelStart, 1);
    Editor.Text = "66"; // pasted over
    Profile.MouseDown(1);
    EXPECT_FALSE(Editor.Visible);
    Windows.SetFocus(Profile);
    Type(U"✎");
    EXPECT_EQ(Editor.Text.Get(), "66");
    Type(U"⎋");
    EXPECT_EQ(Editor.Text.Get(), "200"); // not what it opened on
    EXPECT_EQ(Editor.SelStart, 3);
    EXPECT_EQ(Profile.Text(2, 2), "200");
    Type(U"5");
    frmLCC.Visible = false;
    frmLCC.Visible = true; // a dialog has come and gone
    frmLCC.optPumpFixed.Click();
    Windows.SetFocus(Profile);
    Type(U"✎⎋");
    EXPECT_EQ(Profile.Text(2, 2), "200");
}

// Grid and editor filter different columns of the profile, and F2 opens the grid's; a double click any.
TEST_F(GridEditorTest, ColumnsDifferInWhatTheyTakeAndWhatOpensThem)
{
    std::vector<int> TakenByGrid;
    std::vector<int> TakenByEditor;
    std::vector<int> OpenedByF2;
    std::vector<int> OpenedByClick;
    for (int Col = 1; Col <= 7; ++Col) {
        Go(Profile, 1, Col);
        Type(U"✎");
        if (Editor.Visible) OpenedByF2.push_back(Col);
        Profile.MouseDown(1);
        Profile.DblClick();
        if (Editor.Visible) OpenedByClick.push_back(Col);
        Profile.MouseDown(1);
        Windows.SetFocus(Profile);
        Type(U"-");
        if (Profile.Text(1, Col) == "-") TakenByGrid.push_back(Col);
        Profile.MouseDown(1);
        Windows.SetFocus(Profile);
        Type(U"4-");
        if (Profile.Text(1, Col) == "4-") TakenByEditor.push_back(Col);
    }
    EXPECT_THAT(OpenedByF2, ElementsAre(1, 2, 5, 6));
    EXPECT_THAT(OpenedByClick, ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_THAT(TakenByGrid, ElementsAre(3, 4));
    EXPECT_THAT(TakenByEditor, ElementsAre(3, 5, 6));

    Go(Profile, 2, 1);
    Type(U"('");
    EXPECT_EQ(Profile.Text(2, 1), "('"); // the arrow keys' codes pass as characters
    for (Grid* Other : {&frmLCC.msgLaying, &frmLCC.msgOperational, &frmLCC.msgOtherOperational,
                        &frmLCC.msgDemand, &frmLCC.msgPumpDemand})
        for (int Col = 1; Col < Other->Cols(); ++Col) {
            Go(*Other, 1, Col);
            Type(U"x2-"); // the grid drops a letter, the editor a sign
            EXPECT_EQ(Other->Text(1, Col), "2") << Other->ToolTip << ", column " << Col;
        }
    Profile.SetText(1, 3, "9°");
    Go(Profile, 1, 3);
    Type(U"⌫"); // a character of two bytes
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

    Type(U"ч"); // any letter, also one that no cell takes
    EXPECT_EQ(Windows.Focused, &frmLCC.comNode);
    Go(Profile, 2, 7);
    Type(U"x⌫");
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
    frmLCC.comNode.ListIndex = 2; // no longer over its cell
    EXPECT_EQ(Profile.Text(3, 7), ComponentTable[2]);
    EXPECT_EQ(Profile.Text(3, 6), "0");
}

TEST_F(GridEditorTest, EnterOnTheLastRowOfTheProfileAddsOne)
{
    Go(Profile, 4, 7);
    Type(U"⏎");
    EXPECT_EQ(Profile.Rows(), 6);
    EXPECT_EQ(Current(Profile), Place(5, 1));
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(5, 1)));
    EXPECT_EQ(Profile.Text(5, 3), "303");
    EXPECT_EQ(NodeCount, 5);

    Grid& Expenses = frmLCC.msgOtherOperational;
    Go(Expenses, 5, 1);
    Type(U"⏎");
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
    Type(U"12⏎5✎⌫");
    Laying.DblClick();
    EXPECT_FALSE(frmLCC.txtLaying.Visible);
    EXPECT_EQ(Laying.Text(9, 1), "Anticipated laying conditions");
    Type(U"↓5");
    EXPECT_EQ(Laying.Text(10, 1), "Percentage expected");
    Type(U"⏎30");
    EXPECT_EQ(Laying.Text(11, 1), "30");
    EXPECT_EQ(Laying.Text(8, 1), "12");
}

TEST_F(GridEditorTest, TheRightButtonOpensTheRowMenuOfTheProfile)
{
    Profile.MouseDown(1);
    frmLCC.msgDemand.MouseDown(2);
    EXPECT_FALSE(MDIProject.mnuFGridRows.Visible);
    Profile.MouseDown(2);
    EXPECT_TRUE(MDIProject.mnuFGridRows.Visible);
}

TEST_F(GridEditorTest, ALoadIsNoEditAndLeavesNoTrace)
{
    Profile.Select(4, 3);
    frmLCC.msgDemand.Select(25, 1);
    Go(frmLCC.msgOperational, 3, 1);
    Type(U"777");
    Start(0); // while the screen stands, as in a save ahead of the profile view
    EXPECT_EQ(Saved, 1);
    EXPECT_FALSE(frmLCC.txtCellOperational.Visible);
    EXPECT_EQ(frmLCC.msgOperational.Tag, "120000"); // a new project's
    EXPECT_EQ(Profile.Rows(), 3);
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
    EXPECT_THAT(Tinted(frmLCC.msgOperational), ElementsAre(Place(3, 1)));

    Windows.SetFocus(frmLCC.msgOperational);
    Type(U"777");
    Analysed = 1;
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from the results
    EXPECT_EQ(Analysed, 1);
    EXPECT_FALSE(frmLCC.txtCellOperational.Visible);
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
    struct Case {
        const Handler& Command;
        Answer Answered;
        int Rows; // afterwards, with the headings
    };
    // The cursor is on row 1 before and after.
    for (const Case& Each : {Case{frmLCC.sscAdd.Click, Answer::No, 6},
                             Case{MDIProject.mnuFGridExtrRow.Click, Answer::Yes, 5}, // the new row
                             Case{MDIProject.mnuFGridDelRow.Click, Answer::No, 5},
                             Case{MDIProject.mnuFGridDelRow.Click, Answer::Yes, 4},
                             Case{MDIProject.mnuFGridAddRow.Click, Answer::No, 5},
                             Case{MDIProject.mnuFGridInsRow.Click, Answer::No, 6}}) {
        const bool Changes = Each.Rows != Profile.Rows();
        Windows.Answers = {Each.Answered};
        Each.Command();
        EXPECT_EQ(Profile.Rows(), Each.Rows);
        ExpectMarked(Changes, std::to_string(Each.Rows) + " rows");
        EXPECT_EQ(Profile.Tag, Profile.Text(1, 1));
        EXPECT_THAT(Tinted(Profile), ElementsAre(Place(1, 1)));
    }
}

class GridPasteTest : public GridEditorTest {
protected:
    void Paste(Grid& Table, const std::string& Text)
    {
        Windows.Clipboard = Text;
        Table.Paste();
    }

    // The texts of a range of cells, without the blanks around them.
    static std::string Texts(Grid& Table, const CellRange& Range)
    {
        Table.Select(Range.FirstRow, Range.FirstCol);
        Table.SelectTo(Range.LastRow, Range.LastCol);
        return Table.SelectedText();
    }
};

TEST_F(GridPasteTest, TheCellsFromTheCurrentOneOnTakeTheClipboard)
{
    Go(Profile, 2, 5);
    Saved = 1;
    Paste(Profile, "-1.5\t 1E+2 \tAir valve\r\n\t.25\t45° bend"); // as spreadsheets write it
    ExpectMarked(true, "a paste");
    EXPECT_EQ(Profile.Tag, "0");
    EXPECT_EQ(Profile.Text(2, 7), ComponentTable[6]); // with the blanks that a choice stores
    EXPECT_EQ(Texts(Profile, {2, 5, 3, 7}), "-1.5\t1E+2\tAir valve\n\t.25\t45° bend\n");
    Go(Profile, 4, 7);
    Paste(Profile, "Reservoir\n\n\n"); // an empty line finds no room and needs none
    EXPECT_EQ(frmLCC.comNode.ListIndex, 1);

    // What is copied from a table can be pasted into it.
    const std::string All = Texts(Profile, {1, 1, 4, 7});
    Fill();
    Profile.Select(1, 1);
    Paste(Profile, All);
    EXPECT_EQ(Texts(Profile, {1, 1, 4, 7}), All);
    EXPECT_EQ(LastMessage(), "");

    Go(frmLCC.msgLaying, 8, 1);
    Paste(frmLCC.msgLaying, "8\nclosed\nclosed\n11\n"); // the headings stay
    EXPECT_EQ(Texts(frmLCC.msgLaying, {8, 1, 11, 1}),
              "8\nAnticipated laying conditions\nPercentage expected\n11\n");
}

TEST_F(GridPasteTest, WhatDoesNotFitRefusesTheWholePaste)
{
    const std::string Before = Texts(Profile, {1, 1, 4, 7});
    const auto ExpectRefused = [&](Place From, const std::string& Text,
                                   const std::vector<std::string>& Told) {
        Go(Profile, From.first, From.second);
        Saved = 1;
        Windows.Messages.clear();
        Paste(Profile, Text);
        ASSERT_EQ(Windows.Messages.size(), 1U) << Text;
        for (const std::string& Each : Told) EXPECT_THAT(LastMessage(), testing::HasSubstr(Each));
        ExpectMarked(false, Text);
        EXPECT_EQ(Texts(Profile, {1, 1, 4, 7}), Before);
    };
    for (const std::string Text : {"12,75", "1 2", "x", "5x", "NaN", "1E+39", "--1", "0x10", "5\r\r"})
        ExpectRefused({2, 1}, "1\t2\n3\t" + Text,
                      {"\"Accumulated length\"", "row \"3\"", Trim(Text).substr(0, 2)});
    ExpectRefused({2, 3}, std::string(41, '1'), {"\"Pipe diameter\"", "row \"2\"", "1..."});
    for (const std::string Text : {"", "node", "Nodes"})
        ExpectRefused({2, 6}, "1\t" + Text, {"\"Description\"", "row \"2\"", "\"" + Text + "\""});
    ExpectRefused({2, 7}, "Node\tbeyond", {"column 9", "row \"2\"", "\"beyond\""});
    ExpectRefused({3, 1}, "1\n2\n3\n", {"3 rows", "only 2 from row \"3\"", "Add rows", "import wizard"});
    Go(frmLCC.msgOtherOperational, 5, 1);
    Paste(frmLCC.msgOtherOperational, "1\n2");
    EXPECT_THAT(LastMessage(), testing::HasSubstr("only 1 from row \"Housing\" on."));
    EXPECT_THAT(LastMessage(), testing::Not(testing::HasSubstr("wizard")));
    for (const auto& [Row, Heading] : {std::pair(8, "Cost ("), {12, "Percentage expected"}}) {
        Go(frmLCC.msgLaying, Row, 1);
        Paste(frmLCC.msgLaying, "x");
        EXPECT_THAT(LastMessage(), testing::StartsWith(std::string("\"") + Heading));
    }
    Windows.Messages.clear();
    Paste(Profile, ""); // nothing to paste
    EXPECT_TRUE(Windows.Messages.empty());
}

TEST_F(GridPasteTest, DeleteEmptiesTheSelectedNumberCells)
{
    Go(Profile, 3, 7);
    Profile.SelectTo(2, 2);
    Saved = 1;
    Type(U"✂");
    ExpectMarked(true, "emptied cells");
    EXPECT_EQ(Texts(Profile, {2, 1, 3, 7}), "52\t\t\t\t\t\tNode\n53\t\t\t\t\t\tNode\n");
    Go(frmLCC.msgLaying, 8, 1);
    frmLCC.msgLaying.SelectTo(11, 1);
    Type(U"✂");
    EXPECT_EQ(Texts(frmLCC.msgLaying, {8, 1, 11, 1}),
              "\nAnticipated laying conditions\nPercentage expected\n\n");
}

TEST_F(GridPasteTest, UndoBringsTheCellsBackUntilTheTableIsAnother)
{
    const std::string Before = Texts(Profile, {1, 1, 4, 7});
    Go(Profile, 1, 1);
    Paste(Profile, "1\t2\n3\t4");
    const std::string Pasted = Texts(Profile, {1, 1, 4, 7});
    Go(Profile, 3, 3);
    Type(U"12→");
    Go(Profile, 4, 7);
    frmLCC.comNode.ListIndex = 4;
    Type(U"✂"); // no number cell, nothing to take back
    Profile.Undo();
    EXPECT_EQ(frmLCC.comNode.ListIndex, 0);
    Saved = 1;
    Profile.Undo();
    ExpectMarked(true, "a change taken back");
    EXPECT_EQ(Texts(Profile, {1, 1, 4, 7}), Pasted);
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from the results
    Profile.Undo();
    EXPECT_EQ(Texts(Profile, {1, 1, 4, 7}), Before);
    Saved = 1;
    Profile.Undo();
    ExpectMarked(false, "nothing to take back");

    // Each command and each session of the editor is a change of its own.
    Go(Profile, 2, 2);
    Type(U"55⏎");
    Profile.Select(2, 2);
    Type(U"✂");
    for (const char* Each : {"77", "88"}) Paste(Profile, Each);
    Type(U"✎9←←←←");
    EXPECT_EQ(Profile.Text(2, 2), "889");
    Profile.Select(2, 2);
    for (const char* Each : {"88", "77", "", "55", "200"}) {
        Profile.Undo();
        EXPECT_EQ(Profile.Text(2, 2), Each);
    }

    void (*const Changes[])() = {
        [] { ChangeProfileRows(AddProfileRow); }, [] { NewProjectDefaults(); },
        [] { frmLCC.comDiameterUnits.ListIndex = 1 - frmLCC.comDiameterUnits.ListIndex; }};
    for (const auto& Change : Changes) {
        Go(Profile, 1, 1);
        Paste(Profile, "77");
        Change();
        Saved = 1;
        Profile.Undo();
        ExpectMarked(false, "another table");
    }
    Go(frmLCC.msgDemand, 1, 1);
    Paste(frmLCC.msgDemand, "77");
    frmLCC.hscLife.Value = frmLCC.hscLife.Value - 1;
    Saved = 1;
    frmLCC.msgDemand.Undo();
    ExpectMarked(false, "a table of other years");
}

} // namespace
} // namespace velorix
