// From the working set to the input screen, and what its options show and hide.
#pragma once

#include "screens/Lcc.h"

namespace velorix {

// Fills the input screen from the working set. A number that a control can't hold is held at the control's
// range, and the working set takes what the control shows; a unit index outside its list selects nothing and
// stays in the working set.
void FillInputScreen();

// What the choice of an option shows, hides and enables.
void ShowGravityDemandOption();
void ShowPumpDemandOption();
void ShowPumpingOption();
void ShowLiningOption();

// Shows the stored value, or 0 for one that is no number, in the boxes that hold none while their option
// isn't chosen.
void FillUnusedBoxes();

// "R" or "$" in the labels beside the money fields, by the currency of the working set.
void ShowCurrencySigns();
std::string CurrencySign();

// A maintenance or allowance bar's value, hundredths of a percent, as its label shows it: "0.25%".
std::string PercentCaption(int Hundredths);

} // namespace velorix
