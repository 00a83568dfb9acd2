// The measuring grid, the flow and the results grid against their stores.
#include "roughness/ScenarioScreen.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "input/GridReading.h"
#include "roughness/ResultRows.h"
#include "roughness/RoughnessCalculation.h"
#include "screens/RoughnessScreen.h"

#include <algorithm>
#include <array>
#include <functional>

namespace velorix {
namespace {

Grid& Measured = frmRoughness.msgRoughness;

// Row 1 holds the lengths, and so on.
int RowOf(int Value)
{
    return Value + 1;
}

// All that can be entered for a scenario: the flow, the two units, the cells.
constexpr std::size_t EntryCount = ThePressureUnit + 1 + ReadingsOfPoint * MaxPoints;
using EntryTexts = std::array<std::string, EntryCount>;

EntryTexts Entries()
{
    EntryTexts Texts = {frmRoughness.txtFlowrate.Text, frmRoughness.comFlowrateUnits.Text(),
                        frmRoughness.comPressureUnits.Text()};
    std::size_t Next = ThePressureUnit + 1;
    for (int Value = 0; Value < ReadingsOfPoint; ++Value)
        for (int Point = 1; Point <= MaxPoints; ++Point) Texts[Next++] = Measured.Text(RowOf(Value), Point);
    return Texts;
}

// As they stood when the screen was filled, or taken over, last.
EntryTexts EntriesBefore;

bool HoldsNothing(int Scenario)
{
    const auto IsZero = [](const auto& Values) {
        return std::all_of(Values.begin(), Values.end(), [](const Single& Each) { return Each == 0; });
    };
    const ScenarioReadings& Read = Readings[Scenario];
    return IsZero(ScenarioFlow[Scenario]) && std::all_of(Read.begin(), Read.end(), IsZero);
}

void TakeFlow(Single& Stored)
{
    try {
        Stored = LeadingNumber(frmRoughness.txtFlowrate.Text.Get());
    } catch (const Failure&) {
        ClearArithmeticFlags(); // the flow keeps what it held, and the rest is taken
    }
}

// A cell or a flow without a number counts as 0, one that is too large is left out. A number that is taken
// takes the unit with it in which it was read on the screen.
void TakeScreen(const std::function<bool(std::size_t Entry)>& IsTaken)
{
    ScenarioFlows& Stored = ScenarioFlow[CurrentScenario];
    bool TakesPressure = false;
    std::size_t Next = ThePressureUnit + 1;
    for (int Value = 0; Value < ReadingsOfPoint; ++Value)
        for (int Point = 1; Point <= MaxPoints; ++Point) {
            if (!IsTaken(Next++)) continue;
            ReadCell(Measured, RowOf(Value), Point, Readings[CurrentScenario][Value][Point]);
            TakesPressure = TakesPressure || Value == AtPressure;
        }
    const bool TakesFlow = IsTaken(TheFlow);
    if (TakesFlow) TakeFlow(Stored[TheFlow]);
    if (TakesFlow || IsTaken(TheFlowUnit))
        Stored[TheFlowUnit] = frmRoughness.comFlowrateUnits.ListIndex.Get();
    if (TakesPressure || IsTaken(ThePressureUnit))
        Stored[ThePressureUnit] = frmRoughness.comPressureUnits.ListIndex.Get();
    EntriesBefore = Entries();
}

void ShowCaptions(const std::string& Number)
{
    frmRoughness.lblScenario.Caption = "Scenario " + Number;
    frmRoughness.fraScenario.Caption = "Measuring data (for scenario " + Number + ")";
    frmRoughness.fraResults.Caption = "Results (for scenario " + Number + ")";
}

void ShowPoint(int Point)
{
    const ScenarioReadings& Read = Readings[CurrentScenario];
    const bool Empty =
        Read[AtLength][Point] == 0 && Read[AtElevation][Point] == 0 && Read[AtPressure][Point] == 0;
    for (int Value = 0; Value < ReadingsOfPoint; ++Value)
        Measured.SetText(RowOf(Value), Point, Empty ? "" : GeneralText(Read[Value][Point]));
}

// Calls Show(row of the grid, row of the results) for each.
template <typename ShowRow>
void ForEachResultRow(ShowRow Show)
{
    int Row = 0;
    for (const RoughnessRow& Each : RoughnessRows) Show(++Row, Each);
}

} // namespace

void LoadRoughness()
{
    EntriesBefore = Entries();
}

void TakeChanges()
{
    const EntryTexts Now = Entries();
    if (Now == EntriesBefore) return;
    // The screen may stand empty before a scenario that holds something.
    const bool All = HoldsNothing(CurrentScenario);
    TakeScreen([&](std::size_t Entry) { return All || Now.at(Entry) != EntriesBefore.at(Entry); });
}

void ScenarioChanged()
{
    TakeChanges();
    const int Scenario = frmRoughness.hscScenario.Value;
    ShowCaptions(std::to_string(Scenario));
    CurrentScenario = static_cast<std::int16_t>(Scenario);
    RefreshScenario();
}

void RefreshScenario()
{
    for (int Point = 1; Point <= MaxPoints; ++Point) ShowPoint(Point);
    EmptyResults();
    const ScenarioFlows& Stored = ScenarioFlow[CurrentScenario];
    frmRoughness.txtFlowrate.Text = GeneralText(Stored[TheFlow]);
    frmRoughness.comFlowrateUnits.ListIndex = static_cast<int>(Stored[TheFlowUnit]);
    frmRoughness.comPressureUnits.ListIndex = static_cast<int>(Stored[ThePressureUnit]);
    EntriesBefore = Entries();
}

void EmptyResults()
{
    ForEachResultRow([](int Row, const RoughnessRow&) {
        for (int j = 1; j <= MaxStretches; ++j) frmRoughness.msgRoughnessResults.SetText(Row, j, "");
    });
}

void CalculatePressed()
{
    TakeScreen([](std::size_t) { return true; });
    CalculateRoughness();
    ForEachResultRow([](int Row, const RoughnessRow& Results) {
        Grid& Table = frmRoughness.msgRoughnessResults;
        Table.SetText(Row, 0, Results.Name);
        for (int j = 1; j <= MaxStretches; ++j) Table.SetText(Row, j, Results.Text(CurrentScenario, j));
    });
}

} // namespace velorix
