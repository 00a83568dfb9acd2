// Status flags and integer rounding.
#include "base/Arithmetic.h"

#include "base/NumberText.h"

#include <cmath>
#include <limits>

namespace velorix {
namespace {

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

// These three are never inlined, not even by an optimiser that sees all files: arithmetic in the caller stays
// on its side of the call.
[[gnu::noinline]] void ClearArithmeticFlags()
{
    ClearStatusFlags();
}

[[gnu::noinline]] bool ArithmeticFailed()
{
    float Nothing = 0;
    return FailureFlagsAfter(Nothing) != 0;
}

[[gnu::noinline]] void CheckArithmetic()
{
    float Nothing = 0;
    const unsigned Raised = FailureFlagsAfter(Nothing);
    if (Raised == 0) return;
    ClearStatusFlags();
    if (Raised & FE_DIVBYZERO) throw ArithmeticFailure("division by zero");
    if (Raised & FE_OVERFLOW) throw ArithmeticFailure("overflow");
    throw ArithmeticFailure("invalid operation");
}

void ThrowUnordered()
{
    throw ArithmeticFailure("invalid operation: a number that is none was compared");
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
