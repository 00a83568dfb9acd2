// What the roughness screen shows and takes.
#pragma once

namespace velorix {

// The screen opens on scenario 1, empty whatever the stores hold: it is filled by a move to another scenario.
void LoadRoughness();

// What was changed on the screen since it was filled goes into the stores of CurrentScenario; all that stands
// there when they hold nothing yet.
void TakeChanges();

// The bar has moved. The scenario that it leaves keeps the changes.
void ScenarioChanged();

// Fills the screen from the stores of CurrentScenario, and empties the results.
void RefreshScenario();

// The results of all stretches go from the screen; the stores keep them.
void EmptyResults();

// Takes the screen over, works out all scenarios and shows the results of the current one.
void CalculatePressed();

} // namespace velorix
