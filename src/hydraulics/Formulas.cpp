// The formula that calls for logarithms.
#include "hydraulics/Formulas.h"

#include <cmath>

namespace velorix {

double RoughPipeFactor(double D, double ks)
{
    const double Root = 1 / (2 * std::log(3.7 * D / ks) / std::log(10.0));
    return Root * Root;
}

} // namespace velorix
