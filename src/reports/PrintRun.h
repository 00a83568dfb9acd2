// Runs of printing: what is ticked on frmPrint, or what one button prints.
#pragma once

#include "reports/Sections.h"

namespace velorix {

// Prints the ticked sections, as many copies as the printer dialog tells, and closes frmPrint. A failure ends
// the run, a cancelled dialog too: the user is told by the message of the section at hand, and the pages
// before it stand. The graph of income and expenditure doesn't count as a choice when it is ticked alone.
void PrintTicked();

// Prints what the button is for, in the copies that the printer dialog tells. Whatever ends the run is told
// as a cancel, and the pages before it stand.
void PrintDirectly(const DirectPrint& Chosen);

// The printer dialog in its setup form; its failures are ignored.
void SetUpPrinter();

} // namespace velorix
