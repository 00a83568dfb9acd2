// The internal rate of return, found by trying every rate from 0 to 200 percent.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"

namespace velorix {

constexpr int LastRate = 20000; // rates tried: k = 0 to LastRate, in steps of 0.01 percent

extern Single Irr;                                    // internal rate of return (percent)
extern BoundedArray<Single, 0, 200000> IrrRate;       // rate k (percent); 0 to LastRate are filled
extern BoundedArray<double, 0, 200000> IrrDifference; // present value of income less costs at rate k

// Discounts capital, yearly costs and income at every rate, and takes Irr from the change of sign of their
// difference, the last one if there are several. Without one Irr keeps what it held. The capital cost and the
// yearly series must stand. Throws ArithmeticFailure when a present value overflows; the rates before stand.
void ScanRateOfReturn();

// The same Irr and the same failures, without the two tables: they keep what they held. Works out the rates
// beside the last change of sign alone, where bounds tell that no other can matter.
void FindRateOfReturn();

void ResetRateOfReturn();

} // namespace velorix
