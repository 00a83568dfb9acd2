// Numbers to plain text and back. No result depends on the process locale.
#pragma once

#include "base/Single.h"

#include <string>
#include <string_view>

namespace velorix {

// A number's digits d1 d2 d3 ... with the point before the digit of that index: 0.d1d2d3 x 10^Point.
// Zero has no digits.
struct DecimalDigits {
    bool Negative = false;
    std::string Digits;
    int Point = 0;
};

// The shortest decimal that reads back as the same 32 bits; for a double at most 15 significant digits.
// The number must be finite.
DecimalDigits ShortestDecimal(Single Value);
DecimalDigits ShortestDecimal(double Value);

// The general number-to-text conversion: the shortest decimal, without a sign on zero, as "0.001", "1250" or,
// from 1E+15 on and below 0.00001, with an exponent: "1E+15", "2.5E-07". Values that are not finite give
// "Infinity", "-Infinity" and "NaN", which no reader takes for a number.
std::string GeneralText(Single Value);
std::string GeneralText(double Value);

// The number at the start of the text, rounded to 32 bits: white space, a sign, digits with at most one
// point, an exponent. What follows is dropped; no number there gives 0. A number beyond 32 bits throws
// ArithmeticFailure.
Single LeadingNumber(std::string_view Text);

// The whole text as a number of 32 or 64 bits; blanks around it are allowed, nothing else. Throws
// ConversionFailure for any other text, the empty one included, and ArithmeticFailure for a number that is
// too large.
Single ParseSingle(std::string_view Text);
double ParseDouble(std::string_view Text);

} // namespace velorix
