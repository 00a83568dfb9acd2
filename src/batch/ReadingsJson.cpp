// Scenarios, their points and their values, each with a name for messages.
#include "batch/ReadingsJson.h"

#include "batch/JsonReading.h"
#include "roughness/RoughnessStores.h"
#include "screens/RoughnessScreen.h"

namespace velorix {
namespace {

constexpr int DeepestNesting = 5; // a point in a list in a scenario in a list in the object

void TakeNumber(const std::string& Name, const Json& Value, Single& Target)
{
    if (!Value.is_number()) Refuse(Name, "a number is expected, not " + Shown(Value));
    Target = Value.get<double>();
}

void TakeUnit(const std::string& Name, const Json& Value, const ComboBox& List, Single& Target)
{
    Target = WholeNumber(Name, Value, 0, static_cast<int>(List.List.Get().size()) - 1);
}

void RequireAtMost(const std::string& Name, const Json& List, int Most)
{
    RequireList(Name, List);
    if (static_cast<int>(List.size()) > Most)
        Refuse(Name, "the list is longer than " + std::to_string(Most) + " entries");
}

void TakePoints(const std::string& Name, const Json& Points, ScenarioReadings& Target)
{
    RequireAtMost(Name, Points, MaxPoints);
    int Number = 0;
    for (const Json& Point : Points) {
        const std::string Here = Name + ", number " + std::to_string(++Number);
        if (!Point.is_array() || Point.size() != ReadingsOfPoint)
            Refuse(Here, "a point is a list of three: length, elevation and pressure");
        int Value = 0;
        for (const Json& Each : Point) TakeNumber(Here, Each, Target[Value++][Number]);
    }
}

void TakeScenario(int Number, const Json& Scenario)
{
    const std::string Here = "Scenario " + std::to_string(Number);
    if (!Scenario.is_object()) Refuse(Here, "an object is expected, not " + Shown(Scenario));
    ScenarioFlows& Stored = ScenarioFlow[Number];
    for (const auto& Member : Scenario.items()) {
        const std::string Name = Here + ", " + Member.key();
        if (Member.key() == "Flow")
            TakeNumber(Name, Member.value(), Stored[TheFlow]);
        else if (Member.key() == "FlowUnits")
            TakeUnit(Name, Member.value(), frmRoughness.comFlowrateUnits, Stored[TheFlowUnit]);
        else if (Member.key() == "PressureUnits")
            TakeUnit(Name, Member.value(), frmRoughness.comPressureUnits, Stored[ThePressureUnit]);
        else if (Member.key() == "Points")
            TakePoints(Name, Member.value(), Readings[Number]);
        else
            Refuse(Name, "there is no such field");
    }
}

} // namespace

int TakeReadings(const std::string& Text)
{
    const Json Given = ParseJsonObject(Text, DeepestNesting);
    ResetRoughness();
    for (ScenarioFlows& Each : ScenarioFlow) {
        Each[TheFlowUnit] = frmRoughness.comFlowrateUnits.ListIndex.Get();
        Each[ThePressureUnit] = frmRoughness.comPressureUnits.ListIndex.Get();
    }
    int Count = 0;
    for (const auto& Member : Given.items()) {
        if (Member.key() == "CurrentScenario") {
            CurrentScenario = WholeNumber(Member.key(), Member.value(), 1, MaxScenarios);
        } else if (Member.key() == "Scenarios") {
            RequireAtMost(Member.key(), Member.value(), MaxScenarios);
            for (const Json& Each : Member.value()) TakeScenario(++Count, Each);
        } else {
            Refuse(Member.key(), "there is no such field");
        }
    }
    return Count;
}

} // namespace velorix
