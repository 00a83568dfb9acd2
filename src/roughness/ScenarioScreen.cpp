// The measuring grid, the flow and the results grid against their stores.
#include "roughness/ScenarioScreen.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "input/GridReading.h"
#include "results/PlotState.h"
#include "roughness/ResultRows.h"
#include "roughness/RoughnessCalculation.h"
#include "screens/RoughnessScreen.h"

namespace velorix {
namespace {

Grid& Measured = frmRoughness.msgRoughness;

// Row 1 holds the lengths, and so on.
int RowOf(int Value)
{
    return Value + 1;
}

// All that can be entered for a scenario.
std::vector<std::string> Entries()
{
    std::vector<std::string> Texts = {frmRoughness.txtFlowrate.Text, frmRoughness.comFlowrateUnits.Text(),
                                      frmRoughness.comPressureUnits.Text()};
    for (int Row = 1; Row < Measured.Rows(); ++Row)
        for (int Col = 1; Col < Measured.Cols(); ++Col) Texts.push_back(Measured.Text(Row, Col));
    return Texts;
}

// As they stood when the screen was filled, or taken over, last.
std::vector<std::string> EntriesBefore;

// A cell or a flow without a number counts as 0, one that is too large is left out.
void TakeScreen()
{
    ScenarioFlows& Stored = ScenarioFlow[CurrentScenario];
    try {
        Stored[TheFlow] = LeadingNumber(frmRoughness.txtFlowrate.Text.Get());
    } catch (const Failure&) {
        ClearArithmeticFlags(); // the flow keeps what it held, and the rest is taken
    }
    Stored[TheFlowUnit] = frmRoughness.comFlowrateUnits.ListIndex.Get();
    Stored[ThePressureUnit] = frmRoughness.comPressureUnits.ListIndex.Get();
    for (int Value = 0; Value < ReadingsOfPoint; ++Value)
        for (int Point = 1; Point <= MaxPoints; ++Point)
            ReadCell(Measured, RowOf(Value), Point, Readings[CurrentScenario][Value][Point]);
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
    frmRoughness.comAccLength.List = DistanceEntries();
    frmRoughness.comAccLength.ListIndex.Restore(0); // chosen by nobody, so no cell takes it
    EntriesBefore = Entries();
}

void ScenarioChanged()
{
    if (Entries() != EntriesBefore) TakeScreen();
    const int Scenario = frmRoughness.hscScenario.Value;
    ShowCaptions(std::to_string(Scenario));
    CurrentScenario = static_cast<std::int16_t>(Scenario);
    RefreshScenario();
}

void RefreshScenario()
{
    for (int Point = 1; Point <= MaxPoints; ++Point) ShowPoint(Point);
    ForEachResultRow([](int Row, const RoughnessRow&) {
        for (int j = 1; j <= MaxStretches; ++j) frmRoughness.msgRoughnessResults.SetText(Row, j, "");
    });
    const ScenarioFlows& Stored = ScenarioFlow[CurrentScenario];
    frmRoughness.txtFlowrate.Text = GeneralText(Stored[TheFlow]);
    frmRoughness.comFlowrateUnits.ListIndex = static_cast<int>(Stored[TheFlowUnit]);
    frmRoughness.comPressureUnits.ListIndex = static_cast<int>(Stored[ThePressureUnit]);
    EntriesBefore = Entries();
}

void CalculatePressed()
{
    TakeScreen();
    CalculateRoughness();
    ForEachResultRow([](int Row, const RoughnessRow& Results) {
        Grid& Table = frmRoughness.msgRoughnessResults;
        Table.SetText(Row, 0, Results.Name);
        for (int j = 1; j <= MaxStretches; ++j) Table.SetText(Row, j, Results.Text(CurrentScenario, j));
    });
}

} // namespace velorix
