// A year's losses as coefficients of the squared flow, which need no division for each flow.
#pragma once

#include "hydraulics/HydraulicResults.h"

#include <array>

namespace velorix {

// Entry i - 1 belongs to row i. FrictionHead of the row, a double before it is stored, differs from
// Friction * Q^2 by less than LossTolerance of its size, and SecondaryHead from Secondary * Q^2; Q is zero or
// at least 2^-100 m3/s.
//
// Why: FrictionHead rounds at most 10 times, each time by a relative 2^-53 at the most; the coefficient is
// rounded 8 times, its product with the exact Q^2 once. SecondaryHead rounds less. Together that is below 32
// * 2^-53.
struct LossCoefficients {
    std::array<double, MaxRows> Friction;  // m per (m3/s)^2
    std::array<double, MaxRows> Secondary; // m per (m3/s)^2
    double LargestTotal; // no sum of the pipeline's losses exceeds LargestTotal * Q^2 in size
};

constexpr double LossTolerance = 0x1p-48;
constexpr double LeastCoefficient = 0x1p-66; // of those that aren't zero

// Fills the coefficients of rows 1 to NodeCount. False when a row's numbers lie so far out (not finite, a
// bore beyond 2^60, ...) that the tolerance wouldn't hold; they are incomplete then.
bool FindLossCoefficients(int Year, LossCoefficients& Losses);

} // namespace velorix
