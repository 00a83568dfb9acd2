// The project in metres and cubic metres a second: unit factors and the quantities that they give.
#include "hydraulics/Normalise.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "model/Units.h"
#include "model/WorkingSet.h"

#include <optional>

namespace velorix {

namespace {

// A unit index outside its list leaves the target as it was, here and in Store.
void Pick(Single& Factor, UnitList Units, int Index)
{
    if (const Unit* const Found = UnitAt(Units, Index)) Factor = Found->Factor;
}

void Store(Single& Target, std::optional<double> Value)
{
    if (Value) Target = Checked(*Value);
}

std::optional<double> InMetres(double Value, UnitList Units, int Index)
{
    const Unit* const Found = UnitAt(Units, Index);
    return Found ? std::optional(Value * Found->Factor) : std::nullopt;
}

std::optional<double> FromDistance(double Value, int Units)
{
    return InMetres(Value, DistanceUnitList, Units);
}

// Lining and walls.
std::optional<double> FromThickness(double Value, int Units)
{
    return InMetres(Value, FineLengthUnitList, Units);
}

// Diameters and roughnesses. The same units, but mm are divided, which may differ in the last digit.
std::optional<double> FromFineLength(double Value, int Units)
{
    return Units == 0 ? Value / 1000 : FromThickness(Value, Units);
}

// A whole number: that of feet is 0.
void StoreElevationFactor()
{
    if (const Unit* const Found = UnitAt(DistanceUnitList, wElevationUnits))
        ElevationFactor = RoundToInt16(Found->Factor);
}

void StoreBores()
{
    for (int i = 1; i <= NodeCount; ++i)
        Store(InternalDiameter[i], FromFineLength(wDiameter[i], wDiameterUnits));

    if (wLiningType == 1) {
        if (const auto Lining = FromThickness(wLiningThickness, wLiningThicknessUnits))
            LiningLoss = Checked(2 * *Lining);
        for (int i = 1; i <= NodeCount; ++i) InternalDiameter[i] = Checked(InternalDiameter[i] - LiningLoss);
    } else {
        LiningLoss = 0;
    }

    for (int i = 1; i <= NodeCount; ++i)
        if (const auto Wall = FromThickness(wWallThickness[i], wWallThicknessUnits))
            InternalDiameter[i] = Checked(InternalDiameter[i] - 2 * *Wall);
}

// The last row has no section: its entry keeps what an earlier, longer profile left there.
void StoreSectionLengths()
{
    for (int i = 2; i <= NodeCount; ++i) SectionLength[i - 1] = Checked(wAccLength[i] - wAccLength[i - 1]);
    for (int i = 2; i <= NodeCount; ++i)
        Store(SectionLength[i - 1], FromDistance(SectionLength[i - 1], wLengthUnits));
}

void StoreDemand()
{
    const bool Varying = wVaryingDemand == 1;
    Pick(DemandFactor, FlowUnitList, Varying ? wDemandUnits : wFlowrateUnits);
    for (int y = 1; y <= wLife; ++y)
        DemandFlow[y] = Checked(DemandFactor * (Varying ? wDemand[y] : wFlowrate));
}

void StorePumpAndSalesFactors()
{
    if (wPumpDetails != 0) {
        Pick(HeadFactor, HeadUnitList, wHeadUnits);
        Pick(FlowFactor, PumpFlowUnitList, wFlowUnits);
    } else {
        Pick(OperatingFlowFactor, OperatingFlowUnitList, wPumpOperatingFlowrateUnits);
    }
    Pick(WaterSalesFactor, TariffUnitList, wWaterSalesUnits);
}

} // namespace

void NormaliseInputs()
{
    ClearArithmeticFlags();
    Store(UpstreamLevel, FromDistance(wTRWL, wTRWLUnits));
    Store(DownstreamLevel, FromDistance(wBRWL, wBRWLUnits));
    StoreElevationFactor();
    StoreBores();
    Store(KsNewM, FromFineLength(wKsNew, wKsNewUnits));
    Store(KsOldM, FromFineLength(wKsOld, wKsOldUnits));
    StoreSectionLengths();

    try {
        StoreDemand();
        StorePumpAndSalesFactors();
    } catch (const Failure&) {
        // The factors not reached keep what they held; the analysis goes on with them.
    }
}

double StaticHead(int Section)
{
    return UpstreamLevel - ElevationFactor * wElevation[Section + 1];
}

} // namespace velorix
