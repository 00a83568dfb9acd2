// Texts of the read-outs.
#include "results/ReadOuts.h"

#include "base/Arithmetic.h"
#include "base/Format.h"
#include "base/Text.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/ChartFrame.h"
#include "results/CurvePlots.h"
#include "results/FlowCaptions.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

#include <initializer_list>

namespace velorix {
namespace {

// The point under the pointer; outside the data all labels say so.
std::optional<PointedAt> Pointed(const ChartScale& Scale, const ChartOrigin& Origin, double x, double y,
                                 std::initializer_list<Label*> Labels)
{
    System().SetPointer(PointerShape::Cross);
    const std::optional<PointedAt> Found = ReadFrame(Scale, Origin, x, y);
    if (!Found)
        for (Label* Each : Labels) Each->Caption = "Out of range";
    return Found;
}

void ReadProfile(const ChartScale& Scale, const ChartOrigin& Origin, double x, double y, Label& X, Label& Y)
{
    if (const auto Found = Pointed(Scale, Origin, x, y, {&X, &Y})) {
        X.Caption = Format(Found->X, "#0.000") + " " + LengthUnit();
        Y.Caption = Format(Found->Y, "#0.000") + " " + ElevationUnit();
    }
}

} // namespace

void ReadHydraulicPlot(double x, double y)
{
    ReadProfile(ResultsFrame, HydraulicOrigin, x, y, frmResults.lblX, frmResults.lblY);
}

void ReadProfilePlot(double x, double y)
{
    ReadProfile(ProfileFrame, ProfileFrame, x, y, frmView.lblX, frmView.lblY);
}

void ReadRoughnessProfilePlot(double x, double y)
{
    ReadProfile(ProfileFrame, ProfileFrame, x, y, frmViewRoughness.lblX, frmViewRoughness.lblY);
}

void ReadPumpCurve(double x, double y)
{
    const auto Found = Pointed(ResultsFrame, CurveOrigin, x, y,
                               {&frmPumpView.lblQ, &frmPumpView.lblH, &frmPumpView.lblDEff});
    if (!Found) return;
    const double Efficiency = Found->FromBottom / CurveSecondAxis.Y2Scale + CurveSecondAxis.Y2Origin;
    ClearArithmeticFlags(); // a duty plot has left no second axis
    frmPumpView.lblQ.Caption = Format(Found->X, "#0.00") + " " + PumpFlowUnit();
    frmPumpView.lblH.Caption = Format(Found->Y, "#0.00") + (wHeadUnits == 1 ? " ft" : " m");
    frmPumpView.lblDEff.Caption = Format(Efficiency, "#0.00") + " %";
}

void ReadIrrGraph(double x, double y)
{
    if (const auto Found = Pointed(IRRFrame, IRRFrame, x, y, {&frmIRRView.lblX, &frmIRRView.lblY})) {
        frmIRRView.lblX.Caption = Format(Found->X, "#0.000") + "%";
        frmIRRView.lblY.Caption = CurrencySign() + Format(Found->Y, "#0");
    }
}

} // namespace velorix
