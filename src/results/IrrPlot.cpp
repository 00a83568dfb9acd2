// The IRR graph. Its positions are 32 bits wide, since money is.
#include "results/IrrPlot.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "platform/Platform.h"
#include "results/ChartPen.h"
#include "screens/Pictures.h"
#include "screens/Viewers.h"

#include <utility>

namespace velorix {
namespace {

constexpr double BarUnitsPerPercent = 100;

DataRange DifferencesBetween(int Begin, int End)
{
    DataRange Differences{IrrDifference[Begin], IrrDifference[Begin]};
    for (int i = Begin; i <= End; ++i) Differences.Take(IrrDifference[i]);
    return Differences;
}

// Amounts that span too much have no step on the axis, or lie below its origin.
bool HasAxis(int Begin, int End)
{
    bool Fits = false;
    Stands([&] {
        const DataRange Differences = DifferencesBetween(Begin, End);
        Fits = FindTicks(Differences.Least, Differences.Most, IrrPlot.YSteps, IrrPlot.Origins).Origin <=
               Differences.Least;
    });
    return Fits;
}

// All rates, or else those around the rate of return, as many whole percent on both sides as have an axis.
std::pair<int, int> RangeForPaper()
{
    constexpr int Percent = 100;
    const int Least = frmIRRView.hsbBegin.Min;
    const int Most = frmIRRView.hsbEnd.Max;
    ClearArithmeticFlags();
    if (HasAxis(Least, Most) || !(Irr >= 0 && Irr < Most / BarUnitsPerPercent)) return {Least, Most};
    int Begin = static_cast<int>(Irr) * Percent;
    int End = Begin + Percent;
    if (!HasAxis(Begin, End)) return {Least, Most};
    for (bool Wider = true; Wider;) {
        Wider = false;
        if (Begin > Least && HasAxis(Begin - Percent, End)) Begin -= Percent, Wider = true;
        if (End < Most && HasAxis(Begin, End + Percent)) End += Percent, Wider = true;
    }
    return {Begin, End};
}

void DrawBetween(int Begin, int End)
{
    Chart Plot{frmIRRView.picIRR, IrrPlot};
    StartChart(Plot);
    SetXTicks(Plot, Begin / BarUnitsPerPercent, End / BarUnitsPerPercent);
    SetYTicks(Plot, DifferencesBetween(Begin, End));
    Plot.Frame.SetAxes(Plot.X, Plot.Y);
    IRRFrame = Plot.Frame;

    StartGrid(Plot);
    DrawHorizontalGrid(Plot);
    DrawVerticalGrid(Plot);
    DrawAxes(Plot);
    Plot.Surface.DrawPicture(imgIRRLegend, 10, 1600);
    DrawYLabels(Plot);
    DrawXLabels(Plot, "###0.0");

    TakePen(Plot.Surface, PureBlue);
    DrawCurve(
        Plot.Surface, Begin, End, [&](int i) { return Plot.Frame.X(IrrRate[i]); },
        [&](int i) { return Plot.Frame.Y(IrrDifference[i]); });

    Plot.Surface.SetFontBold(false);
    Plot.Surface.SetFontSize(9);
    Plot.Surface.SetForeColor(Black);
    DrawXTitle(Plot, "IRR (%)");
}

} // namespace

void DrawIrrGraph()
{
    const int Begin = frmIRRView.hsbBegin.Value;
    const int End = frmIRRView.hsbEnd.Value;
    if (Begin >= End)
        return Warn("The begin IRR value should be smaller than the end IRR value !", "Velorix ERROR !");
    if (!Stands([&] { DrawBetween(Begin, End); }))
        Inform("Could not show the Internal Rate of Return graph.");
}

void OpenIrrGraph()
{
    frmIRRView.LoadHidden();
    frmIRRView.hsbBegin.Value = frmIRRView.hsbBegin.Min;
    frmIRRView.hsbEnd.Value = frmIRRView.hsbEnd.Max;
}

void OpenIrrGraphForPaper()
{
    const auto [Begin, End] = RangeForPaper();
    frmIRRView.LoadHidden();
    frmIRRView.hsbBegin.Value = Begin;
    frmIRRView.hsbEnd.Value = End;
    DrawIrrGraph();
}

} // namespace velorix
