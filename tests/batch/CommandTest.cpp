// The program velorix-batch as its users run it: words in, files, texts and exit statuses out.
#include "BatchTest.h"

#include <chrono>
#include <gmock/gmock.h>
#include <iterator>
#include <set>
#include <sstream>

namespace velorix {
namespace {

using nlohmann::json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* NoDutyPoint = "The pump curve does not intersect the system curve for year 1";

std::set<std::string> Words(const std::string& Text)
{
    std::istringstream Source(Text);
    return {std::istream_iterator<std::string>(Source), {}};
}

class CommandTest : public BatchTest {
protected:
    // A gravity main of 18 rows and 25 years, three of construction before them.
    void WriteVillage(const std::string& Name) const
    {
        json Project = Example("kloofsig-village-main");
        Project["SupplyStart"] = 2029;
        WriteProject(Name, Project);
    }

    void WriteRidge(const std::string& Name) const { WriteProject(Name, Example("brandkop-regional-main")); }

    // Pumps that can't lift the water to the end reservoir.
    void WriteTooHigh(const std::string& Name) const
    {
        json Project = Example("hoekfontein-pumping-main");
        Project["BRWL"] = 1700;
        WriteProject(Name, Project);
    }

    json ResultsOf(const std::string& Words) const { return json::parse(Batch("analyse " + Words).Output); }

    std::vector<std::string> Lines(const std::string& Name) const
    {
        std::istringstream Text(ReadFile(Folder / Name));
        std::vector<std::string> Result;
        for (std::string Line; std::getline(Text, Line);) Result.push_back(Line);
        return Result;
    }
};

TEST_F(CommandTest, ExitStatusTellsTheWorstThatHappened)
{
    WriteVillage("stands.vlx");
    WriteTooHigh("fails.vlx");
    EXPECT_EQ(Batch("analyse stands.vlx").Status, 0);
    EXPECT_EQ(Batch("analyse fails.vlx stands.vlx").Status, 2);
    EXPECT_EQ(Batch("analyse missing.vlx fails.vlx stands.vlx").Status, 1);
    EXPECT_EQ(Batch("analyse stands.vlx --json no/such/folder.json").Status, 1);
    for (const char* Wrong :
         {"", "analyse", "analyze stands.vlx", "analyse --jobs 0 stands.vlx", "analyse --jsn - stands.vlx",
          "export", "export stands.vlx stands.vlx", "import stands.json"}) {
        const Run Usage = Batch(Wrong);
        EXPECT_EQ(Usage.Status, 1) << Wrong;
        EXPECT_THAT(Usage.Output, IsEmpty()) << Wrong;
        EXPECT_THAT(Usage.Errors, Not(IsEmpty())) << Wrong;
    }
}

TEST_F(CommandTest, HelpAndVersionGoToStandardOutput)
{
    EXPECT_EQ(Batch("--version").Output, "velorix-batch " VELORIX_VERSION "\n");
    const Run Help = Batch("--help");
    EXPECT_EQ(Help.Status, 0);
    EXPECT_THAT(Help.Output, AllOf(HasSubstr("analyse"), HasSubstr("export"), HasSubstr("import")));
}

TEST_F(CommandTest, TableShowsFiguresReasonsAndMessages)
{
    WriteRidge("ridge.vlx");
    WriteTooHigh("too-high.vlx");
    const Run Table = Batch("analyse ridge.vlx too-high.vlx missing.vlx");
    EXPECT_THAT(Table.Output, StartsWith("File "));
    EXPECT_THAT(Table.Output,
                testing::ContainsRegex("ridge.vlx +gravity +40 +R[0-9,]+ +R[0-9,]+ +[0-9.]+ %"));
    EXPECT_THAT(Table.Output, HasSubstr("\n    A local high point in the pipeline profile"));
    EXPECT_THAT(Table.Output, testing::ContainsRegex("too-high.vlx +pumping +30 +did not stand"));
    EXPECT_THAT(Table.Output, HasSubstr(NoDutyPoint));
    EXPECT_THAT(Table.Output, testing::ContainsRegex("missing.vlx +not read"));
    EXPECT_EQ(Table.Errors, "velorix-batch: Can't read \"missing.vlx\": No such file or directory\n");
}

TEST_F(CommandTest, ColumnsAlignByCharacters)
{
    WriteTooHigh("höhe.vlx");
    WriteTooHigh("hoch.vlx");
    const std::string Table = Batch("analyse höhe.vlx hoch.vlx").Output;
    EXPECT_THAT(Table, AllOf(HasSubstr("\nhöhe.vlx   pumping"), HasSubstr("\nhoch.vlx   pumping")));
}

TEST_F(CommandTest, JsonOfOneFileHoldsEveryResult)
{
    WriteVillage("village.vlx");
    json Results = ResultsOf("village.vlx --json -"); // a key that is missing would be added as null

    constexpr std::size_t Life = 25, Building = 3, Rows = 18;
    const std::pair<std::size_t, const char*> Lists[] = {
        {Life, "Flow KsYear DemandFlow Shortage PumpingHours HoursOffpeakS HoursStandardS HoursPeakS"},
        {Life, "HoursOffpeakW HoursStandardW HoursPeakW Efficiency PumpHead PumpFlow PumpEfficiencyByYear"},
        {Life,
         "IncomeSeries MaintPipeline MaintMechanical MaintElectrical MaintTotal OperationalCost EnergyCost"},
        {Building, "CapitalSeries"},
        {Building + Life, "CostSeries"},
        {Rows, "InternalDiameter SectionLength ExcavationCost BeddingCost BlanketCost BackfillCost "
               "PipeLayingCost"}};
    const std::pair<std::size_t, const char*> Tables[] = {{Rows, "Lambda FrictionLoss SecondaryHeadLoss"},
                                                          {Rows + 1, "Gradeline"}};
    std::set<std::string> Keys =
        Words("Analysed AnalysisAborted HydraulicsFailed HighPointAdjusted NodeCount ElevationFactor "
              "UpstreamLevel DownstreamLevel LiningLoss KsNewM KsOldM DemandFactor WaterSalesFactor "
              "PipeSupplyCost LayingCost EscalationBase EscalationAmount ConsultingFees SupervisionCost "
              "TotalCapitalCost NpvCost NpvIncome Irr");
    for (const std::string& Key : Keys) EXPECT_TRUE(Results[Key].is_number()) << Key;
    for (const auto& [Length, Names] : Lists)
        for (const std::string& Name : Words(Names)) {
            EXPECT_EQ(Results[Name].size(), Length) << Name;
            Keys.insert(Name);
        }
    for (const auto& [Points, Names] : Tables)
        for (const std::string& Name : Words(Names)) {
            EXPECT_EQ(Results[Name].size(), Life) << Name;
            for (const json& Year : Results[Name]) EXPECT_EQ(Year.size(), Points) << Name;
            Keys.insert(Name);
        }
    Keys.insert("messages");
    for (const auto& Member : Results.items())
        EXPECT_EQ(Keys.count(Member.key()), 1U) << Member.key() << " is no key of the results";
    EXPECT_EQ(Results.size(), Keys.size());
}

TEST_F(CommandTest, OutputThatCannotBeWrittenIsAnError)
{
    WriteVillage("village.vlx");
    for (const char* Words :
         {"analyse village.vlx >/dev/full", "analyse village.vlx --json - >/dev/full",
          "analyse village.vlx --json /dev/full", "export village.vlx >/dev/full", "--version >/dev/full"}) {
        const Run Full = Batch(Words);
        EXPECT_EQ(Full.Status, 1) << Words;
        EXPECT_THAT(Full.Errors, HasSubstr("No space left on device")) << Words;
    }
}

TEST_F(CommandTest, MessagesOfAnAnalysisAreInItsJson)
{
    WriteTooHigh("too-high.vlx");
    const json Results = ResultsOf("too-high.vlx --json -");
    EXPECT_EQ(Results["Analysed"], 0);
    EXPECT_EQ(Results["AnalysisAborted"], -1);
    EXPECT_EQ(Results["messages"], json::array({{{"title", "Error"}, {"text", NoDutyPoint}}}));
}

// The first file has more rows and a rate of return, and would leave both behind in a session that goes on.
TEST_F(CommandTest, ABadFileHarmsNoOther)
{
    WriteRidge("ridge.vlx");
    WriteVillage("village.vlx");
    for (const char* Jobs : {"--jobs 1", "--jobs 3"}) {
        const Run Together = Batch("analyse ridge.vlx missing.vlx village.vlx --json - " + std::string(Jobs));
        EXPECT_EQ(Together.Status, 1);
        EXPECT_THAT(Together.Errors, AllOf(HasSubstr("missing.vlx"), HasSubstr("No such file")));
        const json Results = json::parse(Together.Output);
        ASSERT_EQ(Results.size(), 3U);
        EXPECT_EQ(Results[0], ResultsOf("ridge.vlx --json -"));
        EXPECT_TRUE(Results[1].is_null());
        EXPECT_EQ(Results[2], ResultsOf("village.vlx --json -"));
    }
}

TEST_F(CommandTest, JsonGoesToItsFileAndNothingToStandardOutput)
{
    WriteVillage("village.vlx");
    WriteFile("results.json", std::string(1'000'000, 'x'));
    EXPECT_EQ(Batch("analyse village.vlx --json results.json").Output, "");
    EXPECT_EQ(json::parse(ReadFile(Folder / "results.json")), ResultsOf("village.vlx --json -"));

    EXPECT_EQ(Batch("analyse village.vlx --json /dev/null").Status, 0);
    EXPECT_EQ(Batch("analyse missing.vlx --json kept.json").Status, 1);
    EXPECT_EQ(Batch("analyse missing.vlx --json -").Output, "");
    EXPECT_FALSE(std::filesystem::exists(Folder / "kept.json"));
}

TEST_F(CommandTest, CsvTablesHoldTheSameNumbersByCalendarYear)
{
    WriteVillage("village.vlx");
    const json Results = ResultsOf("village.vlx --json - --csv tables/of/today");
    std::set<std::string> Names;
    for (const auto& Each : std::filesystem::directory_iterator(Folder / "tables/of/today"))
        Names.insert(Each.path().filename().string());
    EXPECT_THAT(Names, ElementsAre("village-FrictionLoss.csv", "village-Gradeline.csv", "village-Lambda.csv",
                                   "village-SecondaryHeadLoss.csv", "village-money.csv", "village-rows.csv",
                                   "village-years.csv"));

    const auto Years = Lines("tables/of/today/village-years.csv");
    ASSERT_EQ(Years.size(), 26U);
    EXPECT_THAT(Years[0], StartsWith("Year,Flow,KsYear,"));
    EXPECT_THAT(Years[25], StartsWith("2053," + Results["Flow"][24].dump() + ","));

    const auto Money = Lines("tables/of/today/village-money.csv");
    ASSERT_EQ(Money.size(), 29U);
    EXPECT_EQ(Money[0], "Year,CapitalSeries,CostSeries");
    EXPECT_THAT(Money[3], StartsWith("2028,"));
    EXPECT_THAT(Money[4], StartsWith("2029,,")); // construction is over

    const auto Gradeline = Lines("tables/of/today/village-Gradeline.csv");
    ASSERT_EQ(Gradeline.size(), 26U);
    EXPECT_THAT(Gradeline[0], StartsWith("Year,0,1,2,"));
    EXPECT_THAT(Gradeline[1], StartsWith("2029,1284.6,"));
    EXPECT_THAT(Lines("tables/of/today/village-rows.csv").at(18), StartsWith("18,"));
}

TEST_F(CommandTest, CsvOfTwoFilesOfOneNameIsRefusedBeforeAnythingIsWritten)
{
    WriteVillage("village.vlx");
    std::filesystem::create_directory(Folder / "other");
    WriteVillage("other/village.vlx");
    const Run Refused = Batch("analyse village.vlx other/village.vlx --csv tables");
    EXPECT_EQ(Refused.Status, 1);
    EXPECT_THAT(Refused.Errors, HasSubstr("\"village\""));
    EXPECT_FALSE(std::filesystem::exists(Folder / "tables"));
}

TEST_F(CommandTest, ExportAndImportGiveTheFileBack)
{
    WriteRidge("ridge.vlx");
    WriteFile("ridge.json", Batch("export ridge.vlx").Output);
    EXPECT_EQ(Batch("import ridge.json copy.vlx").Status, 0);
    EXPECT_EQ(ReadFile(Folder / "copy.vlx"), ReadFile(Folder / "ridge.vlx"));
    EXPECT_EQ(Batch("export ridge.vlx | " VELORIX_BATCH " import /dev/stdin piped.vlx").Status, 0);
    EXPECT_EQ(ReadFile(Folder / "piped.vlx"), ReadFile(Folder / "ridge.vlx"));

    const Run Missing = Batch("export missing.vlx");
    EXPECT_EQ(Missing.Status, 1);
    EXPECT_EQ(Missing.Output, "");
    EXPECT_THAT(Missing.Errors, AllOf(HasSubstr("missing.vlx"), HasSubstr("No such file")));
}

// Two time zones in which it is never the same day.
TEST_F(CommandTest, AnAbsentDateIsTodayHere)
{
    using namespace std::chrono;
    const auto DayAt = [](hours East) {
        const year_month_day Day(floor<days>(system_clock::now() + East));
        return ShortDate({int(Day.year()), int(unsigned(Day.month())), int(unsigned(Day.day()))});
    };
    WriteFile("empty.json", "{}");
    for (const auto& [Zone, East] : {std::pair("EAST-14", 14h), std::pair("WEST+12", -12h)}) {
        const std::string Before = DayAt(East);
        ::setenv("TZ", Zone, 1);
        Batch("import empty.json today.vlx");
        ::unsetenv("TZ");
        EXPECT_THAT(json::parse(Batch("export today.vlx").Output)["Date"],
                    testing::AnyOf(Before, DayAt(East))); // either side of a midnight
    }
}

TEST_F(CommandTest, ARefusedImportWritesNothing)
{
    WriteFile("wrong.json", R"({"Project": "Spur", "Life": 1000})");
    WriteFile("kept.vlx", "as it was");
    for (const char* Target : {"kept.vlx", "new.vlx"}) {
        const Run Refused = Batch("import wrong.json " + std::string(Target));
        EXPECT_EQ(Refused.Status, 1);
        EXPECT_THAT(Refused.Errors,
                    AllOf(HasSubstr("wrong.json"), HasSubstr("Life: 1000 is outside 2 to 100")));
    }
    EXPECT_EQ(ReadFile(Folder / "kept.vlx"), "as it was");
    EXPECT_FALSE(std::filesystem::exists(Folder / "new.vlx"));
}

} // namespace
} // namespace velorix
