// Interval arithmetic on the plain formulas.
#include "hydraulics/PressureRange.h"

#include "hydraulics/Formulas.h"
#include "hydraulics/Normalise.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

struct Range {
    Single Low;
    Single High;

    // Adds what lies between the two ends, whichever is the larger.
    void Add(double OneEnd, double OtherEnd)
    {
        Low += std::fmin(OneEnd, OtherEnd);
        High += std::fmax(OneEnd, OtherEnd);
    }
};

} // namespace

RangeOutcome JudgeFlows(int Year, double A, double B)
{
    const bool CrossesZero = (A < 0) != (B < 0);
    const double Least = CrossesZero ? 0.0 : std::min(std::fabs(A), std::fabs(B));
    const double Most = std::max(std::fabs(A), std::fabs(B));

    RangeOutcome Outcome{false, true, 0};
    Range Friction, Secondary;
    for (int i = 1; i <= NodeCount; ++i) {
        const double D = InternalDiameter[i];
        const double L = SectionLength[i];
        const double f = Lambda(i, Year);
        const double K = wSecondaryLoss[i];
        Friction.Add(FrictionHead(Least, D, L, f), FrictionHead(Most, D, L, f));
        Secondary.Add(SecondaryHead(Least, D, K), SecondaryHead(Most, D, K));

        const double Static = StaticHead(i);
        const Single Lowest = Static - Friction.High - Secondary.High;
        const Single Highest = Static - Friction.Low - Secondary.Low;
        Outcome.Last = Highest;
        if (i == NodeCount) break; // the last row has no section to judge
        if (std::islessequal(Highest, -1)) Outcome.SomeBelow = true;
        if (!std::isgreater(Lowest, -1)) Outcome.AllAbove = false;
    }
    return Outcome;
}

} // namespace velorix
