// Cells edited from the keyboard, the list over a cell, and what loads and row operations leave behind.
#include "GridEditorTest.h"

#include "model/Components.h"

namespace velorix {
namespace {

using testing::ElementsAre;

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
    Go(frmLCC.msgOtherOperational, 5, 1);
    Type(U"⏎"); // on the last row: only the profile gets another
    EXPECT_EQ(Current(frmLCC.msgOtherOperational), Place(5, 1));
    Go(Profile, 4, 7);
    Type(U"⏎");
    EXPECT_THAT(Tinted(Profile), ElementsAre(Place(5, 1)));
    EXPECT_EQ(frmLCC.msgOtherOperational.Rows() + NodeCount, 6 + 5);
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

TEST_F(GridEditorTest, ColumnsDifferInWhatTheyTakeAndWhatOpensThem)
{
    // F2 opens the column's editor, a double click does, the grid takes a sign, the editor takes one.
    const char* const Expected[] = {
        "F2 click ",        "F2 click ", "click grid editor ", "click grid ", "F2 click editor ",
        "F2 click editor ", ""};
    for (int Col = 1; Col <= 7; ++Col) {
        std::string Does;
        const auto Try = [&](const std::string& Name, const auto& Holds) {
            Go(Profile, 1, Col);
            if (Holds()) Does += Name + " ";
            Profile.MouseDown(1);
        };
        const auto Takes = [&](const std::u32string& Keys, const char* Text) {
            Type(Keys);
            return Profile.Text(1, Col) == Text;
        };
        Try("F2", [&] { return Type(U"✎"), Editor.Visible.Get(); });
        Try("click", [&] { return Profile.DblClick(), Editor.Visible.Get(); });
        Try("grid", [&] { return Takes(U"-", "-"); });
        Try("editor", [&] { return Takes(U"4-", "4-"); });
        EXPECT_EQ(Does, Expected[Col - 1]) << Col;
    }

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

    // Nor is one the life that makes the table of the demand shorter and longer.
    Grid& Demand = frmLCC.msgDemand;
    Go(Demand, 30, 1);
    Type(U"8");
    for (const int Life : {10, 60}) {
        frmLCC.hscLife.Value = Life;
        EXPECT_FALSE(frmLCC.txtDemand.Visible);
        EXPECT_EQ(Demand.Tag, Demand.Text(10, 1));
        EXPECT_THAT(Tinted(Demand), ElementsAre(Place(10, 1)));
    }

    Windows.SetFocus(frmLCC.msgOperational);
    Type(U"777");
    Analysed = 1;
    frmLCC.Visible = false;
    frmLCC.Visible = true; // back from the results
    EXPECT_EQ(Analysed, 1);
    EXPECT_FALSE(frmLCC.txtCellOperational.Visible);
}

TEST_F(GridEditorTest, RowOperationsAreEditsWhenTheyChangeTheRows)
{
    Profile.MouseDown(1);
    frmLCC.msgDemand.MouseDown(2);
    EXPECT_FALSE(MDIProject.mnuFGridRows.Visible);
    Profile.MouseDown(2); // the right button opens the menu of them
    EXPECT_TRUE(MDIProject.mnuFGridRows.Visible);

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

} // namespace
} // namespace velorix
