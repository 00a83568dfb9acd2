// What spreadsheets put on the clipboard, from the text to the profile.
#include "tools/ImportAdvice.h"

#include "AnyClipText.h"
#include "base/Failure.h"
#include "input/ProfileTable.h"
#include "input/ProjectTest.h"

#include <gmock/gmock.h>

#include <random>

namespace velorix {
namespace {

class ImportTest : public ProjectTest {
protected:
    ImportTest()
    {
        ResetImport();
        StartNew(0);
    }

    static ParseOutcome Parse(const std::string& Text)
    {
        TakeClipText(Text);
        return ParseClipText();
    }

    static std::string Repeated(const std::string& Text, int Times)
    {
        std::string All;
        while (Times-- > 0) All += Text;
        return All;
    }
};

TEST_F(ImportTest, WhatIsTakenWronglyOrNotAtAllIsToldWithARemedy)
{
    struct Case {
        const char* Text;
        int Rows;
        const char* Advice; // a part of it; empty for none at all
        const char* Cell;   // the last row's first
    };
    // clang-format off
    const Case Cases[] = {
        {"10\t0\r\n-2.5\t 5 \r\n", 2, "", "-2.5"},
        {"10\t0\t6E2\t\t\t1\r\n20\t5\r\n\r\n", 3, "", ""}, // an empty line at the end does no harm
        {"10\t0\r21\t5\r", 2, "lost its first character", "1"},
        {"10\t0\n20\t5\n", 0, "Finish would empty the profile", nullptr},
        {"10\t0\r\n20\t5", 1, "last line was not taken", "10"},
        {"10\t0\r\n20\t5\r\n\t\t", 2, "", "20"},
        {"Elevation (m)\tLength\r\n10\t0\r\n", 2, "Row 1 holds headings", "10"},
        {"Höhe\tks2\r\n10\t0\r\n", 2, "Row 1 holds headings", "10"},
        {"Высота\tL\r\n10,5\t0,1\r\n", 2, "Row 1 holds headings", "10,5"},
        {"ks2\t\r\n10,5\t0,1\r\n", 2, "\"ks2\" is no number", "10,5"},
        {"10,5\t0,1\r\n20\t5\r\n", 2, "Row 1, Elevation: \"10,5\" has a comma", "20"},
        {"\"10\"\t\"0\"\r\n20\t5\r\n", 2, "has quotation marks", "20"},
        {"1\u00A0020\t1\u00A0000\r\n20\t5\r\n", 2, "sign between its digits", "20"},
        {"#N/A\tErr:502\r\n20\t5\r\n", 2, "\"#N/A\" is no number", "20"},
        {"\uFEFF10\t0\r\n20\t5\r\n", 2, "begins with a sign", "20"},
        {"10\t0\r\n\u22121\u202F020.5\t5\r\n", 2, "begins with a sign", "?1?020.5"},
        {"  \r\n\t \r\n", 2, "no filled cells. Go back and copy the rows with numbers. Finish would empty", ""},
        {"10\t0\r\n1\u202F020\t5\r\n", 2, "sign between its digits", "1?020"},
        {"10\t0\r\n1E99\t5\r\n", 2, "is no number", "1E99"},
        {"0\t0\r\n20\t5\r\n30\t9\r\n", 3, "Row 1 has elevation 0 and length 0", "30"},
        {"10\t0\r\n20\t5\r\n\r\n30\t9\r\n", 4, "Row 3 has elevation 0", "30"},
        {"10\t0\r\n0.1234567890123456789012345678901\t5\r\n", 2, "cut to 30", "0.1234567890123456789012345678"}};
    // clang-format on
    for (const Case& Each : Cases) {
        SCOPED_TRACE(Each.Text);
        EXPECT_EQ(Parse(Each.Text), ParseOutcome::Taken);
        EXPECT_EQ(ImportRows, Each.Rows);
        EXPECT_EQ(Each.Cell ? ImportedText(Each.Rows, 1) : "", Each.Cell ? Each.Cell : "");
        const std::string Told = ImportAdvice(ParseOutcome::Taken).Text;
        EXPECT_TRUE(*Each.Advice ? Told.find(Each.Advice) != std::string::npos : Told.empty()) << Told;
    }
}

TEST_F(ImportTest, ARefusedTextKeepsTheCountAndWhatWasReadSoFar)
{
    const std::string Row = "10\t20\t600\t6\t90\t0.5\r\n";
    EXPECT_EQ(Parse(Repeated(Row, 100) + "99"), ParseOutcome::Taken);
    EXPECT_EQ(ImportRows, 100);
    EXPECT_EQ(ImportedText(100, 6), "0.5");
    const std::pair<std::string, ParseOutcome> Refused[] = {
        {"7" + Repeated(Row, 101), ParseOutcome::TooManyRows},
        {"7\t\r\n1\t2\t3\t4\t5\t6\t7\r\n", ParseOutcome::TooManyColumns},
        {"7\r\t8\r\n", ParseOutcome::BrokenLines}};
    for (const auto& [Text, Outcome] : Refused) {
        EXPECT_EQ(Parse(Text), Outcome);
        EXPECT_EQ(ImportRows, 100);
        EXPECT_EQ(ImportedText(1, 1).front(), '7');
        EXPECT_THAT(ImportAdvice(Outcome).Text,
                    testing::EndsWith("what was read of it, in as many rows as an "
                                      "earlier paste had."));
    }
    EXPECT_EQ(ImportedText(100, 1), ""); // blanked by the last of them
}

// Of 500 nodes only elevation and length are cleared.
TEST_F(ImportTest, CommitReplacesTheRowsAndLeavesWhatLiesBehindThem)
{
    for (int Col = 1; Col <= ImportColumnCount; ++Col) ProfileColumn(Col).Fill(7.0);
    wNodeDesc.Fill(3);
    Parse("10\t0\t600\t6.4\t90\t0.5\r\n20.1\t5\r\n30\t9\t500\r\n");
    CommitImport();
    EXPECT_EQ(NodeCount, 3);
    EXPECT_EQ(frmLCC.msgProfile.Rows(), 4);
    EXPECT_EQ(frmLCC.msgProfile.Text(2, 1), "20.1");
    const double Row3[] = {30, 9, 500, 0, 0, 0};
    for (int Col = 1; Col <= ImportColumnCount; ++Col) {
        EXPECT_EQ(ProfileColumn(Col)[3], Row3[Col - 1]);
        EXPECT_EQ(ProfileColumn(Col)[4], Col <= 2 ? 0.0 : 7.0);
    }
    EXPECT_EQ(wNodeDesc[3], 0);
    EXPECT_EQ(wNodeDesc[4], 3);

    Parse("0\t0\r\n20\t5\r\n30\t9\r\n"); // the table's own rule ends it at its first row
    CommitImport();
    EXPECT_EQ(NodeCount, 2);
    Parse("10\t0\r\n20\t5,5\r\n");
    EXPECT_THAT(CommitImport, testing::ThrowsMessage<FatalFailure>(
                                  "Row 2, column \"Accumulated length\": \"5,5\" is not a number"));
}

// A megabyte of each kind, then shuffled pieces from a fixed seed.
TEST_F(ImportTest, AnyTextIsTakenOrRefused)
{
    std::vector<std::string> Pieces = {"\r\n", "1\t2\t3\r\n"};
    for (const char Each : std::string_view("\t\r\n50,.-\" \xC2\xA0\0", 13)) Pieces.emplace_back(1, Each);
    for (const std::string& Each : Pieces) ImportAnyText(Repeated(Each, 1 << 20));
    std::mt19937 Random{7};
    for (int Round = 0; Round < 3000; ++Round) {
        std::string Text;
        for (unsigned Length = Random() % 60; Length > 0; --Length) Text += Pieces[Random() % Pieces.size()];
        ImportAnyText(Text);
    }
}

} // namespace
} // namespace velorix
