// Status flags and integer rounding.
#include "base/Arithmetic.h"

#include "base/Failure.h"
#include "base/NumberText.h"

#include <cfenv>
#include <cmath>
#include <limits>

namespace velorix {
namespace {

constexpr int FailureFlags = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

template <typename Integer>
Integer RoundToInteger(double Value)
{
    const double Rounded = RoundEven(Value);
    // Written so that a NaN, which compares false with everything, falls out as well.
    if (std::isgreaterequal(Rounded, std::numeric_limits<Integer>::min()) &&
        std::islessequal(Rounded, std::numeric_limits<Integer>::max()))
        return static_cast<Integer>(Rounded);
    throw ArithmeticFailure("overflow: " + GeneralText(Value) + " does not fit in " +
                            std::to_string(8 * sizeof(Integer)) + " bits");
}

} // namespace

void ClearArithmeticFlags()
{
    std::feclearexcept(FE_ALL_EXCEPT);
}

bool ArithmeticFailed()
{
    return std::fetestexcept(FailureFlags) != 0;
}

void CheckArithmetic()
{
    const int Raised = std::fetestexcept(FailureFlags);
    if (Raised == 0) return;
    ClearArithmeticFlags();
    if (Raised & FE_DIVBYZERO) throw ArithmeticFailure("division by zero");
    if (Raised & FE_OVERFLOW) throw ArithmeticFailure("overflow");
    throw ArithmeticFailure("invalid operation");
}

// Never inlined, not even by an optimiser that sees all files: at a call the argument is complete, flags and
// all, before the flags are looked at. The volatile keeps the rounding on this side of the test.
[[gnu::noinline]] Single Checked(double Value)
{
    volatile float Rounded = static_cast<float>(Value);
    CheckArithmetic();
    return Single(Rounded);
}

double Ordered(double Value)
{
    if (std::isnan(Value)) throw ArithmeticFailure("invalid operation: a number that is none was compared");
    return Value;
}

double RoundEven(double Value)
{
    return std::nearbyint(Value);
}

std::int16_t RoundToInt16(double Value)
{
    return RoundToInteger<std::int16_t>(Value);
}

std::int32_t RoundToInt32(double Value)
{
    return RoundToInteger<std::int32_t>(Value);
}

} // namespace velorix
