// Fields to JSON and back, over the one list of fields.
#include "batch/ProjectJson.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "batch/FieldTexts.h"
#include "batch/JsonReading.h"
#include "batch/JsonText.h"
#include "input/Session.h"
#include "model/WorkingSet.h"

#include <array>
#include <functional>
#include <limits>
#include <map>
#include <string_view>

namespace velorix {
namespace {

// A list is told by its size.
constexpr int ProfileRows = decltype(ProjectFields::Elevation)::Count;
constexpr int DemandYears = decltype(ProjectFields::Demand)::Count;
constexpr int LayingEntries = decltype(ProjectFields::Laying)::Count; // the last is always 0
constexpr int PumpCurveValues = decltype(ProjectFields::PumpCurve)::Count;
constexpr int PumpValues = 3; // of one point of the pump curve: head, flow rate, efficiency

constexpr auto ProfileKeys =
    std::to_array<const char*>({"NodeNr", "Elevation", "AccLength", "Diameter", "PipeCost", "SecondaryLoss",
                                "NodeDesc", "WallThickness"});

constexpr int ListsOf(int Size)
{
    int Found = 0;
#define VELORIX_NUMBERS(Name, Offset, Count, ...) Found += (Count) == Size;
#define VELORIX_TEXT(...)
    VELORIX_RECORD_FIELDS(VELORIX_NUMBERS, VELORIX_NUMBERS, VELORIX_TEXT)
#undef VELORIX_NUMBERS
#undef VELORIX_TEXT
    return Found;
}
static_assert(ListsOf(ProfileRows) == ProfileKeys.size());
static_assert(ListsOf(DemandYears) == 1 && ListsOf(LayingEntries) == 1 && ListsOf(PumpCurveValues) == 1);

// Lists of points within the one object are the deepest that a project needs.
constexpr int DeepestNesting = 3;

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

using Texts = std::vector<std::string>; // of a field's choices

// A choice by its text, where it has one.
std::string ValueText(std::int16_t Value, const Texts& Choices)
{
    const bool Known = Value >= 0 && Value < static_cast<int>(Choices.size());
    return Known ? JsonString(Choices[static_cast<std::size_t>(Value)]) : std::to_string(Value);
}

std::string ValueText(Single Value, const Texts& = {})
{
    return JsonNumber(Value, NotFinite::Text);
}

template <int Width>
std::string ValueText(const FixedText<Width>& Value, const Texts&)
{
    return JsonString(TextOf(Value));
}

template <typename T, int Count>
std::string ListText(const Array1<T, Count>& Values, int Used, const Texts& Choices)
{
    std::vector<std::string> Entries;
    for (int Index = 1; Index <= Used; ++Index) Entries.push_back(ValueText(Values[Index], Choices));
    return JsonList(Entries);
}

std::string PumpCurveText(const Array1<Single, PumpCurveValues>& Curve)
{
    std::vector<std::string> Points;
    for (int First = 1; First <= Curve.LastIndex; First += PumpValues)
        Points.push_back(
            JsonList({ValueText(Curve[First]), ValueText(Curve[First + 1]), ValueText(Curve[First + 2])}));
    return JsonList(Points);
}

template <typename T>
std::string FieldText(const ProjectFields&, const T& Value, const Texts& Choices)
{
    return ValueText(Value, Choices);
}

template <typename T, int Count>
std::string FieldText(const ProjectFields& Record, const Array1<T, Count>& Values, const Texts& Choices)
{
    if constexpr (Count == PumpCurveValues)
        return PumpCurveText(Values);
    else if constexpr (Count == ProfileRows)
        return ListText(Values, UsedRows(Record), Choices);
    else if constexpr (Count == DemandYears)
        return ListText(Values, UsedYears(Record), Choices);
    else
        return ListText(Values, Count, Choices);
}

// --- from JSON ---

// The texts that stand for the numbers that JSON has no words for.
constexpr auto NotFiniteWords = std::to_array<std::pair<std::string_view, float>>(
    {{"NaN", std::numeric_limits<float>::quiet_NaN()},
     {"Infinity", std::numeric_limits<float>::infinity()},
     {"-Infinity", -std::numeric_limits<float>::infinity()}});

// The number of a choice given by its text.
std::int16_t ChoiceOf(const FieldRule& Rule, const Json& Value)
{
    const Texts Choices = TextsOf(Rule);
    const auto Found = std::find(Choices.begin(), Choices.end(), Value.get_ref<const std::string&>());
    if (Found != Choices.end()) return static_cast<std::int16_t>(Found - Choices.begin());
    if (Choices.empty()) Refuse(Rule.Name, "a whole number is expected, not " + Shown(Value));
    std::string Known;
    for (const std::string& Each : Choices) Known += (Known.empty() ? "\"" : ", \"") + Each + "\"";
    Refuse(Rule.Name, Shown(Value) + " is none of " + Known);
}

void TakeValue(const FieldRule& Rule, const Json& Value, std::int16_t& Target)
{
    if (Value.is_string()) {
        Target = ChoiceOf(Rule, Value);
        return;
    }
    Target = WholeNumber(Rule.Name, Value, Rule.Allowed.Least, Rule.Allowed.Most);
}

void TakeValue(const FieldRule& Rule, const Json& Value, Single& Target)
{
    if (Value.is_number()) {
        Target = Value.get<double>();
        return;
    }
    for (const auto& [Word, Number] : NotFiniteWords)
        if (Value.is_string() && Value.get_ref<const std::string&>() == Word) {
            Target = Number;
            return;
        }
    Refuse(Rule.Name, "a number is expected, not " + Shown(Value));
}

template <int Width>
void TakeValue(const FieldRule& Rule, const Json& Value, FixedText<Width>& Target)
{
    if (!Value.is_string()) Refuse(Rule.Name, "a text is expected, not " + Shown(Value));
    const std::string Text = Value.get<std::string>();
    const std::string Bytes = ToCodePage(Text);
    if (FromCodePage(Bytes) != Text)
        Refuse(Rule.Name, "the text has characters that a project file can't hold");
    if (Bytes.size() > Width)
        Refuse(Rule.Name, "the text is longer than " + std::to_string(Width) + " characters");
    SetText(Target, Text);
}

template <typename T, int Count>
void TakeList(const FieldRule& Rule, const Json& Values, Array1<T, Count>& Target)
{
    RequireList(Rule.Name, Values);
    if (Values.size() > Count)
        Refuse(Rule.Name, "the list is longer than " + std::to_string(Count) + " entries");
    int Index = 0;
    for (const Json& Each : Values) {
        ++Index;
        TakeValue(Rule, Each, Target[Index]);
    }
}

void TakePumpCurve(const FieldRule& Rule, const Json& Points, Array1<Single, PumpCurveValues>& Target)
{
    RequireList(Rule.Name, Points);
    if (Points.size() > Target.Count / PumpValues) Refuse(Rule.Name, "the list is longer than 6 points");
    int Index = 0;
    for (const Json& Point : Points) {
        if (!Point.is_array() || Point.size() != PumpValues)
            Refuse(Rule.Name, "a point is a list of three: head, flow rate and efficiency");
        for (const Json& Each : Point) TakeValue(Rule, Each, Target[++Index]);
    }
}

template <typename T, int Count>
void TakeValue(const FieldRule& Rule, const Json& Values, Array1<T, Count>& Target)
{
    if constexpr (Count == PumpCurveValues) {
        TakePumpCurve(Rule, Values, Target);
    } else {
        TakeList(Rule, Values, Target);
        if constexpr (Count == LayingEntries)
            if (Target[Count] != 0.0) Refuse(Rule.Name, "entry " + std::to_string(Count) + " must be 0");
    }
}

// Every field by its name, bound to the record that is being built.
std::map<std::string, std::function<void(const Json&)>> FieldTakers(ProjectFields& Record)
{
    std::map<std::string, std::function<void(const Json&)>> Takers;
    ForEachField(Record, [&](const FieldRule& Rule, auto& Field) {
        Takers[Rule.Name] = [&Rule, &Field](const Json& Value) { TakeValue(Rule, Value, Field); };
    });
    return Takers;
}

// Elevation and AccLength count the rows; where one is absent it has the two of a new project.
void RequireEvenProfile(const Json& Project)
{
    constexpr std::size_t LeastRows = 2;
    for (const char* Key : ProfileKeys)
        if (Project.contains(Key)) RequireList(Key, Project[Key]);

    const auto RowsOf = [&](const char* Key) {
        return Project.contains(Key) ? Project[Key].size() : LeastRows;
    };
    const std::size_t Rows = RowsOf("Elevation");
    if (Rows < LeastRows) Refuse("Elevation", "a profile needs 2 rows or more");
    if (RowsOf("AccLength") != Rows)
        Refuse("AccLength", "the list must have as many entries as Elevation, " + std::to_string(Rows));
    for (const char* Key : ProfileKeys)
        if (Project.contains(Key) && Project[Key].size() > Rows)
            Refuse(Key, "the list is longer than that of Elevation, " + std::to_string(Rows) + " entries");
}

} // namespace

std::string ProjectToJson(const ProjectFields& Record)
{
    JsonObject Object;
    ForEachField(Record, [&](const FieldRule& Rule, const auto& Field) {
        Object.Add(Rule.Name, FieldText(Record, Field, TextsOf(Rule)));
    });
    return Object.Text() + "\n";
}

ProjectFields ProjectFromJson(const std::string& Text)
{
    const Json Project = ParseJsonObject(Text, DeepestNesting);
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
