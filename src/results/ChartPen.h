// The pen work that all plots have in common: grid, axes, ticks, labels and titles.
#pragma once

#include "platform/DrawingSurface.h"
#include "results/ChartFrame.h"
#include "results/PlotTable.h"

#include <functional>

namespace velorix {

constexpr Color GridGrey = Rgb(128, 128, 128);

// A plot on its way to the surface: where it is drawn, which plot it is, its frame and its ticks.
struct Chart {
    DrawingSurface& Surface;
    const PlotParameters& Parameters;
    ChartFrame Frame{};
    AxisTicks X{};
    AxisTicks Y{};
};

// Wipes the surface and sets the frame's rectangle.
void StartChart(Chart& Plot);

// The ticks of both axes, by the ladders of the plot. Throw what FindTicks throws.
void SetXTicks(Chart& Plot, Single Least, Single Most);
void SetYTicks(Chart& Plot, const DataRange& Values);

// Puts the pen on: a colour, one pixel wide.
void TakePen(DrawingSurface& Surface, Color Ink, DrawStyle Style = DrawStyle::Solid);

// Grid lines, dashed and thin; the font for what follows is set to size 8.
void StartGrid(Chart& Plot, Color Ink = GridGrey);
void DrawHorizontalGrid(Chart& Plot);
void DrawVerticalGrid(Chart& Plot);

void DrawAxes(Chart& Plot);

// Labels and ticks of the y axis, of the x axis of a plot whose range ends at End, and of an x axis whose
// labels are numbers in that format.
void DrawYLabels(Chart& Plot);
void DrawXLabels(Chart& Plot, Single End);
void DrawXLabels(Chart& Plot, const char* Format);

// A label of a y axis beside the tick at TickY.
void PrintYLabel(Chart& Plot, const std::string& Label, int Column, int TickY);

// A label below the x axis. The width of the measured text, narrower or wider than the label, is centred on
// X.
void PrintXLabel(Chart& Plot, const std::string& Label, const std::string& Measured, int X);
void DrawXTickMark(Chart& Plot, int X);

// The title below the middle of the x axis, in the font in force.
void DrawXTitle(Chart& Plot, const std::string& Title);

// A line through the points (X(i), Y(i)), i from First to Last. The first only sets the pen.
using PositionOf = std::function<int(int)>;
void DrawCurve(DrawingSurface& Surface, int First, int Last, const PositionOf& X, const PositionOf& Y);

} // namespace velorix
