// Bounds of the present values over whole intervals of rates.
#pragma once

#include "hydraulics/HydraulicResults.h"

#include <array>

namespace velorix {

// What money grows by in a year at rate k.
inline double GrowthAt(int k)
{
    return 1 + k / 10000.0;
}

// Income less costs as polynomials of what money of the next year is worth now, x = 1 / (1 + r). What comes
// in and what goes out in a year stand apart, so that over an interval of rates each lies between its values
// at the ends.
class RateBounds {
public:
    // Present values at one rate. Turnover is the sum of all amounts by size, whichever way they go.
    struct Values {
        double In;
        double Out;
        double Turnover;
    };

    // Takes the capital cost and the yearly series. False when nothing can be proven with them: a number
    // isn't finite, or the years lie so far out that the scan over the rates might fail.
    bool Take();

    Values At(int k) const;

    // The sign that income less costs, as the scan works it out, certainly has at every rate between the two
    // whose values are given; 0 when that isn't certain.
    static int SignBetween(const Values& Lower, const Values& Higher);

private:
    static constexpr int MostYears = 200; // between base year and supply start, either way
    static constexpr int MostPowers = MostYears + MaxYears;

    void Add(int Power, double Income, double Cost, double Amounts);

    std::array<double, MostPowers> In{}, Out{}, Turnover{}; // index: power of x
    int Powers = 0;
};

} // namespace velorix
