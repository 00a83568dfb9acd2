// Fields to JSON and back, over the one list of fields.
#include "batch/ProjectJson.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "batch/JsonText.h"
#include "project/Session.h"
#include "project/WorkingSet.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>

namespace velorix {
namespace {

// Numbers are read as 32-bit floats from their text, so that they round once.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

constexpr int PumpValues = 3; // of one point of the pump curve: head, flow rate, efficiency

// --- to JSON ---

// Rows up to the last one that isn't marked unused. A new project has the first two in use, so these are told
// whatever they hold.
int UsedRows(const ProjectFields& Record)
{
    int Row = Record.Elevation.LastIndex;
    while (Row > 2 && Record.Elevation[Row] == UnusedNode && Record.AccLength[Row] == UnusedNode) --Row;
    return Row;
}

int UsedYears(const ProjectFields& Record)
{
    int Year = Record.Demand.LastIndex;
    while (Year > 0 && Record.Demand[Year].Bits() == 0) --Year;
    return Year;
}

std::string ValueText(std::int16_t Value)
{
    return std::to_string(Value);
}

std::string ValueText(Single Value)
{
    return JsonNumber(Value, NotFinite::Text);
}

template <typename T, int Count>
std::string ListText(const Array1<T, Count>& Values, int Used)
{
    std::vector<std::string> Entries;
    for (int Index = 1; Index <= Used; ++Index) Entries.push_back(ValueText(Values[Index]));
    return JsonList(Entries);
}

std::string PumpCurveText(const Array1<Single, 18>& Curve)
{
    std::vector<std::string> Points;
    for (int First = 1; First <= Curve.LastIndex; First += PumpValues)
        Points.push_back(
            JsonList({ValueText(Curve[First]), ValueText(Curve[First + 1]), ValueText(Curve[First + 2])}));
    return JsonList(Points);
}

template <typename T>
std::string FieldText(const ProjectFields&, const T& Value)
{
    return ValueText(Value);
}

template <int Width>
std::string FieldText(const ProjectFields&, const FixedText<Width>& Value)
{
    return JsonString(TextOf(Value));
}

template <typename T, int Count>
std::string FieldText(const ProjectFields& Record, const Array1<T, Count>& Values)
{
    if constexpr (Count == 18)
        return PumpCurveText(Values);
    else if constexpr (Count == 500)
        return ListText(Values, UsedRows(Record));
    else if constexpr (Count == 100)
        return ListText(Values, UsedYears(Record));
    else
        return ListText(Values, Count);
}

// --- from JSON ---

[[noreturn]] void Refuse(const std::string& Key, const std::string& Reason)
{
    throw Failure(Key + ": " + Reason);
}

struct Range {
    int Least = std::numeric_limits<std::int16_t>::min();
    int Most = std::numeric_limits<std::int16_t>::max();
};

Range RangeOf(const std::string& Key)
{
    static const std::map<std::string, Range> Ranges = {
        {"SystemType", {0, 1}},      {"Units", {0, 1}},
        {"Currency", {0, 1}},        {"FlowrateUnits", {0, 12}},
        {"VaryingDemand", {0, 1}},   {"Life", {2, 100}},
        {"BaseYear", {1950, 2500}},  {"SupplyStart", {1950, 2500}},
        {"DemandUnits", {0, 12}},    {"TRWLUnits", {0, 3}},
        {"BRWLUnits", {0, 3}},       {"NodeNr", {1, 500}},
        {"NodeDesc", {0, 20}},       {"WallThicknessUnits", {0, 3}},
        {"LiningType", {0, 1}},      {"LiningThicknessUnits", {0, 3}},
        {"KsNewUnits", {0, 3}},      {"KsOldUnits", {0, 3}},
        {"DiameterUnits", {0, 3}},   {"ElevationUnits", {0, 3}},
        {"LengthUnits", {0, 3}},     {"MMechanical", {0, 1000}},
        {"MElectrical", {0, 1000}},  {"MPipeline", {0, 2000}},
        {"WaterSalesUnits", {0, 3}}, {"HeadUnits", {0, 1}},
        {"FlowUnits", {0, 3}},       {"PumpDetails", {0, 1}},
        {"Summer", {0, 12}},         {"SummerHour", {0, 2}},
        {"WinterHour", {0, 2}},      {"PumpOperatingFlowrateUnits", {0, 9}},
        {"PumpingHours", {1, 24}},
    };
    const auto Found = Ranges.find(Key);
    return Found == Ranges.end() ? Range() : Found->second;
}

void TakeValue(const std::string& Key, const Json& Value, std::int16_t& Target)
{
    if (!Value.is_number_integer()) Refuse(Key, "a whole number is expected, not " + Value.dump());
    const Range Allowed = RangeOf(Key);
    const std::int64_t Number = Value.get<std::int64_t>();
    if (Number < Allowed.Least || Number > Allowed.Most)
        Refuse(Key, Value.dump() + " is outside " + std::to_string(Allowed.Least) + " to " +
                        std::to_string(Allowed.Most));
    Target = static_cast<std::int16_t>(Number);
}

void TakeValue(const std::string& Key, const Json& Value, Single& Target)
{
    static const std::map<std::string, float> Words = {
        {"NaN", std::numeric_limits<float>::quiet_NaN()},
        {"Infinity", std::numeric_limits<float>::infinity()},
        {"-Infinity", -std::numeric_limits<float>::infinity()}};
    if (Value.is_number()) {
        Target = Value.get<double>();
        return;
    }
    const auto Word = Value.is_string() ? Words.find(Value.get<std::string>()) : Words.end();
    if (Word == Words.end()) Refuse(Key, "a number is expected, not " + Value.dump());
    Target = Word->second;
}

template <int Width>
void TakeValue(const std::string& Key, const Json& Value, FixedText<Width>& Target)
{
    if (!Value.is_string()) Refuse(Key, "a text is expected, not " + Value.dump());
    const std::string Text = Value.get<std::string>();
    const std::string Bytes = ToCodePage(Text);
    if (FromCodePage(Bytes) != Text) Refuse(Key, "the text has characters that a project file can't hold");
    if (Bytes.size() > Width) Refuse(Key, "the text is longer than " + std::to_string(Width) + " characters");
    SetText(Target, Text);
}

template <typename T, int Count>
void TakeList(const std::string& Key, const Json& Values, Array1<T, Count>& Target)
{
    if (!Values.is_array()) Refuse(Key, "a list is expected, not " + Values.dump());
    if (Values.size() > Count) Refuse(Key, "the list is longer than " + std::to_string(Count) + " entries");
    int Index = 0;
    for (const Json& Each : Values) {
        ++Index;
        TakeValue(Key, Each, Target[Index]);
    }
}

void TakePumpCurve(const std::string& Key, const Json& Points, Array1<Single, 18>& Target)
{
    if (!Points.is_array()) Refuse(Key, "a list is expected, not " + Points.dump());
    if (Points.size() > Target.Count / PumpValues) Refuse(Key, "the list is longer than 6 points");
    int Index = 0;
    for (const Json& Point : Points) {
        if (!Point.is_array() || Point.size() != PumpValues)
            Refuse(Key, "a list of head, flow rate and efficiency is expected, not " + Point.dump());
        for (const Json& Each : Point) TakeValue(Key, Each, Target[++Index]);
    }
}

template <typename T, int Count>
void TakeValue(const std::string& Key, const Json& Values, Array1<T, Count>& Target)
{
    if constexpr (Count == 18)
        TakePumpCurve(Key, Values, Target);
    else
        TakeList(Key, Values, Target);
}

// Every field by its name, bound to the record that is being built.
std::map<std::string, std::function<void(const Json&)>> FieldTakers(ProjectFields& Record)
{
    std::map<std::string, std::function<void(const Json&)>> Takers;
#define VELORIX_FIELD(Name, Offset, Count)                                                                   \
    Takers[#Name] = [&Record](const Json& Value) { TakeValue(#Name, Value, Record.Name); };
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
    return Takers;
}

void RequireEvenProfile(const Json& Project)
{
    const auto LengthOf = [&](const char* Key) { return Project.contains(Key) ? Project[Key].size() : 0; };
    const std::size_t Rows = LengthOf("Elevation");
    if (LengthOf("AccLength") != Rows)
        Refuse("AccLength", "the list must have as many entries as Elevation, " + std::to_string(Rows));
    for (const char* Key : {"NodeNr", "Diameter", "PipeCost", "SecondaryLoss", "NodeDesc", "WallThickness"})
        if (LengthOf(Key) > Rows)
            Refuse(Key, "the list is longer than that of Elevation, " + std::to_string(Rows) + " entries");
}

Json Parse(const std::string& Text)
{
    try {
        Json Project = Json::parse(Text);
        if (!Project.is_object()) throw Failure("the file must hold one JSON object");
        return Project;
    } catch (const Json::exception& Problem) {
        throw Failure(std::string("the JSON can't be read: ") + Problem.what());
    }
}

} // namespace

std::string ProjectToJson(const ProjectFields& Record)
{
    JsonObject Object;
#define VELORIX_FIELD(Name, Offset, Count) Object.Add(#Name, FieldText(Record, Record.Name));
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
    return Object.Text() + "\n";
}

ProjectFields ProjectFromJson(const std::string& Text)
{
    const Json Project = Parse(Text);
    ProjectRecord = ProjectFields();
    auto Takers = FieldTakers(ProjectRecord);
    for (const auto& Member : Project.items())
        if (Takers.find(Member.key()) == Takers.end()) Refuse(Member.key(), "there is no such field");
    RequireEvenProfile(Project);

    // The defaults follow these three, so they come first.
    for (const char* Key : {"SystemType", "Units", "Currency"})
        if (Project.contains(Key)) Takers[Key](Project[Key]);
    wSystemType = ProjectRecord.SystemType;
    wCurrency = ProjectRecord.Currency;
    NewProjectDefaults();
    for (const auto& Member : Project.items()) Takers[Member.key()](Member.value());
    return ProjectRecord;
}

} // namespace velorix
