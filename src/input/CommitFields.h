// From the controls of the input screen to the working set. The tables have their own readers.
#pragma once

#include "platform/Controls.h"

#include <cstdint>

namespace velorix {

// The unit index of a selector. One without a choice, which stands for a unit that its list doesn't know,
// leaves the index as it was.
void ReadUnit(const ComboBox& Selector, std::int16_t& Index);

// What the demand and the pump are given by.
void ReadOptions();

// Texts, numbers, units, bars and hours. A box of this kind of system whose text is no number of 32 bits is
// pointed out by its name and its text; the answer is false then, and the working set is as it was. A unit
// selector without a choice leaves the index that stands.
bool ReadFields();

} // namespace velorix
