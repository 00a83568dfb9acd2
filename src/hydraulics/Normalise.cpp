// The project in metres and cubic metres a second: unit factors and the quantities that they give.
#include "hydraulics/Normalise.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "model/WorkingSet.h"

#include <array>
#include <optional>

namespace velorix {

namespace {

// Index: the entry of the unit's list. Flows to m3/s.
constexpr std::array DemandFactors = {
    0.011574074,    // megalitres a day
    0.00027777778,  // m3/h
    1.0,            // m3/s
    0.001,          // l/s
    0.028316846,    // ft3/s
    0.0037854118,   // US gallons a second
    0.00006309020,  // US gallons a minute
    1.0505030,      // million US gallons an hour
    0.043812636,    // million US gallons a day
    0.0045460919,   // imperial gallons a second
    0.000075768199, // imperial gallons a minute
    1.2628033,      // million imperial gallons an hour
    0.052616805,    // million imperial gallons a day
};
constexpr std::array OperatingFlowFactors = {
    0.00027777778,  // m3/h
    1.0,            // m3/s
    0.001,          // l/s
    0.028316846,    // ft3/s
    0.0037854118,   // US gallons a second
    0.00006309020,  // US gallons a minute
    1.0505030,      // million US gallons an hour
    0.0045460919,   // imperial gallons a second
    0.000075768199, // imperial gallons a minute
    1.2628033,      // million imperial gallons an hour
};
constexpr std::array HeadFactors = {1.0, 0.3048};                                          // m, ft
constexpr std::array FlowFactors = {0.00027777778, 1.0, 0.028316847 / 3600, 0.0037854118}; // m3/h, m3/s,
                                                                                           // ft3/h, US gal/s
constexpr std::array WaterSalesFactors = {1.0, 1000.0, 0.028316846, 0.0037854118};         // per m3, Ml,
                                                                                           // ft3, US gal
constexpr std::array<std::int16_t, 4> ElevationFactors = {1, 1000, 0,
                                                          1609}; // m, km, ft, miles: whole numbers

// A unit index outside its table leaves the target as it was, here and in Store.
template <typename Target, typename Entry, std::size_t Count>
void Pick(Target& Factor, const std::array<Entry, Count>& Table, int Index)
{
    if (Index >= 0 && Index < static_cast<int>(Count)) Factor = Table[static_cast<std::size_t>(Index)];
}

void Store(Single& Target, std::optional<double> Value)
{
    if (Value) Target = Checked(*Value);
}

// Units: m, km, ft, miles.
std::optional<double> FromDistance(double Value, int Units)
{
    switch (Units) {
    case 0: return Value;
    case 1: return Value * 1000;
    case 2: return Value * 0.3048;
    case 3: return Value * 1609.344;
    default: return std::nullopt;
    }
}

// Diameters and roughnesses. Units: mm, m, in, ft.
std::optional<double> FromFineLength(double Value, int Units)
{
    switch (Units) {
    case 0: return Value / 1000;
    case 1: return Value;
    case 2: return Value * 0.0254;
    case 3: return Value * 0.3048;
    default: return std::nullopt;
    }
}

// Lining and walls. The same units, but mm are multiplied, which may differ in the last digit.
std::optional<double> FromThickness(double Value, int Units)
{
    return Units == 0 ? Value * 0.001 : FromFineLength(Value, Units);
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
    Pick(DemandFactor, DemandFactors, Varying ? wDemandUnits : wFlowrateUnits);
    for (int y = 1; y <= wLife; ++y)
        DemandFlow[y] = Checked(DemandFactor * (Varying ? wDemand[y] : wFlowrate));
}

void StorePumpAndSalesFactors()
{
    if (wPumpDetails != 0) {
        Pick(HeadFactor, HeadFactors, wHeadUnits);
        Pick(FlowFactor, FlowFactors, wFlowUnits);
    } else {
        Pick(OperatingFlowFactor, OperatingFlowFactors, wPumpOperatingFlowrateUnits);
    }
    Pick(WaterSalesFactor, WaterSalesFactors, wWaterSalesUnits);
}

} // namespace

void NormaliseInputs()
{
    ClearArithmeticFlags();
    Store(UpstreamLevel, FromDistance(wTRWL, wTRWLUnits));
    Store(DownstreamLevel, FromDistance(wBRWL, wBRWLUnits));
    Pick(ElevationFactor, ElevationFactors, wElevationUnits);
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
