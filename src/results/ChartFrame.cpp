// Scales and positions.
#include "results/ChartFrame.h"

#include "base/Arithmetic.h"

#include <algorithm>
#include <limits>

namespace velorix {

ChartFrame ProfileFrame;
ChartScale ResultsFrame;
ChartOrigin HydraulicOrigin;
ChartOrigin CurveOrigin;
SecondAxis CurveSecondAxis;
ChartFrame IRRFrame;

namespace {

constexpr int BottomMargin = 470;
constexpr int TopMargin = 570;

template <typename Integer>
int HeldIn(double Value)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<int>(std::clamp<double>(Value, Limits::min(), Limits::max()));
}

} // namespace

void ChartFrame::SetRectangle(double Width, double Height, int LeftMargin, int RightMargin)
{
    XLeft = static_cast<std::int16_t>(LeftMargin);
    XRight = RoundToInt16(RoundToInt16(Width) - RightMargin);
    YTop = TopMargin;
    YBottom = RoundToInt16(RoundToInt16(Height) - BottomMargin);
}

Single AxisScale(int Length, const AxisTicks& Ticks)
{
    return Checked(Length / (Ticks.Step * Ticks.Intervals));
}

void ChartFrame::SetAxes(const AxisTicks& X, const AxisTicks& Y)
{
    XScale = AxisScale(XRight - XLeft, X);
    YScale = AxisScale(YBottom - YTop, Y);
    XOrigin = X.Origin;
    YOrigin = Y.Origin;
}

int ChartFrame::Place(double Position) const
{
    CheckArithmetic();
    const double Rounded = RoundEven(Ordered(Position));
    return Positions == PositionWidth::Bits16 ? HeldIn<std::int16_t>(Rounded) : HeldIn<std::int32_t>(Rounded);
}

int ChartFrame::X(double Value) const
{
    return Place((XLeft + FrameInset) + (Value - XOrigin) * XScale);
}

int ChartFrame::Y(double Value) const
{
    return Place((YBottom - FrameInset) - (Value - YOrigin) * YScale);
}

int ChartFrame::Y2(double Value, const SecondAxis& Second) const
{
    return Place((YBottom - FrameInset) - (Value - Second.Y2Origin) * Second.Y2Scale);
}

int ChartFrame::XTick(const AxisTicks& Ticks, int n) const
{
    return Place((XLeft + FrameInset) + Ticks.Step * XScale * (n - 1));
}

int ChartFrame::YTick(const AxisTicks& Ticks, int n) const
{
    return Place((YBottom - FrameInset) - Ticks.Step * YScale * (n - 1));
}

int ChartFrame::Y2Tick(const AxisTicks& Ticks, int n, const SecondAxis& Second) const
{
    return Place((YBottom - FrameInset) - Ticks.Step * Second.Y2Scale * (n - 1));
}

std::optional<PointedAt> ReadFrame(const ChartScale& Scale, const ChartOrigin& Origin, double X, double Y)
{
    const bool Drawn = Scale.XScale != 0 && Scale.YScale != 0;
    const double FromLeft = X - (Scale.XLeft + FrameInset);
    const double FromBottom = (Scale.YBottom - FrameInset) - Y;
    if (!Drawn || FromLeft < 0 || X > Scale.XRight + FrameInset || FromBottom < 0 ||
        Y < Scale.YTop - FrameInset)
        return std::nullopt;
    return PointedAt{FromLeft / Scale.XScale + Origin.XOrigin, FromBottom / Scale.YScale + Origin.YOrigin,
                     FromBottom};
}

void ResetChartFrames()
{
    ProfileFrame = IRRFrame = {};
    ResultsFrame = {};
    HydraulicOrigin = CurveOrigin = {};
    CurveSecondAxis = {};
}

} // namespace velorix
