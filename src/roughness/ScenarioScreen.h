// What the roughness screen shows and takes.
#pragma once

namespace velorix {

// The screen opens on scenario 1, empty whatever the stores hold: it is filled by a move to another scenario.
void LoadRoughness();

// The bar has moved. What was changed on the screen since it was filled is taken into the stores of the
// scenario that it leaves.
void ScenarioChanged();

// Fills the screen from the stores of CurrentScenario, and empties the results.
void RefreshScenario();

// Takes the screen over, works out all scenarios and shows the results of the current one.
void CalculatePressed();

} // namespace velorix
