// Measured flows and pressures out of JSON.
#pragma once

#include <string>

namespace velorix {

// Fills the stores of the roughness tool, as at the program's start but for what the text holds, and gives
// the number of scenarios in it:
//     {"Scenarios": [{"Flow": 90, "FlowUnits": 3, "PressureUnits": 15,
//                     "Points": [[length, elevation, pressure], ...]}, ...], "CurrentScenario": 1}
// Units are told by their place in the lists of the screen, from 0; absent ones are those that the screen
// opens with. Other absent numbers are 0, CurrentScenario is 1. Throws Failure, naming key and reason, for
// what can't be read.
int TakeReadings(const std::string& Text);

} // namespace velorix
