// From the range of an axis to its ticks: the step, where the axis starts, and how many intervals it has.
#pragma once

#include "base/Single.h"

#include <string>

namespace velorix {

struct AxisTicks {
    Single Step;
    double Origin = 0; // value at the first tick
    int Intervals = 0;

    // Value at tick n, from 1 to Intervals + 1, as it is labelled.
    Single Value(int n) const;
};

// Least and greatest value of what a plot shows.
struct DataRange {
    Single Least;
    Single Most;

    // Widens the range. Throws ArithmeticFailure for a value that is no number.
    void Take(Single Value);
};

// How far up the steps go, and whether the last one serves all greater ranges too. Where no step serves, the
// step is 0 and the axis can't be drawn.
enum class Ladder { ToMillion, ClosedAtMillion, ToTenMillion, ClosedAtTenMillion };

// How the origin is worked: through a 32-bit number, or in 64 bits throughout.
enum class OriginWidth { Single, Double };

// The ticks for the data range. Throws ArithmeticFailure for a range that no step serves, and one that is no
// number.
AxisTicks FindTicks(Single Least, Single Most, Ladder Steps, OriginWidth Width = OriginWidth::Single);

// The smallest rung of 1, 2, 5 x 10^n from 0.001 on that isn't below a tenth of the range; each is tested on
// 32-bit numbers.
Single FindStep(Single Least, Single Most, Ladder Steps);

// A multiple of the step at or below the least value; one step further down for a least value below zero that
// is itself a multiple, the step apart.
double FindOrigin(Single Least, Single Step, OriginWidth Width);

// Intervals that reach the greatest value. The reached value is compared with the greatest value and not with
// the span, so that an axis with an origin above 0 nearly always has one interval more than it needs.
int FindIntervals(Single Most, double Origin, Single Step);

// The format of the labels of a y axis: as many decimals as its step asks for.
std::string LabelFormat(Single Step);

// The label of an x axis, whose range ends at End: the value in at most seven significant digits, a blank
// ahead of a non-negative one, cut to 5 to 8 characters by the size of End. Whole is the text before the cut;
// both are trimmed.
struct XLabel {
    std::string Shown;
    std::string Whole;
};
XLabel FindXLabel(Single Value, Single End);

} // namespace velorix
