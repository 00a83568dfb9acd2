// Blocks of cells: pasted, emptied, and brought back.
#include "GridEditorTest.h"

#include "base/Text.h"
#include "model/Components.h"

namespace velorix {
namespace {

using testing::HasSubstr;

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
        for (const std::string& Each : Told) EXPECT_THAT(LastMessage(), HasSubstr(Each));
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
    EXPECT_THAT(LastMessage(), HasSubstr("only 1 from row \"Housing\" on."));
    EXPECT_THAT(LastMessage(), testing::Not(HasSubstr("wizard")));
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
    const auto ExpectNothingToUndo = [](Grid& Table, const char* Since) {
        Saved = 1;
        Table.Undo();
        ExpectMarked(false, Since);
    };
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
    ExpectNothingToUndo(Profile, "all was taken back");

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
        ExpectNothingToUndo(Profile, "another table");
    }
    Go(frmLCC.msgDemand, 1, 1);
    Paste(frmLCC.msgDemand, "77");
    frmLCC.hscLife.Value = frmLCC.hscLife.Value - 1;
    ExpectNothingToUndo(frmLCC.msgDemand, "a table of other years");
}

} // namespace
} // namespace velorix
