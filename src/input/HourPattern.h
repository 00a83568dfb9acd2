// The rate class of each hour of the day, shown as the colour of its label.
#pragma once

#include "platform/Controls.h"

namespace velorix {

// Working set to label colours. A class beyond the three shows no colour of its own.
void FillHourPattern();

// Label colours to working set. An hour without one of the three colours stays as it was.
void ReadHourPattern();

// A click on an hour: off-peak becomes peak, peak standard, standard off-peak.
void CycleHour(Label& Hour);

} // namespace velorix
