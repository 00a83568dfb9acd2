// The two plots of head against flow.
#include "results/CurvePlots.h"

#include "base/Arithmetic.h"
#include "base/Format.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "hydraulics/HydraulicResults.h"
#include "input/InputFields.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/ChartPen.h"
#include "results/FlowCaptions.h"
#include "screens/Lcc.h"
#include "screens/Pictures.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int YTitleTop = 2200;
constexpr int PumpPoints = 6;

Single PumpHeadAt(int Row)
{
    return wPumpCurve[3 * Row - 2];
}

Single PumpFlowAt(int Row)
{
    return wPumpCurve[3 * Row - 1];
}

Single PumpEfficiencyAt(int Row)
{
    return wPumpCurve[3 * Row];
}

DataRange RangeOf(Single (*Value)(int))
{
    DataRange Found{Value(1), Value(1)};
    for (int Row = 1; Row <= PumpPoints; ++Row) Found.Take(Value(Row));
    return Found;
}

// The flows are taken as they stand: from the first row to the last.
void SetTicks(Chart& Plot, const DataRange& Heads)
{
    SetXTicks(Plot, PumpFlowAt(1), PumpFlowAt(PumpPoints));
    SetYTicks(Plot, Heads);
    Plot.Frame.SetAxes(Plot.X, Plot.Y);
}

void DrawPumpPoints(Chart& Plot)
{
    TakePen(Plot.Surface, PumpCurveInk);
    for (int Row = 1; Row <= PumpPoints; ++Row) {
        const int x = Plot.Frame.X(PumpFlowAt(Row));
        const int y = Plot.Frame.Y(PumpHeadAt(Row));
        Plot.Surface.DrawPicture(imgDot, x - imgDot.Width / 2, y - imgDot.Height / 2);
        if (Row > 1) Plot.Surface.LineTo(x, y);
        Plot.Surface.CurrentX = x;
        Plot.Surface.CurrentY = y;
    }
}

void DrawGrid(Chart& Plot, Color Ink)
{
    StartGrid(Plot, Ink);
    DrawHorizontalGrid(Plot);
    DrawVerticalGrid(Plot);
}

void SetLabelFont(DrawingSurface& Surface)
{
    Surface.SetFontBold(false);
    Surface.SetFontSize(8);
    Surface.SetFontName("Times New Roman");
}

void DrawLabelsAndTitles(Chart& Plot)
{
    DrawYLabels(Plot);
    DrawXLabels(Plot, PumpFlowAt(PumpPoints));
    Plot.Surface.SetFontBold(true);
    DrawXTitle(Plot, "Flow rate ( " + PumpFlowUnit() + " )");
    Plot.Surface.SetFontBold(false);
    Plot.Surface.DrawPicture(wHeadUnits == 1 ? imgHeadft : imgHeadm, YTitleLeft, YTitleTop);
}

// The efficiency axis has labels of its own to the right of its line, but no grid.
struct EfficiencyAxis {
    AxisTicks Ticks;
    SecondAxis Axis;
};

void DrawEfficiencyCurve(Chart& Plot, const EfficiencyAxis& Second)
{
    TakePen(Plot.Surface, EfficiencyInk);
    DrawCurve(
        Plot.Surface, 1, PumpPoints, [&](int Row) { return Plot.Frame.X(PumpFlowAt(Row)); },
        [&](int Row) { return Plot.Frame.Y2(PumpEfficiencyAt(Row), Second.Axis); });
}

void DrawEfficiencyAxis(Chart& Plot, const EfficiencyAxis& Second)
{
    const int x = Plot.Frame.XTick(Plot.X, Plot.X.Intervals + 1);
    Plot.Surface.Line(x, Plot.Frame.YBottom, x, Plot.Frame.DataTop());
    const std::string Pattern = LabelFormat(Second.Ticks.Step);
    for (int n = 1; n <= Second.Ticks.Intervals + 1; ++n) {
        PrintYLabel(Plot, Format(Second.Ticks.Value(n), Pattern) + " %", Plot.Frame.XRight + 350,
                    Plot.Frame.Y2Tick(Second.Ticks, n, Second.Axis));
    }
}

void StoreFrame(const ChartFrame& Frame)
{
    ResultsFrame = Frame;
    CurveOrigin = Frame;
}

bool AnyBoxIsEmpty()
{
    const auto IsEmpty = [](const TextBox& Box) { return Box.Text.Get().empty(); };
    return std::any_of(frmLCC.txtH.begin(), frmLCC.txtH.end(), IsEmpty) ||
           std::any_of(frmLCC.txtQ.begin(), frmLCC.txtQ.end(), IsEmpty) ||
           std::any_of(frmLCC.txtEfficiency.begin(), frmLCC.txtEfficiency.end(), IsEmpty);
}

void DrawPumpAndEfficiency()
{
    Chart Plot{frmPumpView.picGraph, PumpCurvePlot};
    const DataRange Heads = RangeOf(PumpHeadAt);
    const DataRange Efficiencies = RangeOf(PumpEfficiencyAt);
    StartChart(Plot);
    SetTicks(Plot, Heads);
    EfficiencyAxis Second;
    Second.Ticks = FindTicks(Efficiencies.Least, Efficiencies.Most, PumpCurvePlot.YSteps);
    Second.Axis = {AxisScale(Plot.Frame.YBottom - Plot.Frame.YTop, Second.Ticks), Second.Ticks.Origin};
    StoreFrame(Plot.Frame);
    CurveSecondAxis = Second.Axis;

    DrawGrid(Plot, frmPumpView.lblGridColor.BackColor);
    DrawPumpPoints(Plot);
    DrawEfficiencyCurve(Plot, Second);
    SetLabelFont(Plot.Surface);
    DrawAxes(Plot);
    DrawEfficiencyAxis(Plot, Second);
    DrawLabelsAndTitles(Plot);
    Plot.Surface.DrawPicture(imgEfficiency, Plot.Frame.XRight + 800, 2300);
}

// All points of the year count, computed or not.
DataRange HeadsOfYear()
{
    DataRange Heads = RangeOf(PumpHeadAt);
    for (const Single Head : SystemHeadByYear.Year(AnalysisYear)) Heads.Take(Single(Head / HeadFactor));
    return Heads;
}

void DrawSystemCurve(Chart& Plot)
{
    const auto& Flows = SystemFlowByYear.Year(AnalysisYear);
    const auto& Heads = SystemHeadByYear.Year(AnalysisYear);
    TakePen(Plot.Surface, SystemCurveInk);
    DrawCurve(
        Plot.Surface, 1, CurvePoints, [&](int i) { return Plot.Frame.X(Flows[i] / FlowFactor); },
        [&](int i) { return Plot.Frame.Y(Heads[i] / HeadFactor); });
}

void DrawPumpAndSystem(DrawingSurface& Surface, Color GridInk)
{
    Chart Plot{Surface, PumpAndSystemPlot};
    const DataRange Heads = HeadsOfYear();
    StartChart(Plot);
    SetTicks(Plot, Heads);
    StoreFrame(Plot.Frame);

    DrawGrid(Plot, GridInk);
    DrawPumpPoints(Plot);
    DrawSystemCurve(Plot);
    SetLabelFont(Plot.Surface);
    DrawAxes(Plot);
    DrawLabelsAndTitles(Plot);
}

} // namespace

std::string PumpFlowUnit()
{
    switch (wFlowUnits) {
    case 0: return "m³/h";
    case 1: return "m³/s";
    default: return Trim(frmLCC.comFlowUnits.Text());
    }
}

bool TakePumpCurve()
{
    if (AnyBoxIsEmpty()) {
        Warn("The pump curve data must be completed before it can be viewed.", "Velorix : ERROR");
        return false;
    }

    Array1<Single, 3 * PumpPoints> Curve;
    for (int Point = 0; Point < PumpPoints; ++Point) {
        Curve[3 * Point + 1] = LeadingNumber(frmLCC.txtH[Point].Text.Get());
        Curve[3 * Point + 2] = LeadingNumber(frmLCC.txtQ[Point].Text.Get());
        Curve[3 * Point + 3] = LeadingNumber(frmLCC.txtEfficiency[Point].Text.Get());
    }
    if (std::all_of(Curve.begin(), Curve.end(), [](Single Each) { return Each == 0; })) {
        Warn("All the pump data cannot be zero !", "Velorix : ERROR !");
        return false;
    }

    wPumpCurve = Curve;
    TakeUnit(frmLCC.comHeadUnits, wHeadUnits);
    TakeUnit(frmLCC.comFlowUnits, wFlowUnits);
    return true;
}

void DrawPumpCurve()
{
    if (Stands(DrawPumpAndEfficiency)) return;
    Inform("Could not show the pump curve.  Please check the pump data !");
    HydraulicsFailed = 1;
    frmPumpView.Unload();
}

void DrawDutyCurves(DrawingSurface& Surface, Color GridInk)
{
    Stands([&] { DrawPumpAndSystem(Surface, GridInk); }); // a fault ends the drawing and nothing else
}

void DrawDutyYear()
{
    frmResults.lblDutyYear.Caption = "Year " + std::to_string(CalendarYear(AnalysisYear));
    DrawDutyCurves(frmResults.picDuty, frmResults.lblGridColor.BackColor);
}

void FillDutyTable()
{
    Grid& Table = frmResults.msgDuty;
    Table.SetRows(wLife + 2);
    const std::string Heads[] = {"Year", "Flow rate", "Pumping head", "Pump efficiency"};
    const std::string Units[] = {"", Trim(frmLCC.comFlowUnits.Text()), Trim(frmLCC.comHeadUnits.Text()), "%"};
    for (int Col = 0; Col < 4; ++Col) {
        Table.SetText(0, Col, Heads[Col]);
        Table.SetText(1, Col, Units[Col]);
    }
    for (int i = 1; i <= wLife; ++i) {
        Table.SetText(i + 1, 0, std::to_string(CalendarYear(i)));
        Table.SetText(i + 1, 1, FigureText(PumpFlow[i], "#0.000"));
        Table.SetText(i + 1, 2, FigureText(PumpHead[i], "#0.000"));
        Table.SetText(i + 1, 3, FigureText(PumpEfficiencyByYear[i], "#0.00"));
    }
}

} // namespace velorix
