// From the controls of the input screen to the working set. The tables have their own readers.
#pragma once

namespace velorix {

// What the demand and the pump are given by.
void ReadOptions();

// Texts, numbers, units, bars and hours. A box of this kind of system whose text is no number of 32 bits is
// pointed out by its name and its text; the answer is false then, and the working set is as it was. A unit
// selector without a choice leaves the index that stands.
bool ReadFields();

} // namespace velorix
