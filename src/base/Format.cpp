// Decimal rounding and layout of a format string.
#include "base/Format.h"

#include "base/NumberText.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

// What a format string asks for.
struct Layout {
    int LeastIntegerDigits = 0;
    int LeastDecimals = 0;
    int MostDecimals = 0;
    bool Grouped = false;
};

Layout ReadPattern(std::string_view Pattern)
{
    Layout Result;
    bool BehindPoint = false;
    for (const char Each : Pattern) {
        if (Each == '.')
            BehindPoint = true;
        else if (Each == ',')
            Result.Grouped = true;
        else if (BehindPoint)
            ++(Each == '0' ? Result.LeastDecimals : Result.MostDecimals);
        else if (Each == '0' || Result.LeastIntegerDigits > 0)
            ++Result.LeastIntegerDigits;
    }
    Result.MostDecimals += Result.LeastDecimals;
    return Result;
}

// Digits of |value| x 10^Decimals rounded to an integer, halves up; without leading zeros.
std::string ScaledDigits(const DecimalDigits& Number, int Decimals)
{
    const int Kept = Number.Point + Decimals; // digits that stand before the cut
    if (Kept < 0) return {};
    const std::size_t Cut = static_cast<std::size_t>(Kept);
    std::string Result = Number.Digits.substr(0, Cut);
    Result.resize(Cut, '0');
    if (Cut >= Number.Digits.size() || Number.Digits[Cut] < '5') return Result;

    auto At = Result.rbegin();
    for (; At != Result.rend() && *At == '9'; ++At) *At = '0';
    if (At == Result.rend()) return "1" + Result;
    ++*At;
    return Result;
}

std::string WithGroups(const std::string& Digits)
{
    std::string Result;
    for (std::size_t Index = 0; Index < Digits.size(); ++Index) {
        if (Index > 0 && (Digits.size() - Index) % 3 == 0) Result += ',';
        Result += Digits[Index];
    }
    return Result;
}

std::string Lay(const DecimalDigits& Number, std::string_view Pattern)
{
    const Layout Asked = ReadPattern(Pattern);
    std::string Digits = ScaledDigits(Number, Asked.MostDecimals);
    const bool Zero = Digits.find_first_not_of('0') == Digits.npos;

    const std::size_t Most = static_cast<std::size_t>(Asked.MostDecimals);
    if (Digits.size() < Most) Digits.insert(0, Most - Digits.size(), '0');
    std::string Decimals = Digits.substr(Digits.size() - Most);
    std::string Whole = Digits.substr(0, Digits.size() - Most);

    while (static_cast<int>(Decimals.size()) > Asked.LeastDecimals && Decimals.back() == '0')
        Decimals.pop_back();
    Whole.erase(0, std::min(Whole.find_first_not_of('0'), Whole.size()));
    const std::size_t Least = static_cast<std::size_t>(Asked.LeastIntegerDigits);
    if (Whole.size() < Least) Whole.insert(0, Least - Whole.size(), '0');

    std::string Result = Number.Negative && !Zero ? "-" : "";
    Result += Asked.Grouped ? WithGroups(Whole) : Whole;
    if (Pattern.find('.') != Pattern.npos) Result += "." + Decimals;
    return Result;
}

template <typename Number>
std::string FormatNumber(Number Value, std::string_view Pattern)
{
    if (!std::isfinite(static_cast<double>(Value))) return GeneralText(Value);
    return Lay(ShortestDecimal(Value), Pattern);
}

} // namespace

std::string Format(Single Value, std::string_view Pattern)
{
    return FormatNumber(Value, Pattern);
}

std::string Format(double Value, std::string_view Pattern)
{
    return FormatNumber(Value, Pattern);
}

std::string Format(int Value, std::string_view Pattern)
{
    return Format(static_cast<double>(Value), Pattern);
}

} // namespace velorix
