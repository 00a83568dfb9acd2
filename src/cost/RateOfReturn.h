// The internal rate of return, found by trying every rate from 0 to 200 percent.
#pragma once

namespace velorix {

constexpr int LastRate = 20000; // rates tried: k = 0 to LastRate, in steps of 0.01 percent

// Discounts capital, yearly costs and income at every rate, and takes Irr from the change of sign of their
// difference, the last one if there are several. Without one Irr keeps what it held. The capital cost and the
// yearly series must stand. Throws ArithmeticFailure when a present value overflows; the rates before stand.
void ScanRateOfReturn();

// The same Irr and the same failures, the tables as Tables::LeftOut has it. Works out the rates beside the
// last change of sign alone, where bounds tell that no other can matter.
void FindRateOfReturn();

} // namespace velorix
