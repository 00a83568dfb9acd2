// The frame of a plot: from data values to positions on the surface, and back.
#pragma once

#include "results/AxisTicks.h"

#include <cstdint>
#include <optional>

namespace velorix {

// The data stands this far from the axis lines (twips).
constexpr int FrameInset = 220;

// The rectangle of the axes in twips, and surface units a data unit. The top of the data is at YTop - 220,
// its bottom at YBottom - 220; its sides are at XLeft + 220 and XRight + 220.
struct ChartScale {
    std::int16_t XLeft = 0;
    std::int16_t XRight = 0;
    std::int16_t YBottom = 0;
    std::int16_t YTop = 0;
    Single XScale;
    Single YScale;

    bool operator==(const ChartScale&) const = default;
};

// Data values at the first grid lines.
struct ChartOrigin {
    double XOrigin = 0;
    double YOrigin = 0;
    bool operator==(const ChartOrigin&) const = default;
};

// The second y axis of the pump curve.
struct SecondAxis {
    Single Y2Scale;
    double Y2Origin = 0;
    bool operator==(const SecondAxis&) const = default;
};

// How wide the positions of a plot are; one beyond is held at the bound.
enum class PositionWidth { Bits16, Bits32 };

struct ChartFrame : ChartScale, ChartOrigin {
    PositionWidth Positions = PositionWidth::Bits16;

    bool operator==(const ChartFrame&) const = default;

    // The rectangle for a surface of that size.
    void SetRectangle(double Width, double Height, int LeftMargin, int RightMargin);

    // Scales and origins for the ticks of both axes. Throws ArithmeticFailure for an axis without a range.
    void SetAxes(const AxisTicks& X, const AxisTicks& Y);

    // Position of a data value. Throws ArithmeticFailure for a value that is no number.
    int X(double Value) const;
    int Y(double Value) const;
    int Y2(double Value, const SecondAxis& Second) const;

    // Position of tick n, from 1, on the axis.
    int XTick(const AxisTicks& Ticks, int n) const;
    int YTick(const AxisTicks& Ticks, int n) const;
    int Y2Tick(const AxisTicks& Ticks, int n, const SecondAxis& Second) const;

    int DataBottom() const { return YBottom - FrameInset; }
    int DataTop() const { return YTop - FrameInset; }
    int DataRight() const { return XRight + FrameInset; }

    int Place(double Position) const; // rounded, halves to even, and held at the bound
};

// Surface units a data unit on an axis of that length.
Single AxisScale(int Length, const AxisTicks& Ticks);

// What the pointer is at: the data values there; nothing outside the data, whose edges belong to it.
struct PointedAt {
    double X;
    double Y;
    double FromBottom; // surface units above the data's bottom, for a second axis
};
std::optional<PointedAt> ReadFrame(const ChartScale& Scale, const ChartOrigin& Origin, double X, double Y);

// The slots. Plots that share a slot overwrite each other's frame, so that the read-out of the hydraulic plot
// goes by the scale of a duty plot drawn after it, with its own origin, until it is drawn again.
extern ChartFrame ProfileFrame;     // the profile plots of frmView and frmViewRoughness
extern ChartScale ResultsFrame;     // hydraulic plot, pump curve, pump and system curves
extern ChartOrigin HydraulicOrigin; // hydraulic plot
extern ChartOrigin CurveOrigin;     // pump curve, pump and system curves
extern SecondAxis CurveSecondAxis;  // pump curve
extern ChartFrame IRRFrame;         // IRR graph

void ResetChartFrames();

} // namespace velorix
