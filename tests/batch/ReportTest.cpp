// Reports printed from the command line, read back from their PDF files by another program: how many pages,
// what stands where, and what is told in place of a file.
#include "BatchTest.h"
#include "platform/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <regex>

namespace velorix {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr double TwipsPerPoint = 20;

// In points from the top left corner of the page.
struct Word {
    double Left, Top, Right, Bottom;
    std::string Text;
};

struct Page {
    double Width, Height;
    std::vector<Word> Words;

    std::string Text() const
    {
        std::string All;
        for (const Word& Each : Words) All += Each.Text + " ";
        return All;
    }
    double LeftOf(const std::string& Text) const
    {
        const auto Found =
            std::find_if(Words.begin(), Words.end(), [&](auto& Each) { return Each.Text == Text; });
        return Found == Words.end() ? NAN : Found->Left;
    }
};

using Sections = std::vector<std::pair<std::string, int>>; // titles with their first pages, from 1

struct Pdf {
    std::vector<Page> Pages;
    Sections Bookmarks;
    std::string Facts;
};

class ReportTest : public BatchTest {
protected:
    std::string OutputOf(const std::string& Line) const
    {
        const Run Done = Shell(Line);
        EXPECT_EQ(Done.Status, 0) << Line << "\n" << Done.Errors;
        return Done.Output;
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
};

// Where a tab leads to, in Times New Roman of that size; a letter keeps up to a point free at its left.
double TabLeft(int Column, double Size)
{
    return (Column - 1) * AverageCharacterWidth({"Times New Roman", Size, false, false}) / TwipsPerPoint;
}

// No word lies over another in more than the room between lines, or off the paper.
void ExpectClear(const Page& Printed)
{
    for (const Word& One : Printed.Words) {
        const double Air = 0.6 * (One.Bottom - One.Top);
        EXPECT_TRUE(One.Left > 0 && One.Top > 0 && One.Right < Printed.Width && One.Bottom < Printed.Height)
            << One.Text;
        for (const Word& Other : Printed.Words) {
            if (&Other == &One) break;
            EXPECT_FALSE(One.Left + 1 < Other.Right && Other.Left + 1 < One.Right &&
                         One.Top + Air < Other.Bottom && Other.Top + Air < One.Bottom)
                << One.Text << " over " << Other.Text;
        }
    }
}

using EachReport = OfEachExample<ReportTest>;

TEST_P(EachReport, HasItsPagesWithEveryTextInItsPlace)
{
    std::filesystem::copy(File, Folder);
    ASSERT_EQ(Batch("report " + Example + ".vlx --pdf report.pdf").Status, 0);
    const Pdf Printed = ReadPdf("report.pdf");
    for (const char* Key : {"Project", "Description", "Designer"})
        EXPECT_THAT(Printed.Facts, HasSubstr(" " + Project[Key].get<std::string>() + "\n"));

    std::string Titles;
    for (const auto& [Title, At] : Printed.Bookmarks) Titles += Title + "; ";
    EXPECT_EQ(Titles, std::string("General data; Pipeline profile; ") + (Pumping ? "Energy data; " : "") +
                          "Rates and sales data; Hydraulic analysis; Demand and yield; Income and "
                          "expenditure; Cost analysis; "
                          "Hydraulic graph; Demand and capacity graph; Income and expenditure graph; "
                          "Internal rate of return graph; ");

    const std::size_t WideFrom = Printed.Pages.size() - 3;
    int Number = 0;
    for (const Page& Each : Printed.Pages) {
        SCOPED_TRACE("page " + std::to_string(++Number));
        const bool Wide = static_cast<std::size_t>(Number) > WideFrom;
        EXPECT_EQ(Each.Width > Each.Height, Wide);
        ExpectClear(Each);
        EXPECT_NEAR(Each.LeftOf("Velorix"), Wide ? TabLeft(55, 16) : TabLeft(24, 21), 1);
        EXPECT_NEAR(Each.LeftOf("Designer"), TabLeft(7, Wide ? 12 : 13), 1);
        EXPECT_NEAR(Each.LeftOf("Page"), TabLeft(Wide ? 215 : 153, 8), 1);
        EXPECT_THAT(Each.Text(), AllOf(HasSubstr("Page " + std::to_string(Number) + " "),
                                       HasSubstr(Example + ".vlx"), HasSubstr("Velorix : VERSION: ")));
    }

    // The headline figures, as the table of the analysis has them.
    std::smatch Figures;
    const std::string Table = Batch("analyse " + Example + ".vlx").Output;
    ASSERT_TRUE(std::regex_search(Table, Figures, std::regex("([R$][0-9,]+) +([R$][0-9,]+) +([0-9.]+ %)")));
    EXPECT_THAT(Printed.Pages[WideFrom - 2].Text(),
                AllOf(HasSubstr("Expenditure: " + Figures[1].str()), HasSubstr("Income: " + Figures[2].str()),
                      HasSubstr("IRR: " + Figures[3].str())));
}

INSTANTIATE_TEST_SUITE_P(ReportTest, EachReport, testing::ValuesIn(ExampleNames()));

TEST_F(ReportTest, SectionsComeInTheirOrderHoweverTheyAreNamed)
{
    WriteExample("pump.vlx", "hoekfontein-pumping-main");
    ASSERT_EQ(
        Batch("report pump.vlx --pdf all.pdf --sections profile-graph,cost,pump-curve,duty,cost").Status, 0);
    EXPECT_EQ(ReadPdf("all.pdf").Bookmarks, Sections({{"Cost analysis", 1},
                                                      {"Pump and system curve", 2},
                                                      {"Pump curve", 5},
                                                      {"Pipeline profile graph", 6}}));
    ASSERT_EQ(Batch("report --sections income-graph pump.vlx --pdf one.pdf").Status, 0);
    EXPECT_EQ(ReadPdf("one.pdf").Bookmarks, Sections({{"Income and expenditure graph", 1}}));
}

TEST_F(ReportTest, TheYearIsThatOfEveryPageOfOneYear)
{
    WriteExample("pump.vlx", "hoekfontein-pumping-main"); // supplies from 2028 on
    const std::pair<const char*, const char*> Years[] = {{"", "Year:? 2028"}, {" --year 30", "Year:? 2057"}};
    for (const std::string Section : {"hydraulic", "hydraulic-graph", "duty", "profile-graph"})
        for (const auto& [Option, Shown] : Years) {
            ASSERT_EQ(Batch("report pump.vlx --pdf year.pdf --sections " + Section + Option).Status, 0);
            EXPECT_THAT(ReadPdf("year.pdf").Pages[0].Text(), testing::ContainsRegex(Shown)) << Section;
        }
}

// The pages of the input for an analysis that doesn't stand; those before the section that fails: 102 years
// with those of construction are more than the tables of results hold. A graph that can't be drawn, which one
// of them tells itself, leaves its place empty.
TEST_F(ReportTest, WhatStandsIsPrintedAndTheRestIsTold)
{
    WriteExample("high.vlx", "hoekfontein-pumping-main", {{"BRWL", 1700}});
    WriteExample("long.vlx", "hoekfontein-pumping-main", {{"Life", 100}});
    WriteExample("rich.vlx", "hoekfontein-pumping-main", {{"WaterSales", 1e7}});
    const std::tuple<std::string, const char*, std::string> Cases[] = {
        {"high.vlx", "The pump curve does not intersect the system curve for year 1", "Rates and sales data"},
        {"rich.vlx", "rich.vlx: Could not show the Internal Rate of Return", "Internal rate of return graph"},
        {"rich.vlx", "rich.vlx: Income and expenditure graph: the figures leave nothing to draw",
         "Internal rate of return graph"},
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
    ExpectRefused(
        "report --pdf new.pdf",
        {{"village.vlx --sections general,energy", "village.vlx: the section energy doesn't apply", 2},
         {"village.vlx --sections duty", "the section duty doesn't apply", 2},
         {"high.vlx --sections cost,irr-graph", "does not intersect", 2},
         {"village.vlx --year 26", "the year 26 is outside 1 to 25", 2},
         {"village.vlx --year 0 --sections general", "the year 0 is outside 1 to 25", 2},
         {"village.vlx --sections general,graphs", "--sections"},
         {"missing.vlx", "missing.vlx\": No such file"},
         {"village.vlx ./village.vlx", "Two of the files are named \"village\""}});
    ExpectRefused("report village.vlx", {{"--pdf nowhere/new.pdf", "nowhere/new.pdf"},
                                         {"--pdf /dev/full", "/dev/full\": No space left"},
                                         {"--pdf high.vlx", "\"high.vlx\" is a project"},
                                         {"--pdf village.vlx", "\"village.vlx\" is read by"},
                                         {"high.vlx --pdf file", "file\": "},
                                         {"high.vlx --pdf -", "several files need --pdf FOLDER"}});
}

TEST_F(ReportTest, SeveralFilesGoIntoAFolderAndOneToStandardOutput)
{
    WriteExample("village.vlx", "kloofsig-village-main");
    WriteExample("mine.vlx", "witklip-mine-rising-main");
    WriteExample("kept.vlx", "witklip-mine-rising-main");
    std::filesystem::create_directories(Folder / "new/reports/kept.pdf"); // in the way
    WriteFile("bad.vlx", "");
    const Run Several =
        Batch("report village.vlx bad.vlx kept.vlx missing.vlx mine.vlx --pdf new/reports --sections rates");
    EXPECT_EQ(Several.Status, 1);
    EXPECT_THAT(Several.Errors, HasSubstr("reports/kept.pdf\": "));
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
