// Loss coefficients of a year.
#include "hydraulics/LossCoefficients.h"

#include "hydraulics/Formulas.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {
namespace {

// Comparisons here are quiet: a NaN only means that the tolerance doesn't hold, it is no failure yet.
bool Within(double Value, double Least, double Most)
{
    return std::isgreaterequal(Value, Least) && std::islessequal(Value, Most);
}

bool ZeroOrWithin(double Value, double Least, double Most)
{
    return Value == 0 || Within(std::fabs(Value), Least, Most);
}

} // namespace

bool FindLossCoefficients(int Year, LossCoefficients& Losses)
{
    double Total = 0;
    for (int i = 1; i <= NodeCount; ++i) {
        const double D = InternalDiameter[i];
        const double LengthFactor = Lambda(i, Year) * SectionLength[i];
        const double K = wSecondaryLoss[i];
        if (!Within(D, 0x1p-60, 0x1p60) || !ZeroOrWithin(LengthFactor, 0x1p-200, 0x1p200) ||
            !ZeroOrWithin(K, 0x1p-200, 0x1p200))
            return false;

        const double Area = PipeArea(D);
        const double Friction = LengthFactor / (Area * Area * (D * TwiceGravity));
        const double Secondary = K / (Area * Area * TwiceGravity);
        if (!ZeroOrWithin(Friction, LeastCoefficient, 0x1p200) ||
            !ZeroOrWithin(Secondary, LeastCoefficient, 0x1p200))
            return false;
        Losses.Friction[i - 1] = Friction;
        Losses.Secondary[i - 1] = Secondary;
        Total += std::fabs(Friction) + std::fabs(Secondary);
    }
    Losses.LargestTotal = Total * 1.001; // covers its own roundings and those of the sums that it bounds
    return true;
}

} // namespace velorix
