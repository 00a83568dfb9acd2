// Projects to JSON and back, and what is refused.
#include "BatchTest.h"
#include "base/Failure.h"

#include <gmock/gmock.h>
#include <limits>
#include <random>

namespace velorix {
namespace {

using nlohmann::json;
using testing::HasSubstr;

// A record with every field filled by chance, as a project file may hold it.
class RandomRecord {
public:
    explicit RandomRecord(unsigned Seed)
        : Chance(Seed)
    {
    }

    ProjectFields Make()
    {
        ProjectFields Record;
#define VELORIX_FIELD(Name, Offset, Count) Fill(Record.Name);
        VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
        Record.Life = static_cast<std::int16_t>(Between(2, 100));
        Record.BaseYear = static_cast<std::int16_t>(Between(1950, 2500));
        Record.SupplyStart = static_cast<std::int16_t>(Between(1950, 2500));
        Record.Laying[14] = 0.0;
        Record.PumpingHours = static_cast<std::int16_t>(Between(1, 24));
        ClearRowsPast(Between(2, 500), Record);
        return Record;
    }

private:
    int Between(int Least, int Most)
    {
        return std::uniform_int_distribution(Least, Most)(Chance);
    }

    // 0 and 1 are in the range of every list and flag.
    void Fill(std::int16_t& Value)
    {
        Value = static_cast<std::int16_t>(Between(0, 1));
    }

    // Any bits at all, but one NaN only: JSON has a word for it, and none for its bits.
    void Fill(Single& Value)
    {
        Value = Single::FromBits(static_cast<std::uint32_t>(Chance()));
        if (Value != Value) Value = std::numeric_limits<float>::quiet_NaN();
        if (Between(0, 9) == 0) Value = Between(0, 1) == 0 ? -0.0 : std::numeric_limits<float>::infinity();
    }

    template <int Width>
    void Fill(FixedText<Width>& Value)
    {
        Value.Bytes.fill(' ');
        for (int Index = Between(0, Width) - 1; Index >= 0; --Index)
            Value.Bytes[static_cast<std::size_t>(Index)] = static_cast<char>(Between(33, 255));
    }

    template <typename T, int Count>
    void Fill(Array1<T, Count>& Values)
    {
        for (T& Each : Values) Fill(Each);
    }

    // What a commit leaves in the rows that the profile doesn't use.
    static void ClearRowsPast(int Rows, ProjectFields& Record)
    {
        for (int Row = 1; Row <= 500; ++Row) Record.NodeNr[Row] = static_cast<std::int16_t>(Row);
        for (int Row = Rows + 1; Row <= 500; ++Row) {
            Record.Elevation[Row] = Record.AccLength[Row] = UnusedNode;
            for (auto* List :
                 {&Record.Diameter, &Record.PipeCost, &Record.SecondaryLoss, &Record.WallThickness})
                (*List)[Row] = 0.0;
            Record.NodeDesc[Row] = 0;
        }
    }

    std::mt19937 Chance;
};

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
    for (unsigned Seed = 1; Seed <= 50; ++Seed) {
        const ProjectFields Record = RandomRecord(Seed).Make();
        const std::string Text = ProjectToJson(Record);
        EXPECT_EQ(BytesOf(ProjectFromJson(Text)), BytesOf(Record)) << "seed " << Seed;
        EXPECT_NO_THROW(json::parse(Text));
    }
}

TEST_F(ProjectJsonTest, ProfileWithoutAnyNodeComesBack)
{
    ProjectFields Record = ProjectFromJson("{}");
    Record.Elevation.Fill(UnusedNode);
    Record.AccLength.Fill(UnusedNode);
    EXPECT_EQ(BytesOf(ProjectFromJson(ProjectToJson(Record))), BytesOf(Record));
}

// One field of each kind, as a person would look for it.
TEST_F(ProjectJsonTest, FieldsReadAsTyped)
{
    const json Project = json::parse(ProjectToJson(ProjectFromJson(R"({
        "SystemType": 1, "Project": "  Rising main, 6 m³/min ", "Flowrate": 0.1, "Demand": [1.5, 0, 2],
        "Elevation": [10, 20, 999999], "AccLength": [0, 500.5, 999999], "NodeDesc": [2, 3],
        "PumpCurve": [[80, 0, 0], [70.5, 100, 60]], "WinterHour": [2, 1]})")));
    EXPECT_EQ(Project["Project"], "Rising main, 6 m³/min");
    EXPECT_EQ(Project["Flowrate"].dump(), "0.1");
    EXPECT_EQ(Project["Demand"], json({1.5, 0, 2}));
    EXPECT_EQ(Project["Elevation"], json({10, 20}));
    EXPECT_EQ(Project["AccLength"], json({0, 500.5}));
    EXPECT_EQ(Project["NodeDesc"], json({2, 3}));
    EXPECT_EQ(Project["PumpCurve"].dump(), "[[80,0,0],[70.5,100,60],[0,0,0],[0,0,0],[0,0,0],[0,0,0]]");
    EXPECT_EQ(Project["WinterHour"].size(), 24U);
    EXPECT_EQ(Project["WinterHour"][0], 2);
}

TEST_F(ProjectJsonTest, AbsentFieldsAreThoseOfANewProjectOfItsUnitsAndCurrency)
{
    const json Metric = json::parse(ProjectToJson(ProjectFromJson("{}")));
    EXPECT_EQ(Metric["Life"], 30);
    EXPECT_EQ(Metric["LengthUnits"], 0);
    EXPECT_EQ(Metric["WaterSales"], 2);
    // The order of the keys must not matter.
    const json US = json::parse(ProjectToJson(ProjectFromJson(R"({"Life": 7, "Currency": 1, "Units": 1})")));
    EXPECT_EQ(US["Life"], 7);
    EXPECT_EQ(US["LengthUnits"], 2);
    EXPECT_EQ(US["WaterSales"].dump(), "0.05");
}

TEST_F(ProjectJsonTest, RefusesWithKeyAndReason)
{
    const std::string LongName(81, 'x');
    const std::pair<std::string, std::vector<const char*>> Cases[] = {
        {R"({"Lfie": 30})", {"Lfie", "no such field"}},
        {R"({"Life": "30"})", {"Life", "whole number", "\"30\""}},
        {R"({"Life": 30.5})", {"Life", "whole number", "30.5"}},
        {R"({"Flowrate": true})", {"Flowrate", "number", "true"}},
        {R"({"Flowrate": "many"})", {"Flowrate", "number", "many"}},
        {R"({"Project": 3})", {"Project", "text", "3"}},
        {R"({"Laying": 3})", {"Laying", "list", "3"}},
        {R"({"PumpCurve": [[80, 0]]})", {"PumpCurve", "head, flow rate and efficiency"}},
        {R"({"PumpCurve": [[1,1,1],[1,1,1],[1,1,1],[1,1,1],[1,1,1],[1,1,1],[1,1,1]]})", {"PumpCurve", "6"}},
        {R"({"Life": 1})", {"Life", "outside 2 to 100"}},
        {R"({"Life": 101})", {"Life", "outside 2 to 100"}},
        {R"({"Life": 18446744073709551615})", {"Life", "outside"}},
        {R"({"FlowrateUnits": 13})", {"FlowrateUnits", "outside 0 to 12"}},
        {R"({"SummerHour": [0, 3]})", {"SummerHour", "outside 0 to 2"}},
        {R"({"StaffTime": [1,2,3,4,5,6,7,8,9]})", {"StaffTime", "longer than 8"}},
        {R"({"Project": ")" + LongName + R"("})", {"Project", "longer than 80"}},
        {R"({"Designer": "Ω"})", {"Designer", "can't hold"}},
        {R"({"Elevation": [1, 2, 3], "AccLength": [0, 1]})", {"AccLength", "Elevation, 3"}},
        {R"({"Elevation": [1, 2], "AccLength": [0, 1], "Diameter": [1, 1, 1]})", {"Diameter", "longer", "2"}},
        {R"({"KsNew": 1e39})", {"can't be read"}},
        {R"({"Life": 30,})", {"can't be read", "line 1"}},
        {"", {"can't be read"}},
        {"[1, 2]", {"one JSON object"}},
        {R"({"Life": 20, "Life": 30})", {"Life", "twice"}},
        {R"({"Laying": [0,0,0,0,0,0,0,0,0,0,0,0,0,0.5]})", {"Laying", "entry 14"}},
        {R"({"Elevation": 3, "AccLength": [0, 1]})", {"Elevation", "a list is expected, not 3"}},
        {R"({"Diameter": {"1": 2}})", {"Diameter", "a list is expected, not an object"}},
        {R"({"Elevation": [1], "AccLength": [0]})", {"Elevation", "2 rows or more"}},
        {R"({"Elevation": [], "AccLength": []})", {"Elevation", "2 rows or more"}},
        {R"({"AccLength": [0, 1, 2]})", {"AccLength", "Elevation, 2"}},
        {R"({"Diameter": [1, 1, 1]})", {"Diameter", "longer", "2"}},
    };
    for (const auto& [Text, Parts] : Cases)
        for (const char* Part : Parts) EXPECT_THAT(ReasonAgainst(Text), HasSubstr(Part)) << Text;
}

TEST_F(ProjectJsonTest, NothingThatIsHugeIsPrintedOrFollowed)
{
    const std::string Deep(3'000'000, '['), Long(1'000'000, 'x');
    const std::pair<std::string, const char*> Cases[] = {
        {R"({"Life": )" + Deep + std::string(Deep.size(), ']') + "}", "nested deeper"},
        {R"({"Life": )" + Deep, "nested deeper"},
        {R"({"Life": ")" + Long + "\"}", "Life: a whole number is expected, not \"xxx"},
        {R"({")" + Long + R"(": 1})", "no such field"},
        {R"({"Life": ")" + Long, "can't be read"},
    };
    for (const auto& [Text, Part] : Cases) {
        const std::string Reason = ReasonAgainst(Text);
        EXPECT_THAT(Reason, HasSubstr(Part));
        EXPECT_LT(Reason.size(), 300U);
    }
}

TEST_F(ProjectJsonTest, ForeignValuesAreToldButNotTakenBack)
{
    ProjectFields Record = ProjectFromJson("{}");
    Record.FlowrateUnits = 13;
    const std::string Text = ProjectToJson(Record);
    EXPECT_EQ(json::parse(Text)["FlowrateUnits"], 13);
    EXPECT_THAT(ReasonAgainst(Text), HasSubstr("FlowrateUnits: 13 is outside 0 to 12"));
}

// A text of the field's full width in characters is longer in UTF-8, and still fits.
TEST_F(ProjectJsonTest, LimitsThemselvesAreTaken)
{
    std::string Name;
    for (int Count = 0; Count < 80; ++Count) Name += "é";
    EXPECT_EQ(ReasonAgainst(json{{"Project", Name}, {"Life", 100}, {"BaseYear", 1950}}.dump()), "nothing");
    EXPECT_EQ(ReasonAgainst(R"({"Laying": [1,2,3,4,5,6,7,8,9,10,11,12,13,0], "Diameter": [400, 400]})"),
              "nothing");
    EXPECT_EQ(double(ProjectFromJson(R"({"KsNew": 18000000000000000000})").KsNew), double(Single(1.8e19)));
}

} // namespace
} // namespace velorix
