// The program velorix-batch as its users run it: words in, files, texts and exit statuses out.
#include "BatchTest.h"
#include "analysis/Program.h"
#include "batch/AnalysisOutput.h"
#include "batch/JsonText.h"
#include "cost/CostResults.h"
#include "input/Session.h"
#include "model/WorkingSet.h"

#include <gmock/gmock.h>
#include <limits>
#include <map>

namespace velorix {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class CommandTest : public BatchTest {
protected:
    CommandTest()
    {
        // A gravity main of 18 rows and 25 years, three of construction before them.
        WriteExample("village.vlx", "kloofsig-village-main", {{"SupplyStart", 2029}});
        // More rows, and a rate of return.
        WriteExample("ridge.vlx", "brandkop-regional-main");
        // Pumps that can't lift the water to the end reservoir.
        WriteExample("höhe.vlx", "hoekfontein-pumping-main", {{"BRWL", 1700}});
    }

    json ResultsOf(const std::string& Words) const { return json::parse(Batch("analyse " + Words).Output); }
};

TEST_F(CommandTest, ExitStatusTellsTheWorstThatHappened)
{
    EXPECT_EQ(Batch("analyse village.vlx").Status, 0);
    EXPECT_EQ(Batch("analyse höhe.vlx village.vlx").Status, 2);
    EXPECT_EQ(Batch("analyse missing.vlx höhe.vlx village.vlx").Status, 1);
    EXPECT_EQ(Batch("--version").Output, "velorix-batch " VELORIX_VERSION "\n");
    EXPECT_THAT(Batch("analyse --help").Output, HasSubstr("--json"));
}

TEST_F(CommandTest, WhatCannotBeDoneIsToldAndWritesNothing)
{
    WriteFile("wrong.json", R"({"Project": "Spur", "Life": 1000})");
    WriteFile("right.json", "{}");
    WriteFile("photo.jpg", std::string(20'000, 'p'));
    WriteFile("short.vlx", std::string(8325, '\0'));
    std::filesystem::create_directory(Folder / "folder.vlx");
    std::filesystem::create_hard_link(Folder / "village.vlx", Folder / "same");
    std::filesystem::create_symlink("ridge.vlx", Folder / "link");
    std::filesystem::create_symlink("/dev/full", Folder / "village-rows.csv");
    const std::pair<const char*, const char*> Cases[] = {
        {"analyze village.vlx", "subcommand"},
        {"analyse --jobs 0 village.vlx", "--jobs"},
        {"export village.vlx ridge.vlx", "ridge.vlx"},
        {"export village.vlx other/village.vlx --out new", "Two of the files are named \"village\""},
        {"import right.json", "OUT.vlx"},
        {"import right.json wrong.json new", "--out FOLDER"},
        {"import right.json other/right.json --out new", "Two of the files are named \"right\""},
        {"import - - --out new", "standard input can be read once only"},
        // A slip destroys nothing.
        {"analyse --json village.vlx ridge.vlx", "\"village.vlx\" is a project; only import"},
        {"analyse village.vlx --json village.vlx", "\"village.vlx\" is read by this command"},
        {"analyse village.vlx --json same", "\"same\" is read by this command"},
        {"analyse village.vlx --json link", "\"link\" is a project"},
        {"analyse village.vlx --json folder.vlx", "\"folder.vlx\" is a project"},
        {"import right.json right.json --force", "\"right.json\" is read by this command"},
        {"import - right.json --force <right.json", "\"right.json\" is read by this command"},
        {"import right.json photo.jpg", "\"photo.jpg\" is there and isn't a project file; --force"},
        {"import right.json short.vlx", "\"short.vlx\" is there and isn't a project"},
        {"import right.json folder.vlx", "\"folder.vlx\" is there and isn't a project"},
        {"import right.json folder.vlx --force", "folder.vlx\": Is a directory"},
        {"import folder.vlx new", "Can't read \"folder.vlx\": it isn't a regular file"},
        {"import /dev/null new", "Can't read \"/dev/null\": it isn't a regular file"},
        {"export short.vlx", "short.vlx: the file is shorter than 8326 bytes"},
        {"import wrong.json new", "Can't import \"wrong.json\": Life: 1000 is outside 2 to 100"},
        {"import wrong.json village.vlx", "Life: 1000 is outside 2 to 100"},
        {"export missing.vlx", "missing.vlx\": No such file or directory"},
        {"analyse missing.vlx --json -",
         "velorix-batch: Can't read \"missing.vlx\": No such file or directory"},
        {"analyse missing.vlx --json new", "missing.vlx\": No such file or directory"},
        {"analyse village.vlx --json no/folder", "no/folder\": No such file or directory"},
        {"analyse village.vlx other/village.vlx --csv new", "Two of the files are named \"village\""},
        {"analyse village.vlx >/dev/full", "No space left on device"},
        {"analyse village.vlx --json - >/dev/full", "No space left on device"},
        {"analyse village.vlx --csv .", "village-rows.csv\": No space left on device"},
        {"analyse village.vlx --json /dev/full", "No space left on device"},
        {"export village.vlx >/dev/full", "No space left on device"},
        {"--version >/dev/full", "No space left on device"},
    };
    const std::vector<std::string> Kept = {"village.vlx", "ridge.vlx", "right.json", "photo.jpg",
                                           "short.vlx"};
    const auto Contents = [&] {
        std::string All;
        for (const std::string& Each : Kept) All += ReadFile(Folder / Each);
        return All;
    };
    const std::string Before = Contents();
    for (const auto& [Words, Reason] : Cases) {
        const Run Failed = Batch(Words);
        EXPECT_EQ(Failed.Status, 1) << Words;
        EXPECT_EQ(Failed.Output, "") << Words;
        EXPECT_THAT(Failed.Errors, HasSubstr(Reason)) << Words;
        EXPECT_FALSE(std::filesystem::exists(Folder / "new")) << Words;
    }
    EXPECT_TRUE(Contents() == Before);
}

// A full disk, as a limit on the length of a file.
TEST_F(CommandTest, AResultThatCannotBeWrittenWholeLeavesTheEarlierOne)
{
    for (const char* Words : {"--json village-rows.csv", "--json - --csv ."}) {
        WriteFile("village-rows.csv", "earlier");
        const Run Failed =
            Batch("--version; trap '' XFSZ; ulimit -f 1; " VELORIX_BATCH " analyse village.vlx " +
                  std::string(Words));
        EXPECT_EQ(Failed.Status, 1) << Words;
        EXPECT_THAT(Failed.Errors, HasSubstr("File too large")) << Words;
        EXPECT_EQ(ReadFile(Folder / "village-rows.csv"), "earlier") << Words;
    }
}

TEST_F(CommandTest, TableAlignsByCharactersAndTellsReasonsAndMessages)
{
    EXPECT_THAT(Batch("analyse ridge.vlx höhe.vlx missing.vlx").Output,
                AllOf(StartsWith("File          System      Life"),
                      ContainsRegex("\nridge.vlx     gravity       40 +R[0-9,]+ +R.*%\n"),
                      HasSubstr("%\n    A local high point in the pipeline profile"),
                      ContainsRegex("\nhöhe.vlx      pumping       30 +did not stand\n"
                                    "    The pump curve does not intersect"),
                      HasSubstr("\nmissing.vlx   not read")));
}

// "number", or the length of a list and of the lists within it.
std::string ShapeOf(const json& Value)
{
    if (Value.is_number()) return "number";
    const bool Nested = !Value.empty() && Value[0].is_array();
    return std::to_string(Value.size()) + (Nested ? " of " + std::to_string(Value[0].size()) : "");
}

TEST_F(CommandTest, JsonOfOneFileHoldsEveryResult)
{
    const json Results = ResultsOf("village.vlx --json -");
    std::map<std::string, int> Shapes;
    for (const auto& Member : Results.items()) ++Shapes[ShapeOf(Member.value())];
    // Years of supply, of construction and of both, rows, and rows and points of each year.
    const std::map<std::string, int> Expected = {{"number", 23}, {"25", 22},      {"3", 1},        {"28", 1},
                                                 {"18", 7},      {"25 of 18", 3}, {"25 of 19", 1}, {"0", 1}};
    EXPECT_EQ(Shapes, Expected);
    const auto First = [&](const char* Table, int Point) { return Results[Table][0][Point].get<double>(); };
    EXPECT_NEAR(First("Gradeline", 0) - First("Gradeline", 1),
                First("FrictionLoss", 0) + First("SecondaryHeadLoss", 0), 0.001);
    EXPECT_EQ(JsonNumber(std::numeric_limits<float>::infinity()), "null"); // JSON has no word for it
}

// Each is filled with a number of its own.
TEST_F(CommandTest, EveryResultGoesOutUnderItsOwnName)
{
    std::map<std::string, double> Filled = {{"Analysed", Analysed = 300}, {"NodeCount", NodeCount = 301}};
    wLife = wSupplyStart = 2;
    wBaseYear = 1;
    ForEachResult([&](const auto& Of, auto& Value) {
        if constexpr (requires { Value.Fill(1); })
            Value.Fill(static_cast<float>(Filled.size()));
        else
            Value = static_cast<std::int16_t>(Filled.size());
        if constexpr (std::is_same_v<decltype(Of), const ResultInfo&>) Filled.emplace(Of.Name, Filled.size());
    });
    std::map<std::string, double> Told;
    const json Results = json::parse(ToJson(CollectResults({})));
    for (const auto& Member : Results.items()) {
        const json Numbers = Member.value().flatten();
        if (Member.key() != "messages") Told[Member.key()] = *Numbers.begin();
    }
    EXPECT_EQ(Told, Filled);
    ResetProgram();
}

TEST_F(CommandTest, ABadFileHarmsNoOther)
{
    const json Failed = ResultsOf("höhe.vlx --json -");
    EXPECT_EQ(Failed["Analysed"], 0);
    EXPECT_EQ(Failed["messages"].at(0)["title"], "Error");
    EXPECT_EQ(Failed["messages"].at(0)["text"],
              "The pump curve does not intersect the system curve for year 1");
    const json Whole = {ResultsOf("ridge.vlx --json -"), nullptr, ResultsOf("village.vlx --json -"), Failed};
    for (const char* Jobs : {" --jobs 1", " --jobs 3"}) {
        const std::string Files = "analyse ridge.vlx missing.vlx village.vlx höhe.vlx --json -";
        EXPECT_EQ(json::parse(Batch(Files + Jobs).Output), Whole);
    }
}

TEST_F(CommandTest, JsonGoesToItsFileAndNothingToStandardOutput)
{
    WriteFile("results.json", std::string(1'000'000, 'x'));
    EXPECT_EQ(Batch("analyse village.vlx --json results.json").Output, "");
    EXPECT_EQ(json::parse(ReadFile(Folder / "results.json")), ResultsOf("village.vlx --json -"));
}

TEST_F(CommandTest, CsvTablesHoldTheSameNumbersByCalendarYear)
{
    const json Results = ResultsOf("village.vlx --json - --csv tables/of/today");
    const auto Table = [&](const std::string& Name) {
        return ReadFile(Folder / "tables/of/today" / ("village-" + Name + ".csv"));
    };
    EXPECT_THAT(Table("years"), AllOf(StartsWith("Year,Flow,KsYear,"), Not(HasSubstr("\n2054")),
                                      HasSubstr("\n2053," + Results["Flow"][24].dump() + ",")));
    EXPECT_THAT(Table("money"), AllOf(StartsWith("Year,CapitalSeries,CostSeries\n2026,"),
                                      HasSubstr("\n2029,,"), // construction is over
                                      HasSubstr("," + Results["CostSeries"][27].dump() + "\n")));
    EXPECT_THAT(Table("rows"), AllOf(StartsWith("Row,InternalDiameter,"), HasSubstr("\n18,")));
    for (const char* Name : {"Lambda", "FrictionLoss", "SecondaryHeadLoss", "Gradeline"})
        EXPECT_THAT(Table(Name), ContainsRegex("^Year,[01],.*,18\n2029,.*\n2053,.*," +
                                               Results[Name][24].back().dump() + "\n$"));
}

// Through standard input and output, and through folders; over a project that is there, and by force over
// what is none.
TEST_F(CommandTest, ImportGivesTheExportedFilesBack)
{
    WriteFile("notes.txt", "");
    std::filesystem::copy(Folder / "village.vlx", Folder / "copy.vlx");
    for (const std::string Target : {"copy.vlx", "new.vlx", "notes.txt"}) {
        EXPECT_EQ(Batch("export - <ridge.vlx | " VELORIX_BATCH " import - " + Target +
                        (Target == "notes.txt" ? " --force" : ""))
                      .Status,
                  0);
        EXPECT_TRUE(ReadFile(Folder / Target) == ReadFile(Folder / "ridge.vlx")) << Target;
    }
    EXPECT_EQ(Batch("export ridge.vlx village.vlx --out a/json && " VELORIX_BATCH
                    " import a/json/*.json --out a/projects")
                  .Status,
              0);
    for (const char* Name : {"ridge.vlx", "village.vlx"})
        EXPECT_TRUE(ReadFile(Folder / "a/projects" / Name) == ReadFile(Folder / Name)) << Name;
}

// A file that a control of the screen can't show, one that is too short, and a name in another code page.
TEST_F(CommandTest, WhatIsNotAsItSeemsIsToldOnStandardError)
{
    ProjectFields Record = ProjectFromJson(ReadFile(Examples / "hoekfontein-pumping-main.json"));
    Record.Life = 1000;
    Record.MPipeline = -1;
    Record.PumpingHours = 25;
    WriteFile("odd.vlx", BytesOf(Record));
    WriteFile("short.vlx", BytesOf(Record).substr(0, 8325));
    const std::string Pinned = "velorix-batch: odd.vlx: Life 1000 is out of range, 100 is taken\n"
                               "velorix-batch: odd.vlx: MPipeline -1 is out of range, 0 is taken\n"
                               "velorix-batch: odd.vlx: PumpingHours 25 is out of range, 24 is taken\n";
    EXPECT_EQ(Batch("analyse odd.vlx village.vlx").Errors, Pinned);
    EXPECT_EQ(Batch("check odd.vlx").Errors, Pinned);
    EXPECT_THAT(Batch("analyse short.vlx").Errors,
                HasSubstr("short.vlx: the file is shorter than 8326 bytes"));
    EXPECT_THAT(Batch("analyse short.vlx").Output, HasSubstr("\nshort.vlx"));

    const Run Foreign = Batch("analyse h\xF6he.vlx; " VELORIX_BATCH " analyse --jobs \xFF a");
    EXPECT_THAT(Foreign.Output, HasSubstr("\nh\uFFFDhe.vlx   not read\n"));
    EXPECT_THAT(Foreign.Errors,
                AllOf(HasSubstr("\"h\uFFFDhe.vlx\": No such"), HasSubstr("--jobs: Value \uFFFD")));
}

TEST_F(CommandTest, CheckTellsWhatASaveWouldTell)
{
    WriteExample("nameless.vlx", "kloofsig-village-main", {{"Project", " "}});
    WriteExample("endless.vlx", "kloofsig-village-main", {{"KsNew", "Infinity"}});
    WriteFile("short.vlx", std::string(8325, ' '));
    const std::string Village = ReadFile(Folder / "village.vlx");
    const Run Checked = Batch("check village.vlx nameless.vlx endless.vlx short.vlx");
    EXPECT_EQ(Checked.Status, 2);
    EXPECT_THAT(Checked.Output,
                testing::MatchesRegex("village.vlx: ok\n"
                                      "nameless.vlx: Enter the project name !\n"
                                      "endless.vlx: Absolute [^\n]*\n"
                                      "short.vlx: the file is shorter than 8326 bytes[^\n]*\n"));
    EXPECT_EQ(Batch("check village.vlx ridge.vlx").Status, 0);
    EXPECT_EQ(Batch("check nameless.vlx missing.vlx").Status, 1);
    EXPECT_EQ(ReadFile(Folder / "village.vlx"), Village);
}

// Two time zones in which it is never the same day; a midnight may pass between the two calls of date.
TEST_F(CommandTest, AnAbsentDateIsTodayHere)
{
    WriteFile("empty.json", "{}");
    for (const char* Zone : {"EAST-14", "WEST+12"}) {
        ::setenv("TZ", Zone, 1);
        const Run Days =
            Batch("--version; date +%F; " VELORIX_BATCH " import empty.json today.vlx; date +%F");
        ::unsetenv("TZ");
        const std::string Date = json::parse(Batch("export today.vlx").Output)["Date"];
        EXPECT_THAT(Days.Output, HasSubstr("\n" + Date + "\n"));
    }
}

} // namespace
} // namespace velorix
