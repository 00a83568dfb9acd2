// The wall's roughness, worked back from pressures that were measured along the pipeline.
#pragma once

namespace velorix {

// Works out all scenarios from their stores, on the profile as NormaliseInputs and the last plot have left
// it. The units of flow and pressure are those of CurrentScenario, for all of them. A statement that fails is
// passed over: its target keeps what it held, and the next one runs.
void CalculateRoughness();

} // namespace velorix
