// Grid, axes and labels.
#include "results/ChartPen.h"

#include "base/Arithmetic.h"
#include "base/Format.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int TickLength = 40;
constexpr int HalfLabel = 85;    // from a tick up to the top of its label
constexpr int XLabelBelow = 50;  // from the axis down to the labels
constexpr int TitleBefore = 300; // the title starts this far before the middle

} // namespace

void StartChart(Chart& Plot)
{
    Plot.Surface.Clear();
    Plot.Frame.Positions = Plot.Parameters.Positions;
    Plot.Frame.SetRectangle(Plot.Surface.ScaleWidth(), Plot.Surface.ScaleHeight(), Plot.Parameters.LeftMargin,
                            Plot.Parameters.RightMargin);
}

void SetXTicks(Chart& Plot, Single Least, Single Most)
{
    Plot.X = FindTicks(Least, Most, Plot.Parameters.XSteps, Plot.Parameters.Origins);
}

void SetYTicks(Chart& Plot, const DataRange& Values)
{
    Plot.Y = FindTicks(Values.Least, Values.Most, Plot.Parameters.YSteps, Plot.Parameters.Origins);
    Plot.Y.Intervals = std::max(Plot.Y.Intervals, Plot.Parameters.LeastYIntervals);
}

void TakePen(DrawingSurface& Surface, Color Ink, DrawStyle Style)
{
    Surface.SetForeColor(Ink);
    Surface.SetDrawWidth(1);
    Surface.SetDrawStyle(Style);
}

void StartGrid(Chart& Plot, Color Ink)
{
    TakePen(Plot.Surface, Ink, DrawStyle::Dashed);
    Plot.Surface.SetFontSize(8);
}

void DrawHorizontalGrid(Chart& Plot)
{
    for (int n = 1; n <= Plot.Y.Intervals + 1; ++n) {
        const int y = Plot.Frame.YTick(Plot.Y, n);
        Plot.Surface.Line(Plot.Frame.XLeft, y, Plot.Frame.DataRight(), y);
    }
}

void DrawVerticalGrid(Chart& Plot)
{
    for (int n = 1; n <= Plot.X.Intervals + 1; ++n) {
        const int x = Plot.Frame.XTick(Plot.X, n);
        Plot.Surface.Line(x, Plot.Frame.YBottom, x, Plot.Frame.DataTop());
    }
}

void DrawAxes(Chart& Plot)
{
    TakePen(Plot.Surface, Black);
    Plot.Surface.Line(Plot.Frame.XLeft, Plot.Frame.DataTop(), Plot.Frame.XLeft, Plot.Frame.YBottom);
    Plot.Surface.LineTo(Plot.Frame.DataRight(), Plot.Frame.YBottom);
}

void DrawYLabels(Chart& Plot)
{
    const std::string Pattern = LabelFormat(Plot.Y.Step);
    for (int n = 1; n <= Plot.Y.Intervals + 1; ++n) {
        const int y = Plot.Frame.YTick(Plot.Y, n);
        PrintYLabel(Plot, Format(Plot.Y.Value(n), Pattern), Plot.Parameters.LabelColumn, y);
        Plot.Surface.Line(Plot.Frame.XLeft, y, Plot.Frame.XLeft + TickLength, y);
    }
}

void PrintYLabel(Chart& Plot, const std::string& Label, int Column, int TickY)
{
    Plot.Surface.CurrentX = Column;
    Plot.Surface.CurrentY = TickY - HalfLabel;
    Plot.Surface.PrintText(Label);
}

void PrintXLabel(Chart& Plot, const std::string& Label, const std::string& Measured, int X)
{
    Plot.Surface.CurrentX = X - Plot.Surface.TextWidth(Measured) / 2;
    Plot.Surface.CurrentY = Plot.Frame.YBottom + XLabelBelow;
    Plot.Surface.PrintText(Label);
}

void DrawXTickMark(Chart& Plot, int X)
{
    Plot.Surface.Line(X, Plot.Frame.YBottom - TickLength, X, Plot.Frame.YBottom);
}

void DrawXLabels(Chart& Plot, Single End)
{
    for (int n = 1; n <= Plot.X.Intervals + 1; ++n) {
        const int x = Plot.Frame.XTick(Plot.X, n);
        const XLabel Label = FindXLabel(Plot.X.Value(n), End);
        PrintXLabel(Plot, Label.Shown, Label.Whole, x);
        DrawXTickMark(Plot, x);
    }
}

void DrawXLabels(Chart& Plot, const char* Pattern)
{
    for (int n = 1; n <= Plot.X.Intervals + 1; ++n) {
        const int x = Plot.Frame.XTick(Plot.X, n);
        const std::string Label = Format(Plot.X.Value(n), Pattern);
        PrintXLabel(Plot, Label, Label, x);
        DrawXTickMark(Plot, x);
    }
}

void DrawXTitle(Chart& Plot, const std::string& Title)
{
    const double Width = Plot.X.Step * Plot.X.Intervals * Plot.Frame.XScale;
    Plot.Surface.CurrentX = Plot.Frame.XLeft + RoundEven(Width / 2) - TitleBefore;
    Plot.Surface.CurrentY = Plot.Frame.YBottom + Plot.Parameters.XTitleBelow;
    Plot.Surface.PrintText(Title);
}

void DrawCurve(DrawingSurface& Surface, int First, int Last, const PositionOf& X, const PositionOf& Y)
{
    for (int i = First; i <= Last; ++i) {
        const int x = X(i);
        const int y = Y(i);
        if (i > First) Surface.LineTo(x, y);
        Surface.CurrentX = x;
        Surface.CurrentY = y;
    }
}

} // namespace velorix
