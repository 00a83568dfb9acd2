// Texts of the failures.
#include "base/Failure.h"

namespace velorix {

SubscriptFailure::SubscriptFailure(int Index, int First, int Last)
    : Failure("subscript " + std::to_string(Index) + " is outside " + std::to_string(First) + " to " +
              std::to_string(Last))
{
}

ConversionFailure::ConversionFailure(const std::string& Text)
    : Failure("\"" + Text + "\" is not a number")
{
}

} // namespace velorix
