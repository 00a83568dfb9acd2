// Number texts, on top of std::to_chars and std::from_chars.
#include "base/NumberText.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace velorix {
namespace {

constexpr int SignificantDigitsOfDouble = 15;

// From scientific notation, "-d.ddde+xx", to digits and the place of the point.
DecimalDigits FromScientific(std::string_view Text)
{
    DecimalDigits Result;
    if (Text.front() == '-') {
        Result.Negative = true;
        Text.remove_prefix(1);
    }
    const std::size_t Exponent = Text.find('e');
    for (const char Each : Text.substr(0, Exponent))
        if (Each != '.') Result.Digits += Each;
    while (!Result.Digits.empty() && Result.Digits.back() == '0') Result.Digits.pop_back();
    if (Result.Digits.empty()) return {};

    std::string_view Power = Text.substr(Exponent + 1);
    if (Power.front() == '+') Power.remove_prefix(1);
    std::from_chars(Power.data(), Power.data() + Power.size(), Result.Point);
    Result.Point += 1; // the point moves from behind the first digit to before it
    return Result;
}

template <typename Number, typename... Precision>
DecimalDigits DigitsOf(Number Value, Precision... Digits)
{
    char Buffer[64];
    const auto End =
        std::to_chars(Buffer, Buffer + sizeof Buffer, Value, std::chars_format::scientific, Digits...);
    return FromScientific({Buffer, static_cast<std::size_t>(End.ptr - Buffer)});
}

std::string WithExponent(const DecimalDigits& Number)
{
    std::string Result = Number.Digits.substr(0, 1);
    if (Number.Digits.size() > 1) Result.append(1, '.').append(Number.Digits, 1);
    const int Power = Number.Point - 1;
    const std::string Size = std::to_string(std::abs(Power));
    return Result + (Power < 0 ? "E-" : "E+") + (Size.size() < 2 ? "0" : "") + Size;
}

std::string General(const DecimalDigits& Number)
{
    constexpr int LargestPlainPoint = 15;
    constexpr int SmallestPlainPoint = -4;
    if (Number.Digits.empty()) return "0";

    const int Count = static_cast<int>(Number.Digits.size());
    std::string Result;
    if (Number.Point > LargestPlainPoint || Number.Point < SmallestPlainPoint)
        Result = WithExponent(Number);
    else if (Number.Point <= 0)
        Result = "0." + std::string(static_cast<std::size_t>(-Number.Point), '0') + Number.Digits;
    else if (Number.Point >= Count)
        Result = Number.Digits + std::string(static_cast<std::size_t>(Number.Point - Count), '0');
    else
        Result = Number.Digits.substr(0, static_cast<std::size_t>(Number.Point)) + "." +
                 Number.Digits.substr(static_cast<std::size_t>(Number.Point));
    return Number.Negative ? "-" + Result : Result;
}

template <typename Number>
std::string GeneralTextOf(Number Value)
{
    const double Wide = Value;
    if (std::isnan(Wide)) return "NaN";
    if (std::isinf(Wide)) return Wide < 0 ? "-Infinity" : "Infinity";
    return General(ShortestDecimal(Value));
}

bool IsDigit(char Each)
{
    return Each >= '0' && Each <= '9';
}

// Length of the number at the start of the text, the sign included: -12.5E+3. Zero when there is none.
std::size_t NumberLength(std::string_view Text)
{
    std::size_t At = 0;
    const auto SkipDigits = [&] {
        const std::size_t From = At;
        while (At < Text.size() && IsDigit(Text[At])) ++At;
        return At - From;
    };
    if (At < Text.size() && (Text[At] == '-' || Text[At] == '+')) ++At;
    std::size_t Digits = SkipDigits();
    if (At < Text.size() && Text[At] == '.') {
        ++At;
        Digits += SkipDigits();
    }
    if (Digits == 0) return 0;

    const std::size_t MantissaEnd = At;
    if (At < Text.size() && (Text[At] == 'E' || Text[At] == 'e')) {
        ++At;
        if (At < Text.size() && (Text[At] == '-' || Text[At] == '+')) ++At;
        if (SkipDigits() == 0) At = MantissaEnd;
    }
    return At;
}

// Which end of the range a number is beyond, as from_chars doesn't say. The number isn't zero.
bool IsBelowOne(std::string_view Text)
{
    const std::string_view Mantissa = Text.substr(0, Text.find_first_of("Ee"));
    const auto Point = static_cast<long long>(std::min(Mantissa.find('.'), Mantissa.size()));
    const auto First = static_cast<long long>(Mantissa.find_first_of("123456789"));
    const long long Power = First < Point ? Point - First - 1 : Point - First;
    if (Mantissa.size() == Text.size()) return Power < 0;

    std::string_view Digits = Text.substr(Mantissa.size() + 1);
    if (Digits.front() == '+') Digits.remove_prefix(1);
    int Exponent = 0;
    const auto Read = std::from_chars(Digits.data(), Digits.data() + Digits.size(), Exponent);
    return Read.ec == std::errc() ? Power + Exponent < 0 : Digits.front() == '-';
}

// Reads a text that NumberLength has measured.
template <typename Number>
Number ReadNumber(std::string_view Text)
{
    if (Text.front() == '+') Text.remove_prefix(1);
    Number Value = 0;
    const auto Read = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
    if (Read.ec != std::errc::result_out_of_range) return Value;

    // Too small to be told from zero is no failure.
    if (IsBelowOne(Text)) return Text.front() == '-' ? -Number(0) : Number(0);
    throw ArithmeticFailure("overflow: " + std::string(Text) + " is too large");
}

template <typename Number>
Number ParseNumber(std::string_view Text)
{
    const std::string_view Inner = Trimmed(Text);
    const std::size_t Length = NumberLength(Inner);
    if (Length == 0 || Length != Inner.size()) throw ConversionFailure(std::string(Text));
    return ReadNumber<Number>(Inner);
}

// Whatever looks empty in a text from elsewhere: blanks, tabs, line ends, no-break spaces.
std::string_view WithoutLeadingSpace(std::string_view Text)
{
    constexpr std::string_view NoBreakSpace = "\u00A0";
    while (true) {
        Text.remove_prefix(std::min(Text.find_first_not_of(" \t\r\n"), Text.size()));
        if (!Text.starts_with(NoBreakSpace)) return Text;
        Text.remove_prefix(NoBreakSpace.size());
    }
}

} // namespace

DecimalDigits ShortestDecimal(Single Value)
{
    return DigitsOf(Value.Float());
}

DecimalDigits ShortestDecimal(double Value)
{
    return DigitsOf(Value, SignificantDigitsOfDouble - 1);
}

std::string GeneralText(Single Value)
{
    return GeneralTextOf(Value);
}

std::string GeneralText(double Value)
{
    return GeneralTextOf(Value);
}

Single LeadingNumber(std::string_view Text)
{
    const std::string_view Number = WithoutLeadingSpace(Text);
    const std::size_t Length = NumberLength(Number);
    return Length == 0 ? Single(0.0) : Single(ReadNumber<float>(Number.substr(0, Length)));
}

Single ParseSingle(std::string_view Text)
{
    return Single(ParseNumber<float>(Text));
}

double ParseDouble(std::string_view Text)
{
    return ParseNumber<double>(Text);
}

} // namespace velorix
