// Pipe formulas. Their order of operations fixes the last digit of every result.
#include "hydraulics/Formulas.h"

#include <cmath>

namespace velorix {
double PipeArea(double D)
{
    return Pi * D * D / 4;
}

double Velocity(double Q, double D)
{
    return Q / PipeArea(D);
}

double RoughPipeFactor(double D, double ks)
{
    const double Root = 1 / (2 * std::log(3.7 * D / ks) / std::log(10.0));
    return Root * Root;
}

double FrictionHead(double Q, double D, double L, double f)
{
    const double V = Velocity(Q, D);
    return f * L * V * V / (D * TwiceGravity);
}

double SecondaryHead(double Q, double D, double K)
{
    const double V = Velocity(Q, D);
    return K * V * V / TwiceGravity;
}

} // namespace velorix
