// Reports printed from the command line, read back from their PDF files by another program: how many pages,
// what stands where, and what is told in place of a file.
#include "BatchTest.h"
#include "platform/TextMetrics.h"

#include <cmath>
#include <gmock/gmock.h>
#include <regex>
#include <tuple>

namespace velorix {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr double TwipsPerPoint = 20;

// In points from the top left corner of the page.
struct Word {
    double Left, Top, Right, Bottom;
    std::string Text;
};

void PrintTo(const Word& Shown, std::ostream* Out)
{
    *Out << Shown.Text << " at " << Shown.Left;
}

struct Page {
    double Width, Height;
    std::vector<Word> Words;

    std::string Text() const
    {
        std::string All;
        for (const Word& Each : Words) All += Each.Text + " ";
        return All;
    }
};

// Places of the words and the section that begins on a page, by its number from 1.
struct Pdf {
    std::vector<Page> Pages;
    std::vector<std::pair<std::string, int>> Bookmarks;
    std::string Facts;
};

class ReportTest : public BatchTest {
protected:
    std::string OutputOf(const std::string& ShellLine) const
    {
        const std::string In = "cd '" + Folder.string() + "' && ";
        EXPECT_EQ(std::system((In + ShellLine + " >read.txt").c_str()), 0) << ShellLine;
        return ReadFile(Folder / "read.txt");
    }

    Pdf ReadPdf(const std::string& Name) const
    {
        Pdf Result;
        const std::string Boxes = OutputOf("pdftotext -bbox " + Name + " -");
        const std::regex Tag(
            R"re(<page width="(.*?)" height="(.*?)">|<word xMin="(.*?)" yMin="(.*?)" xMax="(.*?)" yMax="(.*?)">(.*?)</word>)re");
        for (std::sregex_iterator Each(Boxes.begin(), Boxes.end(), Tag), End; Each != End; ++Each) {
            const auto Number = [&](int Group) { return std::stod((*Each)[Group]); };
            if ((*Each)[1].matched)
                Result.Pages.push_back({Number(1), Number(2), {}});
            else
                Result.Pages.back().Words.push_back(
                    {Number(3), Number(4), Number(5), Number(6), (*Each)[7].str()});
        }
        const std::string Outline = OutputOf("pdftohtml -xml -i -stdout " + Name);
        const std::regex Item(R"re(<item page="(\d+)">(.*?)</item>)re");
        for (std::sregex_iterator Each(Outline.begin(), Outline.end(), Item), End; Each != End; ++Each)
            Result.Bookmarks.emplace_back((*Each)[2], std::stoi((*Each)[1]));
        Result.Facts = OutputOf("pdfinfo " + Name);
        return Result;
    }

    std::vector<std::string> SectionsOf(const std::string& Words) const
    {
        const Run Printed = Batch("report " + Words + " --pdf sections.pdf");
        EXPECT_EQ(Printed.Status, 0) << Printed.Errors;
        std::vector<std::string> Titles;
        for (const auto& [Title, Number] : ReadPdf("sections.pdf").Bookmarks) Titles.push_back(Title);
        return Titles;
    }
};

// A word at the column that a tab leads to, within what a letter keeps free at its left.
auto StandsAt(const std::string& Text, int Column, const Font& Face)
{
    const double Left = (Column - 1) * AverageCharacterWidth(Face) / TwipsPerPoint;
    return Contains(testing::Truly(
        [Text, Left](const Word& Each) { return Each.Text == Text && std::fabs(Each.Left - Left) < 1; }));
}

Font Roman(double Size)
{
    return {"Times New Roman", Size, false, false};
}

// Over each other in more than the room between lines, or not on the paper.
void ExpectClear(const Page& Printed)
{
    const auto Core = [](const Word& Each) {
        const double Air = 0.3 * (Each.Bottom - Each.Top);
        return Word{Each.Left + 0.5, Each.Top + Air, Each.Right - 0.5, Each.Bottom - Air, Each.Text};
    };
    for (std::size_t i = 0; i < Printed.Words.size(); ++i) {
        const Word One = Core(Printed.Words[i]);
        EXPECT_TRUE(One.Left > 0 && One.Top > 0 && One.Right < Printed.Width && One.Bottom < Printed.Height)
            << One.Text;
        for (std::size_t j = 0; j < i; ++j) {
            const Word Other = Core(Printed.Words[j]);
            EXPECT_FALSE(One.Left < Other.Right && Other.Left < One.Right && One.Top < Other.Bottom &&
                         Other.Top < One.Bottom)
                << One.Text << " over " << Other.Text;
        }
    }
}

class EachReport : public ReportTest, public testing::WithParamInterface<const char*> {
protected:
    const std::string Example = GetParam();
    const json Project = json::parse(ReadFile(Examples / (Example + ".json")));
    const bool Pumping = Project["SystemType"] == "Pumping system";

    // The pages of each section, by its page breaks: they come after told rows, also when no row follows.
    std::vector<std::pair<std::string, int>> ExpectedPages() const
    {
        const int Life = Project["Life"];
        const int Nodes = static_cast<int>(Project["Elevation"].size());
        const int AllYears = Project["SupplyStart"].get<int>() - Project["BaseYear"].get<int>() + Life;
        const int DemandBreaks = Project["VaryingDemand"] == "Varying demand" ? (Life + 2) / 25 : 0;
        std::vector<std::pair<std::string, int>> Sections = {
            {"General data", 1 + DemandBreaks},
            {"Pipeline profile", 2 + Nodes / 27},
            {"Rates and sales data", 1},
            {"Hydraulic analysis", 1 + Nodes / 27},
            {"Demand and yield", 1 + Life / 27},
            {"Income and expenditure", 1 + AllYears / 32},
            {"Cost analysis", 1},
            {"Hydraulic graph", 1},
            {"Demand and capacity graph", 1},
            {"Income and expenditure graph", 1},
            {"Internal rate of return graph", 1},
        };
        if (Pumping) Sections.insert(Sections.begin() + 2, {"Energy data", 1});
        return Sections;
    }
};

TEST_P(EachReport, HasItsPagesWithEveryTextInItsPlace)
{
    std::filesystem::copy(Examples / (Example + ".vlx"), Folder);
    ASSERT_EQ(Batch("report " + Example + ".vlx --pdf report.pdf").Status, 0);
    const Pdf Printed = ReadPdf("report.pdf");
    for (const char* Key : {"Project", "Description", "Designer"})
        EXPECT_THAT(Printed.Facts, HasSubstr(" " + Project[Key].get<std::string>() + "\n"));

    std::vector<std::pair<std::string, int>> Bookmarks;
    int First = 1;
    for (const auto& [Title, Count] : ExpectedPages()) {
        Bookmarks.emplace_back(Title, First);
        First += Count;
    }
    EXPECT_EQ(Printed.Bookmarks, Bookmarks);
    ASSERT_EQ(Printed.Pages.size(), static_cast<std::size_t>(First - 1));

    const std::size_t WideFrom = Printed.Pages.size() - 3;
    int Number = 0;
    for (const Page& Each : Printed.Pages) {
        SCOPED_TRACE("page " + std::to_string(++Number));
        const bool Wide = static_cast<std::size_t>(Number) > WideFrom;
        EXPECT_EQ(Each.Width > Each.Height, Wide);
        ExpectClear(Each);
        EXPECT_THAT(Each.Words, StandsAt("Velorix", Wide ? 55 : 24, Roman(Wide ? 16 : 21)));
        EXPECT_THAT(Each.Words, StandsAt("Designer", 7, Roman(Wide ? 12 : 13)));
        EXPECT_THAT(Each.Words, StandsAt("Page", Wide ? 215 : 153, Roman(8)));
        EXPECT_THAT(Each.Text(), AllOf(HasSubstr("Page " + std::to_string(Number) + " "),
                                       HasSubstr(Example + ".vlx"), HasSubstr("Velorix : VERSION: ")));
    }

    const std::tuple<const char*, const char*, int, Font> Titles[] = {
        {"General data", "GENERAL", 7, Roman(13)},
        {"Pipeline profile", "PIPELINE", 7, Roman(13)},
        {"Rates and sales data", "RATES", 7, Roman(12)},
        {"Hydraulic analysis", "HYDRAULIC", 40, Roman(13)},
        {"Demand and yield", "SYSTEM", 30, Roman(13)},
        {"Income and expenditure", "SYSTEM", 27, Roman(13)},
        {"Cost analysis", "COST", 40, Roman(13)},
        {"Cost analysis", "VAT", 7, Roman(12)},
        {"Hydraulic graph", "Begin", 8, Roman(11)},
        {"Internal rate of return graph", "IRR", 7, Roman(13)},
        {"Demand and capacity graph", "System", 7, Roman(13)},
    };
    for (const auto& [Section, Text, Column, Face] : Titles) {
        SCOPED_TRACE(Section);
        for (const auto& [Title, At] : Printed.Bookmarks) {
            const Page& Begun = Printed.Pages[static_cast<std::size_t>(At - 1)];
            if (Title == Section) {
                EXPECT_THAT(Begun.Words, StandsAt(Text, Column, Face));
            }
        }
    }

    // The headline figures, as the table of the analysis has them.
    std::smatch Figures;
    const std::string Table = Batch("analyse " + Example + ".vlx").Output;
    ASSERT_TRUE(std::regex_search(Table, Figures, std::regex("([R$][0-9,]+) +([R$][0-9,]+) +([0-9.]+ %)")));
    EXPECT_THAT(Printed.Pages[WideFrom - 2].Text(),
                AllOf(HasSubstr("Expenditure: " + Figures[1].str()), HasSubstr("Income: " + Figures[2].str()),
                      HasSubstr("IRR: " + Figures[3].str())));
}

INSTANTIATE_TEST_SUITE_P(ReportTest, EachReport,
                         testing::Values("brandkop-regional-main", "cedar-mesa-transmission-main",
                                         "hoekfontein-pumping-main", "kloofsig-village-main",
                                         "witklip-mine-rising-main"));

TEST_F(ReportTest, SectionsComeInTheirOrderHoweverTheyAreNamed)
{
    WriteExample("pump.vlx", "hoekfontein-pumping-main");
    EXPECT_EQ(SectionsOf("pump.vlx --sections profile-graph,cost,pump-curve,duty,energy,cost"),
              std::vector<std::string>({"Energy data", "Cost analysis", "Pump and system curve", "Pump curve",
                                        "Pipeline profile graph"}));
    EXPECT_EQ(SectionsOf("--sections income-graph pump.vlx"),
              std::vector<std::string>({"Income and expenditure graph"}));
}

TEST_F(ReportTest, TheYearIsThatOfEveryPageOfOneYear)
{
    WriteExample("pump.vlx", "hoekfontein-pumping-main"); // supplies from 2028 on
    for (const char* Section : {"hydraulic", "hydraulic-graph", "duty", "profile-graph"}) {
        const std::string Words = std::string("report pump.vlx --pdf year.pdf --sections ") + Section;
        ASSERT_EQ(Batch(Words).Status, 0);
        EXPECT_THAT(ReadPdf("year.pdf").Pages[0].Text(), testing::ContainsRegex("Year:? 2028")) << Section;
        ASSERT_EQ(Batch(Words + " --year 30").Status, 0);
        EXPECT_THAT(ReadPdf("year.pdf").Pages[0].Text(), testing::ContainsRegex("Year:? 2057")) << Section;
    }
}

// The pages of the input for an analysis that doesn't stand; those before the section that fails: 102 years
// with those of construction are more than the tables of results hold.
TEST_F(ReportTest, WhatStandsIsPrintedAndTheRestIsTold)
{
    WriteExample("high.vlx", "hoekfontein-pumping-main", {{"BRWL", 1700}});
    WriteExample("long.vlx", "hoekfontein-pumping-main", {{"Life", 100}});
    const std::tuple<std::string, const char*, std::string> Cases[] = {
        {"high.vlx", "The pump curve does not intersect the system curve for year 1", "Rates and sales data"},
        {"high.vlx --sections energy,cost", "does not intersect", "Energy data"},
        {"long.vlx", "Could not print the Cost Analysis (Income & Expenditure)!", "Demand and yield"},
    };
    for (const auto& [Words, Reason, Last] : Cases) {
        const Run Printed = Batch("report " + Words + " --pdf part.pdf");
        EXPECT_EQ(Printed.Status, 2) << Words;
        EXPECT_THAT(Printed.Errors, HasSubstr(Reason));
        const Pdf Part = ReadPdf("part.pdf");
        ASSERT_FALSE(Part.Bookmarks.empty()) << Words;
        EXPECT_EQ(Part.Bookmarks.back().first, Last);
    }
}

TEST_F(ReportTest, WhatCannotBePrintedIsToldAndWritesNothing)
{
    WriteExample("village.vlx", "kloofsig-village-main");
    WriteExample("high.vlx", "hoekfontein-pumping-main", {{"BRWL", 1700}});
    WriteFile("file", "");
    const std::tuple<std::string, int, const char*> Cases[] = {
        {"village.vlx --sections general,energy", 2, "village.vlx: the section energy doesn't apply"},
        {"village.vlx --sections duty", 2, "the section duty doesn't apply"},
        {"high.vlx --sections cost,irr-graph", 2, "does not intersect"},
        {"village.vlx --year 26", 2, "the year 26 is outside 1 to 25"},
        {"village.vlx --year 0 --sections general", 2, "the year 0 is outside 1 to 25"},
        {"village.vlx --sections general,graphs", 1, "--sections"},
        {"missing.vlx", 1, "missing.vlx\": No such file"},
        {"village.vlx --pdf nowhere/new.pdf", 1, "nowhere/new.pdf"},
        {"village.vlx --pdf /dev/full", 1, "/dev/full\": No space left"},
        {"village.vlx --pdf high.vlx", 1, "\"high.vlx\" is a project"},
        {"village.vlx --pdf village.vlx", 1, "\"village.vlx\" is read by"},
        {"village.vlx high.vlx --pdf file", 1, "file\": "},
        {"village.vlx high.vlx --pdf -", 1, "several files need --pdf FOLDER"},
        {"village.vlx ./village.vlx --pdf new.pdf", 1, "Two of the files are named \"village\""},
    };
    for (const auto& [Words, Status, Reason] : Cases) {
        const bool HasOut = Words.find("--pdf") != std::string::npos;
        const Run Refused = Batch("report " + Words + (HasOut ? "" : " --pdf new.pdf"));
        EXPECT_EQ(Refused.Status, Status) << Words;
        EXPECT_EQ(Refused.Output, "") << Words;
        EXPECT_THAT(Refused.Errors, HasSubstr(Reason)) << Words;
        EXPECT_FALSE(std::filesystem::exists(Folder / "new.pdf")) << Words;
    }
}

TEST_F(ReportTest, SeveralFilesGoIntoAFolderAndOneToStandardOutput)
{
    WriteExample("village.vlx", "kloofsig-village-main");
    WriteExample("mine.vlx", "witklip-mine-rising-main");
    WriteFile("bad.vlx", "");
    const Run Several =
        Batch("report village.vlx bad.vlx missing.vlx mine.vlx --pdf new/reports --sections rates");
    EXPECT_EQ(Several.Status, 1);
    for (const char* Each : {"new/reports/village.pdf", "new/reports/mine.pdf"})
        EXPECT_THAT(ReadPdf(Each).Pages.at(0).Text(), HasSubstr("RATES AND SALES DATA")) << Each;
    EXPECT_FALSE(std::filesystem::exists(Folder / "new/reports/missing.pdf"));

    EXPECT_EQ(Batch("report - --pdf - --sections rates <village.vlx").Errors, "");
    std::filesystem::rename(Folder / "out.txt", Folder / "out.pdf");
    EXPECT_THAT(ReadPdf("out.pdf").Pages.at(0).Text(),
                AllOf(HasSubstr(" standard input "), Not(HasSubstr("/proc"))));
}

} // namespace
} // namespace velorix
