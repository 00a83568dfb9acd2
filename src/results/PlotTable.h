// What sets the frame of one plot apart from that of another.
#pragma once

#include "results/AxisTicks.h"
#include "results/ChartFrame.h"

#include <limits>

namespace velorix {

constexpr int AsCounted = std::numeric_limits<int>::min(); // what the range gives, whatever it is

// Lengths in twips. The bar charts have no ladder along x: a step there is a year.
struct PlotParameters {
    int LeftMargin;
    int RightMargin;
    Ladder XSteps;
    Ladder YSteps;
    int LabelColumn; // where the labels of the y axis stand
    int XTitleBelow; // from the x axis down to its title
    int LeastYIntervals = AsCounted;
    PositionWidth Positions = PositionWidth::Bits16;
    OriginWidth Origins = OriginWidth::Single;
};

constexpr PlotParameters ProfilePlot{800, 600, Ladder::ToMillion, Ladder::ToMillion, 300, 250};
constexpr PlotParameters PumpCurvePlot{800, 1050, Ladder::ToMillion, Ladder::ToMillion, 300, 270};
constexpr PlotParameters PumpAndSystemPlot{800, 600, Ladder::ToMillion, Ladder::ToMillion, 300, 270};
constexpr PlotParameters DemandPlot{800, 600, Ladder::ToMillion, Ladder::ToMillion, 300, 270, 2};
constexpr PlotParameters IncomePlot{1000, 600, Ladder::ToMillion, Ladder::ClosedAtTenMillion, 100, 270, 2};
constexpr PlotParameters IrrPlot{1500, 600, Ladder::ClosedAtMillion, Ladder::ToTenMillion, 500,
                                 270,  2,   PositionWidth::Bits32,   OriginWidth::Double};

// Where the pictures of the y titles stand.
constexpr int YTitleLeft = 11;

} // namespace velorix
