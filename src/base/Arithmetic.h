// Failures of arithmetic, found through the floating-point status flags, and the roundings of the domain.
#pragma once

#include "base/Failure.h"
#include "base/Single.h"
#include "base/StatusFlags.h"

#include <cfenv>
#include <cmath>
#include <cstdint>

namespace velorix {

// Forgets what earlier arithmetic raised; every calculation starts with it.
void ClearArithmeticFlags();

// True when a division by zero, an overflow or an invalid operation has happened since the flags were
// cleared. Underflow and rounding are no failures.
bool ArithmeticFailed();

// Throws ArithmeticFailure when ArithmeticFailed(), and clears the flags.
void CheckArithmetic();

// Keeps the flags as they are while code of others works, such as a toolkit: a calculation that shows its
// progress, or measures a text, must not take a flag that was raised there for a failure of its own.
class KeepArithmeticFlags {
public:
    KeepArithmeticFlags() { std::fegetexceptflag(&Flags, FE_ALL_EXCEPT); }
    ~KeepArithmeticFlags() { std::fesetexceptflag(&Flags, FE_ALL_EXCEPT); }
    KeepArithmeticFlags(const KeepArithmeticFlags&) = delete;
    KeepArithmeticFlags& operator=(const KeepArithmeticFlags&) = delete;

private:
    std::fexcept_t Flags;
};

// Works a calculation that has an end of its own, from clear flags. False when it failed: what it had stored
// by then stays, and the flags are clear again.
template <typename Work>
bool Stands(Work Calculate)
{
    ClearArithmeticFlags();
    try {
        Calculate();
        return true;
    } catch (const Failure&) {
        ClearArithmeticFlags();
        return false;
    }
}

[[noreturn]] void ThrowUnordered();

// The value rounded to 32 bits, ready to be stored. Throws ArithmeticFailure when the value's expression, or
// its rounding, failed, so that the target keeps what it held.
inline Single Checked(double Value)
{
    auto Rounded = static_cast<float>(Value);
    if (FailureFlagsAfter(Rounded) != 0) CheckArithmetic();
    return Rounded;
}

// The value, about to be compared. A NaN has no order: comparing it is an invalid operation and throws
// ArithmeticFailure, on every compiler and machine.
inline double Ordered(double Value)
{
    if (std::isnan(Value)) ThrowUnordered();
    return Value;
}

// Two ways to work the same steps. EachStep makes sure of every one as it is stored. AsBlock leaves that to
// the caller, who has the steps worked into a place of its own, asks ArithmeticFailed() once, and when it did
// has them worked again by EachStep into the results, up to the one that fails.
struct EachStep {
    static Single Stored(double Value) { return Checked(Value); }
    static double Compared(double Value) { return Ordered(Value); }
};
struct AsBlock {
    static Single Stored(double Value) { return Value; }
    static double Compared(double Value)
    {
        if (std::isnan(Value)) std::feraiseexcept(FE_INVALID);
        return Value;
    }
};

// Nearest integer, halves to the even neighbour.
double RoundEven(double Value);

// RoundEven to an integer of that width. Throws ArithmeticFailure for a value that doesn't fit.
std::int16_t RoundToInt16(double Value);
std::int32_t RoundToInt32(double Value);

} // namespace velorix
