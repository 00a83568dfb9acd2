// The bar charts: one slot a year, two bars side by side.
#include "results/SupplyPlots.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/ChartPen.h"
#include "results/FlowCaptions.h"
#include "screens/Pictures.h"
#include "screens/Results.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int BetweenSlots = 50;

// A bar chart on its way: the frame, and the years' slots on it.
struct BarChart : Chart {
    BarChart(const PlotParameters& Plot, int YearsShown)
        : Chart{frmResults.picSystem, Plot}
        , Years(YearsShown)
    {
    }

    int Years;
    int BarWidth = 0;

    int Slot(int k) const { return Frame.XTick(X, k); }
    int Base() const { return Frame.DataBottom(); }

    // A bar of slot k from one value, or from the base, to another.
    void First(int k, double To, Color Fill) const { Box(Slot(k), Base(), To, Fill); }
    void Second(int k, double To, Color Fill) const { Box(Slot(k) + BarWidth, Base(), To, Fill); }
    void OnSecond(int k, double From, double To, Color Fill) const
    {
        Box(Slot(k) + BarWidth, Frame.Y(From), To, Fill);
    }

private:
    void Box(int x, int Bottom, double To, Color Fill) const
    {
        Surface.FilledBox(x, Bottom, x + BarWidth, Frame.Y(To), Fill);
    }
};

// Frame and horizontal grid.
void StartBarChart(BarChart& Plot, const DataRange& Values)
{
    StartChart(Plot);
    Plot.X = {1, 0, Plot.Years};
    SetYTicks(Plot, Values);
    Plot.Frame.SetAxes(Plot.X, Plot.Y);
    const double SlotWidth =
        RoundEven((Plot.Frame.XRight - Plot.Frame.XLeft) / static_cast<double>(Plot.Years));
    Plot.BarWidth = RoundToInt16(RoundEven((SlotWidth - BetweenSlots) / 2));
    StartGrid(Plot);
    DrawHorizontalGrid(Plot);
}

// The longer the life, the fewer years bear their number; the first always does.
int YearsPerLabel()
{
    return 1 + std::clamp<int>(wLife / 20, 0, 4);
}

// Every year has a tick. The numbers count from the base year.
void DrawYears(BarChart& Plot)
{
    for (int n = 1; n <= Plot.Years; ++n) {
        const int x = Plot.Frame.XTick(Plot.X, n);
        if ((n - 1) % YearsPerLabel() == 0)
            PrintXLabel(Plot, std::to_string(wBaseYear + n - 1), std::to_string(wSupplyStart + n), x);
        DrawXTickMark(Plot, x);
    }
    Plot.Surface.SetFontSize(9);
    Plot.Surface.SetFontBold(false);
    DrawXTitle(Plot, "Year");
}

void FinishBarChart(BarChart& Plot)
{
    DrawAxes(Plot);
    DrawYLabels(Plot);
    DrawYears(Plot);
}

template <typename Array>
Single EntryOrZero(const Array& Series, int k)
{
    return k <= Array::LastIndex ? Series[k] : Single(0);
}

void DrawDemandBars()
{
    BarChart Plot(DemandPlot, wLife);
    DataRange Values{Checked(CapacityOfYear(1)), Checked(CapacityOfYear(1))};
    for (int y = 1; y <= wLife; ++y) {
        Values.Take(Checked(CapacityOfYear(y)));
        Values.Take(DemandOfYear(y));
    }
    StartBarChart(Plot, Values);
    Plot.Surface.DrawPicture(picVLDemand, 10, 1500);
    for (int y = 1; y <= wLife; ++y) {
        Plot.First(y, Checked(CapacityOfYear(y)), PureGreen);
        const Single Supplied = Checked(DemandOfYear(y) - Shortage[y]);
        Plot.Second(y, Supplied, PureRed);
        if (Shortage[y] != 0) Plot.OnSecond(y, Supplied, DemandOfYear(y), PureBlue);
    }
    FinishBarChart(Plot);
}

void ShowDemandLegend()
{
    frmResults.lblDemand.Caption = ") (" + DemandUnit() + ")";
    frmResults.lblYield.Caption = "Yield (" + DemandUnit() + ")";
    frmResults.fraDemandLegend.Visible = true;
    frmResults.fraIncomeLegend.Visible = false;
}

Single AnnualTotal(int k)
{
    return EntryOrZero(OperationalCost, k) + EntryOrZero(MaintTotal, k) + EntryOrZero(EnergyCost, k);
}

// The amounts of an operating year, one upon the other.
void DrawExpenditure(const BarChart& Plot, int Slot, int k)
{
    const Single Maintenance = EntryOrZero(MaintTotal, k);
    const Single WithOperation = Checked(Maintenance + EntryOrZero(OperationalCost, k));
    Plot.Second(Slot, Maintenance, PureGreen);
    Plot.OnSecond(Slot, Maintenance, WithOperation, PureYellow);
    if (IsPumping())
        Plot.OnSecond(Slot, WithOperation, WithOperation + EntryOrZero(EnergyCost, k), EnergyInk);
}

void DrawIncomeBars()
{
    const int Construction = ConstructionYears();
    BarChart Plot(IncomePlot, YearsOfIncome());
    DataRange Values{IncomeAt(1), IncomeAt(1)};
    for (int k = 1; k <= Plot.Years; ++k) {
        Values.Take(IncomeAt(k));
        Values.Take(CostAt(k));
    }
    for (int k = 1; k <= wLife; ++k) Values.Take(AnnualTotal(k));

    StartBarChart(Plot, Values);
    for (int k = 1; k <= wLife; ++k) {
        Plot.First(Construction + k, IncomeAt(k), PureBlue);
        DrawExpenditure(Plot, Construction + k, k);
    }
    for (int k = 1; k <= Construction; ++k) Plot.Second(k, CostAt(k), PureRed);
    FinishBarChart(Plot);
}

void ShowIncomeLegend()
{
    const std::string Unit = "(" + CurrencySign() + "/year)";
    frmResults.lblIncome.Caption = "Income " + Unit;
    frmResults.lblCapitalExpenditure.Caption = "Capital expenditure " + Unit;
    frmResults.lblMaintenance.Caption = "Maintenance costs " + Unit;
    frmResults.lblOperational.Caption = "Operational costs " + Unit;
    frmResults.lblEnergy.Caption = IsPumping() ? "Energy costs " + Unit : "";
    frmResults.lblEnergy.Visible = IsPumping();
    frmResults.picEnergyColor.Visible = IsPumping();
    frmResults.fraIncomeLegend.Visible = true;
    frmResults.fraDemandLegend.Visible = false;
}

} // namespace

double CapacityOfYear(int Year)
{
    const double Q = Flow[Year];
    return IsPumping() ? Q * wPumpingHours / 24 / DemandFactor : Q / DemandFactor;
}

Single DemandOfYear(int Year)
{
    return wVaryingDemand == 1 ? wDemand[Year] : wFlowrate;
}

int YearsOfIncome()
{
    return ConstructionYears() + wLife;
}

Single IncomeAt(int k)
{
    return k <= wLife ? EntryOrZero(IncomeSeries, k)
                      : Single(0); // beyond stands what an earlier project left
}

Single CostAt(int k)
{
    return EntryOrZero(CostSeries, k);
}

void DrawDemandCapacity()
{
    ShowDemandLegend();
    if (!Stands(DrawDemandBars)) Inform("Could not show the demand pattern graph.");
}

void DrawIncomeExpenditure()
{
    ShowIncomeLegend();
    Stands(DrawIncomeBars); // a fault ends the drawing and nothing else
}

} // namespace velorix
