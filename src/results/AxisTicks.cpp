// Steps, origins, counts and label texts of an axis. What is compared is rounded to 32 bits first, which
// decides whether a value on a tick counts as reached.
#include "results/AxisTicks.h"

#include "base/Arithmetic.h"
#include "base/NumberText.h"
#include "base/Text.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace velorix {
namespace {

constexpr double IntervalsAimedAt = 10;

constexpr std::array Rungs = {0.001,  0.002,   0.005,   0.01,    0.02, 0.05,  0.1,   0.2,   0.5,    1.0,
                              2.0,    5.0,     10.0,    20.0,    50.0, 100.0, 200.0, 500.0, 1000.0, 2000.0,
                              5000.0, 10000.0, 20000.0, 50000.0, 1e5,  2e5,   5e5,   1e6};
constexpr std::array MoneyRungs = {5e6, 1e7};

bool IsClosed(Ladder Steps)
{
    return Steps == Ladder::ClosedAtMillion || Steps == Ladder::ClosedAtTenMillion;
}

bool GoesToTenMillion(Ladder Steps)
{
    return Steps == Ladder::ToTenMillion || Steps == Ladder::ClosedAtTenMillion;
}

// k * step as it is compared, in 32 bits.
Single Reached(double k, Single Step)
{
    return Checked(k * Step);
}

double Rounded(double Quotient)
{
    return RoundEven(Checked(Quotient));
}

double OriginAbove(Single Least, Single Step)
{
    if (Step > Least) return 0;
    if (Step == Least) return Least;
    const double k = Rounded(Least / Step);
    return Reached(k, Step) <= Least ? k * Step : (k - 1) * Step;
}

double OriginBelow(Single Least, Single Step)
{
    double Origin = 0;
    const Single Depth = std::fabs(Least);
    if (Depth > std::fabs(Step)) {
        for (int i = 1; i <= IntervalsAimedAt; ++i) {
            if (!(Depth < std::fabs(Reached(i, Step)))) continue;
            Origin = -(Step * i);
            break;
        }
    }
    if (Least == -Step) Origin = Least;
    if (Depth < std::fabs(Step)) Origin = -Step;
    return Origin;
}

} // namespace

void DataRange::Take(Single Value)
{
    if (Ordered(Value) < Least) Least = Value;
    if (Value > Most) Most = Value;
}

Single AxisTicks::Value(int n) const
{
    return Checked(Step * (n - 1) + Origin);
}

Single FindStep(Single Least, Single Most, Ladder Steps)
{
    const Single Raw = Checked((Most - Least) / IntervalsAimedAt);
    Ordered(Raw);
    for (const Single Rung : Rungs)
        if (Raw <= Rung) return Rung;
    if (GoesToTenMillion(Steps))
        for (const Single Rung : MoneyRungs)
            if (Raw <= Rung) return Rung;
    if (!IsClosed(Steps)) return 0;
    return GoesToTenMillion(Steps) ? MoneyRungs.back() : Rungs.back();
}

double FindOrigin(Single Least, Single Step, OriginWidth Width)
{
    double Origin = 0;
    if (Least > 0) Origin = OriginAbove(Least, Step);
    if (Least < 0) Origin = OriginBelow(Least, Step);
    return Width == OriginWidth::Single ? static_cast<double>(Checked(Origin)) : Origin;
}

int FindIntervals(Single Most, double Origin, Single Step)
{
    const Single Span = Checked(Most - Origin);
    const double k = Rounded(Span / Step);
    return RoundToInt16(Reached(k, Step) < Most ? k + 1 : k);
}

AxisTicks FindTicks(Single Least, Single Most, Ladder Steps, OriginWidth Width)
{
    AxisTicks Ticks;
    Ticks.Step = FindStep(Least, Most, Steps);
    Ticks.Origin = FindOrigin(Least, Ticks.Step, Width);
    Ticks.Intervals = FindIntervals(Most, Ticks.Origin, Ticks.Step);
    return Ticks;
}

std::string LabelFormat(Single Step)
{
    if (Step <= Single(0.01)) return "##0.000";
    if (Step <= Single(0.1)) return "##0.00";
    return Step < 1 ? "##0.0" : "##0";
}

XLabel FindXLabel(Single Value, Single End)
{
    char Digits[32];
    std::snprintf(Digits, sizeof Digits, "%.7g", static_cast<double>(Value));
    std::string Text = GeneralText(Single(std::strtod(Digits, nullptr)));
    if (Value >= 0) Text.insert(0, 1, ' ');

    const std::int32_t Last = RoundToInt32(End);
    std::size_t Length = 5;
    for (std::int32_t Bound = 1000; Bound <= 100000 && Last >= Bound; Bound *= 10) ++Length;
    return {Trim(Text.substr(0, Length)), Trim(Text)};
}

} // namespace velorix
