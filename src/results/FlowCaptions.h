// Flow and pumping head of a year as screen and paper show them, and the unit texts beside the plots.
#pragma once

#include "base/Single.h"

#include <string>

namespace velorix {

// Flow with the unit that the input screen's list shows now, as "12.500 l/s", and in a pumping system the
// head over the pump station's water level; empty where a figure can't be worked out.
struct FlowFacts {
    std::string Flow;
    std::string Head;
};
FlowFacts FactsOfYear(int Year);

// "m", "km", "ft" or "miles"; empty for an index outside the list.
std::string LengthUnit();
std::string ElevationUnit();

// "(m)"; nothing for no unit.
std::string InBrackets(const std::string& Unit);

// From the unit of wKsNew to metres; 0 for an index outside the list.
double KsNewFactor();

// The unit in which the demand is entered, as its list shows it.
std::string DemandUnit();

// The figure in that format, one that is stored by its 32 bits; empty when it can't be worked out or is no
// number.
std::string FigureText(Single Figure, const char* Pattern);
std::string FigureText(double Figure, const char* Pattern);

// The figure in "#0.000" with the unit behind a blank; empty when the figure is.
template <typename Number>
std::string FigureWithUnit(Number Figure, const std::string& Unit)
{
    const std::string Text = FigureText(Figure, "#0.000");
    return Text.empty() ? Text : Text + " " + Unit;
}

} // namespace velorix
