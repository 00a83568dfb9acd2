// Pressure heads along a gravity pipeline over a whole range of flows at once.
#pragma once

namespace velorix {

// What holds at every flow of a range, failures of arithmetic aside: some pressure head is certainly -1 m or
// less; all are certainly above. Last is the largest pressure head behind the last row, of no other use than
// to have the whole range worked when the status flags are read.
struct RangeOutcome {
    bool SomeBelow;
    bool AllAbove;
    double Last;
};

// Judges all flows between A and B (m3/s). Every operation of the plain formulas keeps or turns the order of
// its operands, rounding included; so a loss lies between the losses at the least and the largest |Q|, and
// the sums and pressure heads between those of the bounds, rounded in the same places. At A = B the outcome
// is exact. Where the flags stay clear, no flow of the range raises any.
//
// Stands in a file of its own, as the status flags are the caller's to clear before and to read after.
RangeOutcome JudgeFlows(int Year, double A, double B);

} // namespace velorix
