// The commands of the tools as their users run them: roughness and convert.
#include "BatchTest.h"

namespace velorix {
namespace {

using nlohmann::json;
using testing::HasSubstr;

class ToolCommandsTest : public BatchTest {
protected:
    ToolCommandsTest() { WriteExample("village.vlx", "kloofsig-village-main"); }

    Run Roughness(const std::string& Readings, const std::string& Words = "") const
    {
        WriteFile("readings.json", Readings);
        return Batch("roughness village.vlx --readings readings.json " + Words);
    }
};

// Of 160 mm less two walls of 6.1 mm and 20 l/s. The second scenario takes the units of the
// first, whatever its own are, and has a gap.
TEST_F(ToolCommandsTest, RoughnessGoesOutAsListsOrAsATable)
{
    const std::string Readings = R"({"Scenarios": [
        {"Flow": 20, "FlowUnits": 3, "PressureUnits": 15, "Points": [[0, 1282.4, 2], [900, 1251.3, 30]]},
        {"Flow": 20, "Points": [[0, 1282.4, 2], [900, 1251.3, 30], [1820, 0, 43], [2540, 1239.4, 33]]}]})";
    const json Results = json::parse(Roughness(Readings, "--json -").Output);
    EXPECT_EQ(Results.size(), 11U);
    for (const auto& Each : Results.items()) {
        EXPECT_EQ(Each.value().size(), 8U) << Each.key();
        for (const json& Scenario : Each.value()) EXPECT_EQ(Scenario.size(), 4U) << Each.key();
        EXPECT_EQ(Each.value()[0][0], Each.value()[1][0]) << Each.key();
        EXPECT_EQ(Each.value()[7], json({0, 0, 0, 0})) << Each.key();
    }
    EXPECT_EQ(Results["StretchValid"][1], json({-1, 0, -1, 0}));
    EXPECT_NEAR(Results["AverageDiameter"][0][0], 0.1478, 1e-6);
    EXPECT_NEAR(Results["AverageVelocity"][0][0], 0.58286, 1e-5);

    const Run Shown = Roughness(Readings);
    EXPECT_EQ(Shown.Status, 0);
    EXPECT_EQ(Shown.Errors, "");
    for (const char* Each : {"Scenario 2: 0.020000001 m³/s\n"
                             "Calculated between              1 to 2      2 to 3      3 to 4",
                             "\nAverage diameter (mm)           147.80                  147.80\n"})
        EXPECT_THAT(Shown.Output, HasSubstr(Each));

    Roughness(Readings, "--json out.json");
    EXPECT_EQ(json::parse(ReadFile(Folder / "out.json")), Results);
    const json Other =
        json::parse(Roughness(R"({"CurrentScenario": 2, )" + Readings.substr(1), "--json -").Output);
    EXPECT_EQ(Other["AverageVelocity"][0][0], Other["AverageVelocity"][1][0]);
    EXPECT_NEAR(Other["AverageVelocity"][0][0], 582.86, 0.01); // the screen starts with m3/s
}

TEST_F(ToolCommandsTest, ReadingsThatCannotBeTakenAreToldByTheirPlace)
{
    const std::pair<const char*, const char*> Cases[] = {
        {"{", "Can't read \"readings.json\": the JSON can't be read"},
        {R"({"Scenarios": {}})", "Scenarios: a list is expected, not an object"},
        {R"({"Scenarios": [{}, 7]})", "Scenario 2: an object is expected, not 7"},
        {R"({"Scenarios": [{"Unit": 7}]})", "Scenario 1, Unit: there is no such field"},
        {R"({"Scenarios": [{"Flow": "7"}]})", "Scenario 1, Flow: a number is expected, not \"7\""},
        {R"({"Scenarios": [{"Flow": 7, "Flow": 8}]})", "Flow: the field is given twice"},
        {R"({"Scenarios": [{"FlowUnits": 13}]})", "Scenario 1, FlowUnits: 13 is outside 0 to 12"},
        {R"({"Scenarios": [{"PressureUnits": -1}]})", "PressureUnits: -1 is outside 0 to 16"},
        {R"({"Scenarios": [{"Points": [[1, 2, 3], [1, 2]]}]})",
         "Points, number 2: a point is a list of three"},
        {R"({"Scenarios": [{"Points": [[1, 2, null]]}]})",
         "Points, number 1: a number is expected, not null"},
        {R"({"Scenarios": [{"Points": [[], [], [], [], [], []]}]})", "longer than 5 entries"},
        {R"({"Scenarios": [{}, {}, {}, {}, {}, {}, {}, {}, {}]})", "longer than 8 entries"},
        {R"({"Scenarios": [[[[[[]]]]]]})", "nested deeper"},
        {R"({"CurrentScenario": 0})", "CurrentScenario: 0 is outside 1 to 8"},
    };
    for (const auto& [Readings, Reason] : Cases) {
        WriteFile("readings.json", Readings);
        ExpectRefused("roughness village.vlx --readings readings.json", {{"--json new", Reason}});
    }
    ExpectRefused("roughness",
                  {{"village.vlx --readings missing.json", "missing.json"},
                   {"village.vlx", "--readings"},
                   {"village.vlx --readings readings.json --json village.vlx", "is read by this command"},
                   {"village.vlx --readings readings.json --json readings.json", "is read by this command"}});

    Roughness(R"({"Scenarios": [{"Points": [[0, 1, 1], [899, 1, 1], [900, 1, 1]]}]})");
    const Run Beside = Batch("roughness - --readings readings.json <village.vlx");
    EXPECT_EQ(Beside.Errors,
              "velorix-batch: -: scenario 1, point 2: the profile has no node at length 899\n");
    EXPECT_EQ(Beside.Status, 0);
}

TEST_F(ToolCommandsTest, ConvertPrintsTheNumberAlone)
{
    const std::tuple<std::string, int, const char*> Cases[] = {
        {"Length 'meter (m)' 'inch (in)' 1", 0, "4.86854917234664\n"},
        {"Length 'meter (m)' 'kilometre (km)' -.5", 0, "-0.0005\n"},
        {"Length 'meter (m)' 'kilometre (km)' -inf", 2, ""},
        {"Length 'meter (m)' 'kilometre (km)' --x", 2, ""},
        {"Time 'hour (h)' 'minute (min)' ''", 2, ""},
        {"Pressure bar 'millimetres of water (mm)' 5", 1, ""}, // the list has a quote
        {"Temperature 'Kelvin (K)' 'Kelvin (K)' 1", 1, ""},
        {"Length 'meter (m)' -5", 1, ""},
    };
    for (const auto& [Words, Status, Output] : Cases) {
        const Run Done = Batch("convert " + Words);
        EXPECT_EQ(Done.Status, Status) << Words;
        EXPECT_EQ(Done.Output, Output) << Words;
        EXPECT_EQ(Done.Errors.empty(), Status == 0) << Words;
        EXPECT_EQ(Done.Errors.ends_with("converting the value.  Please ensure it is a valid number\n"),
                  Status == 2)
            << Words;
    }
}

} // namespace
} // namespace velorix
