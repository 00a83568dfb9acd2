// The IRR graph. Its positions are 32 bits wide, since money is.
#include "results/IrrPlot.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "cost/CostResults.h"
#include "platform/Platform.h"
#include "results/ChartPen.h"
#include "screens/Pictures.h"
#include "screens/Viewers.h"

namespace velorix {
namespace {

constexpr double BarUnitsPerPercent = 100;

AxisTicks DifferenceTicks(int Begin, int End)
{
    DataRange Differences{IrrDifference[Begin], IrrDifference[Begin]};
    for (int i = Begin; i <= End; ++i) Differences.Take(IrrDifference[i]);
    return FindTicks(Differences.Least, Differences.Most, Ladder::ToTenMillion, OriginWidth::Double);
}

void DrawBetween(int Begin, int End)
{
    constexpr int LabelColumn = 500;
    Chart Plot{frmIRRView.picIRR, {}, {}, {}, LabelColumn};
    Plot.Frame.Positions = PositionWidth::Bits32;
    StartChart(Plot, 1500, 600);
    Plot.X = FindTicks(Begin / BarUnitsPerPercent, End / BarUnitsPerPercent, Ladder::ClosedAtMillion,
                       OriginWidth::Double);
    Plot.Y = DifferenceTicks(Begin, End);
    Plot.Frame.SetAxes(Plot.X, Plot.Y);
    IRRFrame = Plot.Frame;

    StartGrid(Plot);
    DrawHorizontalGrid(Plot);
    DrawVerticalGrid(Plot);
    DrawAxes(Plot);
    Plot.Surface.DrawPicture(imgIRRLegend, 10, 1600);
    DrawYLabels(Plot);
    DrawXLabels(Plot, "###0.0");

    TakePen(Plot.Surface, Rgb(0, 0, 255));
    DrawCurve(
        Plot.Surface, Begin, End, [&](int i) { return Plot.Frame.X(IrrRate[i]); },
        [&](int i) { return Plot.Frame.Y(IrrDifference[i]); });

    Plot.Surface.SetFontBold(false);
    Plot.Surface.SetFontSize(9);
    Plot.Surface.SetForeColor(Black);
    DrawXTitle(Plot, "IRR (%)", Plot.X.Step * Plot.X.Intervals * Plot.Frame.XScale, 270);
}

} // namespace

void DrawIrrGraph()
{
    const int Begin = frmIRRView.hsbBegin.Value;
    const int End = frmIRRView.hsbEnd.Value;
    if (Begin >= End)
        return Warn("The begin IRR value should be smaller than the end IRR value !", "Velorix ERROR !");
    ClearArithmeticFlags();
    try {
        DrawBetween(Begin, End);
    } catch (const Failure&) {
        ClearArithmeticFlags();
        Inform("Could not show the Internal Rate of Return graph.");
    }
}

} // namespace velorix
