// Texts of flows, heads and units.
#include "results/FlowCaptions.h"

#include "base/Arithmetic.h"
#include "base/Format.h"
#include "base/Text.h"
#include "hydraulics/HydraulicResults.h"
#include "model/Units.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"

#include <cmath>

namespace velorix {
namespace {

std::string NameAt(UnitList Units, int Index)
{
    const Unit* const Found = UnitAt(Units, Index);
    return Found ? Found->Name : "";
}

template <typename Number>
std::string TextOf(Number Figure, const char* Pattern)
{
    ClearArithmeticFlags(); // what the figure raised shows in itself
    return std::isfinite(static_cast<double>(Figure)) ? Format(Figure, Pattern) : std::string();
}

std::string WithUnit(double Figure, const ComboBox& Units)
{
    return FigureWithUnit(Figure, Trim(Units.Text()));
}

} // namespace

std::string FigureText(Single Figure, const char* Pattern)
{
    return TextOf(Figure, Pattern);
}

std::string FigureText(double Figure, const char* Pattern)
{
    return TextOf(Figure, Pattern);
}

FlowFacts FactsOfYear(int Year)
{
    const double Q = Flow[Year];
    if (!IsPumping())
        return {WithUnit(Q / DemandFactor,
                         wVaryingDemand == 1 ? frmLCC.comVaryingDemandUnits : frmLCC.comGFlowrateUnits),
                ""};
    const std::string Head =
        WithUnit((Gradeline(1, Year) - wTRWL) / ElevationFactor, frmLCC.comElevationUnits);
    if (wPumpDetails != 0) return {WithUnit(Q / FlowFactor, frmLCC.comFlowUnits), Head};
    return {WithUnit(Q / OperatingFlowFactor, frmLCC.comPumpOperatingFlowrateUnits), Head};
}

std::string LengthUnit()
{
    return NameAt(DistanceUnitList, wLengthUnits);
}

std::string ElevationUnit()
{
    return NameAt(DistanceUnitList, wElevationUnits);
}

std::string InBrackets(const std::string& Unit)
{
    return Unit.empty() ? Unit : "(" + Unit + ")";
}

double KsNewFactor()
{
    const Unit* const Known = UnitAt(FineLengthUnitList, wKsNewUnits);
    return Known ? Known->Factor : 0;
}

std::string DemandUnit()
{
    if (wVaryingDemand == 1) return Trim(frmLCC.comVaryingDemandUnits.Text());
    return Trim((IsPumping() ? frmLCC.comPFlowrateUnits : frmLCC.comGFlowrateUnits).Text());
}

} // namespace velorix
