// The program velorix-batch as its users run it: words in, files, texts and exit statuses out.
#include "BatchTest.h"
#include "batch/JsonText.h"

#include <limits>

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
        WriteFile("short.vlx", std::string(8325, ' '));
    }

    json ResultsOf(const std::string& Words) const { return json::parse(Batch("analyse " + Words).Output); }
};

TEST_F(CommandTest, VersionAndHelpAreShown)
{
    EXPECT_EQ(Batch("--version").Output, "velorix-batch " VELORIX_VERSION "\n");
    EXPECT_THAT(Batch("analyse --help").Output, HasSubstr("--json"));
}

TEST_F(CommandTest, WhatCannotBeDoneIsToldAndWritesNothing)
{
    WriteFile("wrong.json", R"({"Project": "Spur", "Life": 1000})");
    WriteFile("right.json", "{}");
    WriteFile("photo.jpg", std::string(20'000, 'p'));
    std::filesystem::create_directory(Folder / "folder.vlx");
    std::filesystem::create_hard_link(Folder / "village.vlx", Folder / "same");
    std::filesystem::create_symlink("ridge.vlx", Folder / "link");
    ExpectRefused("analyze", {{"village.vlx", "subcommand"}});
    ExpectRefused("--version", {{">/dev/full", "No space left on device"}});
    ExpectRefused("export",
                  {{"village.vlx ridge.vlx", "ridge.vlx"},
                   {"village.vlx other/village.vlx --out new", "Two of the files are named \"village\""},
                   {"short.vlx", "short.vlx: the file is shorter than 8326 bytes"},
                   {"village.vlx >/dev/full", "No space left on device"}});
    ExpectRefused(
        "import",
        {{"right.json", "OUT.vlx"},
         {"right.json wrong.json new", "--out FOLDER"},
         {"right.json other/right.json --out new", "Two of the files are named \"right\""},
         {"- - --out new", "standard input can be read once only"},
         {"right.json right.json --force", "\"right.json\" is read by this command"},
         {"- right.json --force <right.json", "\"right.json\" is read by this command"},
         {"right.json photo.jpg", "\"photo.jpg\" is there and isn't a project file; --force"},
         {"right.json short.vlx", "\"short.vlx\" is there and isn't a project"},
         {"right.json folder.vlx", "\"folder.vlx\" is there and isn't a project"},
         {"right.json folder.vlx --force", "folder.vlx\": Is a directory"},
         {"folder.vlx new", "Can't read \"folder.vlx\": it isn't a regular file"},
         {"wrong.json village.vlx", "Can't import \"wrong.json\": Life: 1000 is outside 2 to 100"}});
    ExpectRefused("analyse",
                  {{"--jobs 0 village.vlx", "--jobs"},
                   {"missing.vlx --json -", "velorix-batch: Can't read \"missing.vlx\": No such file"},
                   {"missing.vlx --json new", "missing.vlx\": No such file or directory"},
                   {"village.vlx other/village.vlx --csv new", "Two of the files are named \"village\""},
                   {"village.vlx --json no/folder", "no/folder\": No such file or directory"},
                   {"village.vlx >/dev/full", "No space left on device"},
                   {"village.vlx --json - >/dev/full", "No space left on device"},
                   {"village.vlx --json /dev/full", "No space left on device"},
                   // A slip destroys nothing.
                   {"--json village.vlx ridge.vlx", "\"village.vlx\" is a project; only import"},
                   {"village.vlx --json village.vlx", "\"village.vlx\" is read by this command"},
                   {"village.vlx --json same", "\"same\" is read by this command"},
                   {"village.vlx --json folder.vlx", "\"folder.vlx\" is a project"},
                   {"village.vlx --json link", "\"link\" is a project"}});
}

// A full disk, as a limit on the length of a file.
TEST_F(CommandTest, AResultThatCannotBeWrittenWholeLeavesTheEarlierOne)
{
    for (const std::string Words : {"--json village-rows.csv", "--json - --csv ."}) {
        WriteFile("village-rows.csv", "earlier");
        const Run Failed = Shell("trap '' XFSZ; ulimit -f 1; velorix-batch analyse village.vlx " + Words);
        EXPECT_EQ(Failed.Status, 1) << Words;
        EXPECT_THAT(Failed.Errors, HasSubstr("File too large")) << Words;
        EXPECT_EQ(ReadFile(Folder / "village-rows.csv"), "earlier") << Words;
    }
}

TEST_F(CommandTest, TableAlignsByCharactersAndTellsReasonsMessagesAndTheWorstAsStatus)
{
    EXPECT_EQ(Batch("analyse village.vlx").Status, 0);
    EXPECT_EQ(Batch("analyse höhe.vlx village.vlx").Status, 2);
    const Run Shown = Batch("analyse ridge.vlx höhe.vlx missing.vlx");
    EXPECT_EQ(Shown.Status, 1);
    EXPECT_THAT(Shown.Output, AllOf(StartsWith("File          System      Life"),
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

TEST_F(CommandTest, ABadFileHarmsNoOther)
{
    WriteFile("results.json", std::string(1'000'000, 'x'));
    const json Failed = ResultsOf("höhe.vlx --json -");
    EXPECT_EQ(Failed["Analysed"], 0);
    EXPECT_EQ(Failed["messages"].at(0),
              json({{"title", "Error"},
                    {"text", "The pump curve does not intersect the system curve for year 1"}}));
    const json Whole = {ResultsOf("ridge.vlx --json -"), nullptr, ResultsOf("village.vlx --json -"), Failed};
    const std::string Files = "ridge.vlx missing.vlx village.vlx höhe.vlx --json ";
    EXPECT_EQ(ResultsOf(Files + "- --jobs 1"), Whole);
    EXPECT_EQ(Batch("analyse " + Files + "results.json --jobs 3").Output, "");
    EXPECT_EQ(json::parse(ReadFile(Folder / "results.json")), Whole);
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
    for (const std::string Target : {"copy.vlx", "new.vlx", "notes.txt --force"}) {
        EXPECT_EQ(Shell("velorix-batch export - <ridge.vlx | velorix-batch import - " + Target).Status, 0);
        EXPECT_TRUE(ReadFile(Folder / Target.substr(0, Target.find(' '))) == ReadFile(Folder / "ridge.vlx"))
            << Target;
    }
    EXPECT_EQ(Shell("velorix-batch export ridge.vlx village.vlx --out a/json && "
                    "velorix-batch import a/json/*.json --out a/projects")
                  .Status,
              0);
    for (const char* Name : {"ridge.vlx", "village.vlx"})
        EXPECT_TRUE(ReadFile(Folder / "a/projects" / Name) == ReadFile(Folder / Name)) << Name;
}

// A file that a control of the screen can't show, one that is too short, and a name in another code page.
TEST_F(CommandTest, WhatIsNotAsItSeemsIsToldOnStandardError)
{
    ProjectFields Record = ProjectFromJson(DescriptionOf("hoekfontein-pumping-main").dump());
    Record.Life = 1000;
    Record.MPipeline = -1;
    Record.PumpingHours = 25;
    WriteFile("odd.vlx", BytesOf(Record));
    const std::string Pinned = "velorix-batch: odd.vlx: Life 1000 is out of range, 100 is taken\n"
                               "velorix-batch: odd.vlx: MPipeline -1 is out of range, 0 is taken\n"
                               "velorix-batch: odd.vlx: PumpingHours 25 is out of range, 24 is taken\n";
    EXPECT_EQ(Batch("analyse odd.vlx village.vlx").Errors, Pinned);
    EXPECT_EQ(Batch("check odd.vlx").Errors, Pinned);
    const Run Short = Batch("analyse short.vlx");
    EXPECT_THAT(Short.Errors, HasSubstr("short.vlx: the file is shorter than 8326 bytes"));
    EXPECT_THAT(Short.Output, HasSubstr("\nshort.vlx"));

    const Run Foreign = Shell("velorix-batch analyse h\xF6he.vlx; velorix-batch analyse --jobs \xFF a");
    EXPECT_THAT(Foreign.Output, HasSubstr("\nh\uFFFDhe.vlx   not read\n"));
    EXPECT_THAT(Foreign.Errors,
                AllOf(HasSubstr("\"h\uFFFDhe.vlx\": No such"), HasSubstr("--jobs: Value \uFFFD")));
}

TEST_F(CommandTest, CheckTellsWhatASaveWouldTell)
{
    WriteExample("nameless.vlx", "kloofsig-village-main", {{"Project", " "}});
    WriteExample("endless.vlx", "kloofsig-village-main", {{"KsNew", "Infinity"}});
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
    for (const std::string Zone : {"EAST-14", "WEST+12"}) {
        const Run Days =
            Shell("export TZ=" + Zone + "; date +%F; velorix-batch import empty.json today.vlx; date +%F");
        const std::string Date = json::parse(Batch("export today.vlx").Output)["Date"];
        EXPECT_THAT("\n" + Days.Output, HasSubstr("\n" + Date + "\n"));
    }
}

} // namespace
} // namespace velorix
