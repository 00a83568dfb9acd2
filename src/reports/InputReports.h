// The project's input on paper. Each prints whole pages, from the texts of the input screen and the working
// set as they stand, and does no arithmetic.
#pragma once

namespace velorix {

void PrintGeneralData();
void PrintProfileData();
void PrintEnergyData(); // of a pumping system
void PrintRatesData();

} // namespace velorix
