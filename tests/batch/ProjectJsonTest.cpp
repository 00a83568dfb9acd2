// Projects to JSON and back, and what is refused.
#include "BatchTest.h"
#include "base/Failure.h"
#include "model/EveryEntry.h"

#include <limits>
#include <random>

namespace velorix {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// A record as a project file may hold it, filled by chance.
ProjectFields RandomRecord(std::mt19937& Chance)
{
    const auto Between = [&](int Least, int Most) {
        return std::uniform_int_distribution(Least, Most)(Chance);
    };
    // Any bits at all, but one NaN only: JSON has a word for it, and none for its bits.
    const auto AnySingle = [&] {
        const Single Value = Single::FromBits(static_cast<std::uint32_t>(Chance()));
        if (Between(0, 9) == 0)
            return Single(Between(0, 1) == 0 ? -0.0 : std::numeric_limits<float>::infinity());
        return Value == Value ? Value : Single(std::numeric_limits<float>::quiet_NaN());
    };
    ProjectFields Record;
    ForEachField(Record, [&](const FieldRule& Rule, auto& Field) {
        ForEachEntry(Field, [&](int, auto& Value) {
            if constexpr (requires { Value.Bytes; })
                for (char& Each : Value.Bytes) Each = static_cast<char>(Between(33, 255));
            else if constexpr (std::is_same_v<decltype(Value), Single&>)
                Value = AnySingle();
            else // every choice, by its text or its number
                Value = static_cast<std::int16_t>(Between(Rule.Allowed.Least, Rule.Allowed.Most));
        });
    });
    Record.Laying[14] = 0.0;
    return Record;
}

class ProjectJsonTest : public BatchTest {
protected:
    static std::string ReasonAgainst(const std::string& Text)
    {
        try {
            ProjectFromJson(Text);
        } catch (const Failure& Problem) {
            return Problem.what();
        }
        return "nothing";
    }
};

TEST_F(ProjectJsonTest, EveryBitOfARecordComesBack)
{
    std::mt19937 Chance{20050303};
    for (int Trial = 1; Trial <= 50; ++Trial) {
        ProjectFields Record = RandomRecord(Chance);
        (Trial % 2 == 0 ? Record.Elevation : Record.AccLength)[500] = UnusedNode; // still a row in use
        EXPECT_EQ(BytesOf(ProjectFromJson(ProjectToJson(Record))), BytesOf(Record)) << "trial " << Trial;
    }
}

// One field of each kind, as a person would look for it. The order of the keys must not matter to the values
// of the absent ones, which follow the units and the currency.
TEST_F(ProjectJsonTest, FieldsReadAsTypedAndAbsentOnesAreThoseOfANewProject)
{
    const std::string Text = ProjectToJson(ProjectFromJson(R"-({
        "Project": "  Rising main, \"6 m³/min\" ", "Life": 7, "Flowrate": 0.1, "Demand": [1.5, 0, 2],
        "Elevation": [10, 20, 999999], "AccLength": [0, 500.5, 999999], "NodeDesc": [2, "Isolating valve"],
        "SummerHour": [2, "Standard", 0], "FlowrateUnits": "ft³/s", "LiningType": "Cement mortar/Other",
        "PumpCurve": [[80, 0, 0], [70.5, 100, 60]], "Currency": "Dollar ($)", "Units": 1, "SystemType": "Pumping system"})-"));
    EXPECT_THAT(Text, StartsWith("{\n  \"SystemType\": \"Pumping system\",\n  \"Units\": \"US units\",\n"
                                 "  \"Currency\": \"Dollar ($)\",\n"));
    for (const char* Member :
         {R"("Project": "Rising main, \"6 m³/min\"")", R"("Flowrate": 0.1,)", R"("Demand": [1.5, 0, 2],)",
          R"("Elevation": [10, 20],)", R"("AccLength": [0, 500.5],)",
          R"("NodeDesc": ["Pumpstation", "Isolating valve"],)",
          R"("SummerHour": ["Peak", "Standard", "Off-peak", )", R"("VaryingDemand": "Fixed demand",)",
          R"("DemandUnits": "ft³/s",)", R"("HeadUnits": "ft",)",
          R"("PumpCurve": [[80, 0, 0], [70.5, 100, 60], [0, 0, 0], )", R"("WaterSales": 0.05,)"})
        EXPECT_THAT(Text, HasSubstr(Member));
}

TEST_F(ProjectJsonTest, RefusesWithKeyAndReason)
{
    const std::string Deep(3'000'000, '[');
    const std::string Long(1'000'000, 'x');
    const std::pair<std::string, const char*> Cases[] = {
        {R"({"Lfie": 30})", "Lfie: there is no such field"},
        {R"({"Life": 30.5})", "Life: a whole number is expected, not 30.5"},
        {R"({"Life": "many"})", "Life: a whole number is expected, not \"many\""},
        {R"({"LengthUnits": "yd"})", R"(LengthUnits: "yd" is none of "m", "km", "ft", "miles")"},
        {R"({"DemandUnits": ")" + Long + "\"}", "\"Million gal/day (EUR)\""},
        {R"({"NodeDesc": [0, ""]})", "NodeDesc: \"\" is none of \"Node\", "},
        {R"({"Flowrate": "many"})", "Flowrate: a number is expected, not \"many\""},
        {R"({"Project": 3})", "Project: a text is expected, not 3"},
        {R"({"Diameter": {"1": 2}})", "Diameter: a list is expected, not an object"},
        {R"({"PumpCurve": [[80, 0]]})", "PumpCurve: a point is a list of three: head, flow rate"},
        {R"({"PumpCurve": [[],[],[],[],[],[],[]]})", "PumpCurve: the list is longer than 6"},
        {R"({"Life": 18446744073709551615})", "Life: 18446744073709551615 is outside"},
        {R"({"StaffTime": [1,2,3,4,5,6,7,8,9]})", "StaffTime: the list is longer than 8"},
        {R"({"Project": ")" + std::string(81, 'x') + R"("})", "Project: the text is longer than 80"},
        {R"({"Designer": "Ω"})", "Designer: the text has characters that a project file can't hold"},
        {R"({"AccLength": [0, 1, 2]})", "AccLength: the list must have as many entries as Elevation, 2"},
        {R"({"Elevation": [1], "AccLength": [0]})", "Elevation: a profile needs 2 rows"},
        {R"({"Diameter": [1, 1, 1]})", "Diameter: the list is longer than that of Elevation, 2"},
        {R"({"Laying": [0,0,0,0,0,0,0,0,0,0,0,0,0,0.5]})", "Laying: entry 14 must be 0"},
        {R"({"Life": 20, "Life": 30})", "Life: the field is given twice"},
        {R"({"KsNew": 1e39})", "the JSON can't be read"},
        {"", "the JSON can't be read"},
        {"[1, 2]", "the file must hold one JSON object"},
        // Nothing that is huge is followed or printed.
        {R"({"Life": )" + Deep + std::string(Deep.size(), ']') + "}", "lists are nested deeper"},
        {R"({"Life": ")" + Long + "\"}", "Life: a whole number is expected, not \"xxx"},
        {R"({")" + Long + R"(": 1})", "xxx...: there is no such field"},
        {R"({"Life": ")" + Long, "the JSON can't be read"},
    };
    for (const auto& [Text, Reason] : Cases) {
        const std::string Told = ReasonAgainst(Text);
        EXPECT_THAT(Told, HasSubstr(Reason));
        EXPECT_LT(Told.size(), 300U);
    }
}

// From the layout table of the file format.
TEST_F(ProjectJsonTest, WholeNumbersHaveTheirRanges)
{
    const std::tuple<std::string, int, int> Ranges[] = {
        // clang-format off
        {"SystemType", 0, 1}, {"Units", 0, 1}, {"Currency", 0, 1}, {"FlowrateUnits", 0, 12}, {"VaryingDemand", 0, 1},
        {"Life", 2, 100}, {"BaseYear", 1950, 2500}, {"SupplyStart", 1950, 2500}, {"DemandUnits", 0, 12},
        {"TRWLUnits", 0, 3}, {"BRWLUnits", 0, 3}, {"NodeNr", 1, 500}, {"NodeDesc", 0, 20},
        {"WallThicknessUnits", 0, 3}, {"LiningType", 0, 1}, {"LiningThicknessUnits", 0, 3}, {"KsNewUnits", 0, 3},
        {"KsOldUnits", 0, 3}, {"DiameterUnits", 0, 3}, {"ElevationUnits", 0, 3}, {"LengthUnits", 0, 3},
        {"MMechanical", 0, 1000}, {"MElectrical", 0, 1000}, {"MPipeline", 0, 2000}, {"WaterSalesUnits", 0, 3},
        {"HeadUnits", 0, 1}, {"FlowUnits", 0, 3}, {"PumpDetails", 0, 1}, {"Summer", 0, 12}, {"SummerHour", 0, 2},
        {"WinterHour", 0, 2}, {"PumpOperatingFlowrateUnits", 0, 9}, {"PumpingHours", 1, 24}};
    // clang-format on
    for (const auto& [Field, Least, Most] : Ranges) {
        const bool Listed = Field.starts_with("Node") || Field.ends_with("Hour");
        const std::string Range = std::to_string(Least) + " to " + std::to_string(Most);
        for (const int Value : {Least - 1, Least, Most, Most + 1}) {
            const std::string Text = std::to_string(Value);
            EXPECT_EQ(ReasonAgainst("{\"" + Field + "\": " + (Listed ? "[" + Text + "]" : Text) + "}"),
                      Value >= Least && Value <= Most ? "nothing"
                                                      : Field + ": " + Text + " is outside " + Range);
        }
    }
}

TEST_F(ProjectJsonTest, EdgesAreTaken)
{
    ProjectFields Record = ProjectFromJson(R"({"Life": 2})");
    Record.Project.Bytes.fill('\xE9'); // longer in UTF-8 than the field is wide
    Record.Elevation.Fill(UnusedNode);
    Record.AccLength.Fill(UnusedNode);
    EXPECT_EQ(BytesOf(ProjectFromJson(ProjectToJson(Record))), BytesOf(Record));

    Record.FlowrateUnits = 13; // told as it is, but not taken back
    EXPECT_THAT(ReasonAgainst(ProjectToJson(Record)), HasSubstr("FlowrateUnits: 13 is outside 0 to 12"));
}

} // namespace
} // namespace velorix
