// Units, bores and section lengths, and how the routine ends.
#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"

#include <functional>
#include <limits>

namespace velorix {
namespace {

using NormaliseTest = HydraulicsTest;

// 0.6 m outside, walls 2 x 6 mm, lining 2 x 0.5 in; a coating takes nothing.
TEST_F(NormaliseTest, TheBoreIsWhatLiningAndWallsLeave)
{
    sample::AddNode({0, 0, 0.6});
    wWallThickness[1] = 6, wWallThicknessUnits = 0;
    wLiningThickness = 0.5, wLiningThicknessUnits = 2;
    for (const std::int16_t Lined : {1, 0}) {
        wLiningType = Lined;
        NormaliseInputs();
        EXPECT_EQ(LiningLoss, Single(0.0254 * Lined));
        EXPECT_NEAR(InternalDiameter[1], 0.6 - 0.012 - 0.0254 * Lined, 1e-7);
    }
    wKsNew = 0.2, wKsNewUnits = 0; // divided, not multiplied by 0.001
    NormaliseInputs();
    EXPECT_EQ(KsNewM, Single(Single(0.2) / 1000));
}

// Names and factors of each list, in the order of the stored index. A foreign index leaves what stands.
TEST_F(NormaliseTest, EachUnitHasItsFactor)
{
    using Units = std::vector<std::pair<std::string, double>>;
    // clang-format off
    const Units Flow = {
        {"Mega liters/day", 0.0115740737}, {"m³/h", 0.000277777785}, {"m³/s", 1}, {"l/s", 0.001},
        {"ft³/s", 0.0283168461}, {"gal/s (USA)", 0.00378541183}, {"gal/min (USA)", 0.0000630901995},
        {"Million gal/hour (USA)", 1.05050302}, {"Million gal/day (USA)", 0.0438126363},
        {"gal/s (EUR)", 0.00454609189}, {"gal/min (EUR)", 0.0000757681992},
        {"Million gal/hour (EUR)", 1.26280332}, {"Million gal/day (EUR)", 0.0526168048}};
    Units OperatingFlow = Flow;
    for (const int Daily : {12, 8, 0}) OperatingFlow.erase(OperatingFlow.begin() + Daily);
    const Units PumpFlow = {
        {"m³/h", 0.000277777785}, {"m³/s", 1}, {"ft³/h", 0.028316847 / 3600}, {"gal/s (USA)", 0.00378541183}};
    const Units Distance = {{"m", 1}, {"km", 1000}, {"ft", 0.3048}, {"miles", 1609.344}};
    const Units WholeDistance = {{"m", 1}, {"km", 1000}, {"ft", 0}, {"miles", 1609}}; // of the elevations
    const Units FineLength = {{"mm", 0.001}, {"m", 1}, {"in", 0.0254}, {"ft", 0.3048}};
    const Units Head = {{"m", 1}, {"ft", 0.3048}};
    const Units Tariff = {{"/m³", 1}, {"/Ml", 1000}, {"/ft³", 0.0283168461}, {"/gal", 0.00378541183}};
    // clang-format on
    struct Case {
        const FieldRule& Field;
        std::int16_t& Index;
        std::function<double()> Factor; // as the normalising leaves it, of a length of 1
        const Units& Expected;
    };
    const Case Cases[] = {
        {Fields::FlowrateUnits, wFlowrateUnits, [] { return DemandFactor; }, Flow},
        {Fields::PumpOperatingFlowrateUnits, wPumpOperatingFlowrateUnits, [] { return OperatingFlowFactor; },
         OperatingFlow},
        {Fields::FlowUnits, wFlowUnits, [] { return FlowFactor; }, PumpFlow},
        {Fields::HeadUnits, wHeadUnits, [] { return HeadFactor; }, Head},
        {Fields::WaterSalesUnits, wWaterSalesUnits, [] { return WaterSalesFactor; }, Tariff},
        {Fields::ElevationUnits, wElevationUnits, [] { return ElevationFactor; }, WholeDistance},
        {Fields::TRWLUnits, wTRWLUnits, [] { return UpstreamLevel; }, Distance},
        {Fields::BRWLUnits, wBRWLUnits, [] { return DownstreamLevel; }, Distance},
        {Fields::LengthUnits, wLengthUnits, [] { return SectionLength[1]; }, Distance},
        {Fields::KsNewUnits, wKsNewUnits, [] { return KsNewM; }, FineLength},
        {Fields::KsOldUnits, wKsOldUnits, [] { return KsOldM; }, FineLength},
        {Fields::DiameterUnits, wDiameterUnits, [] { return InternalDiameter[1]; }, FineLength},
        {Fields::WallThicknessUnits, wWallThicknessUnits, [] { return -InternalDiameter[2] / 2; },
         FineLength}};
    sample::AddNode({0, 0, 1});
    sample::AddNode({0, 1, 0});
    wTRWL = wBRWL = wKsNew = wKsOld = wWallThickness[2] = 1;
    for (const Case& Each : Cases) {
        // Only the curve reads its factors.
        wPumpDetails = &Each.Index == &wPumpOperatingFlowrateUnits ? 0 : 1;
        std::vector<std::string> Names;
        for (const auto& [Name, Factor] : Each.Expected) {
            Each.Index = static_cast<std::int16_t>(Names.size());
            Names.push_back(Name);
            NormaliseInputs();
            EXPECT_EQ(Single(Each.Factor()), Single(Factor)) << Each.Field.Name << " " << Name;
        }
        EXPECT_EQ(NamesOf(Each.Field.Allowed.Units), Names) << Each.Field.Name;
    }
    for (const std::int16_t Foreign : {4, -1}) {
        wElevationUnits = Foreign;
        NormaliseInputs();
        EXPECT_EQ(ElevationFactor, 1609);
    }
}

// 24 megalitres a day, then 90 and 180 m3/h. Pump details decide which factors are taken.
TEST_F(NormaliseTest, FlowsTakeTheFactorsInUse)
{
    wLife = 2;
    wFlowrate = 24, wFlowrateUnits = 0;
    wPumpOperatingFlowrateUnits = 6;
    NormaliseInputs();
    EXPECT_NEAR(DemandFlow[2], 0.2777778, 1e-7);
    EXPECT_EQ(FlowFactor, 0);

    wVaryingDemand = 1, wDemand[1] = 90, wDemand[2] = 180, wDemandUnits = 1;
    wPumpDetails = 1, wPumpOperatingFlowrateUnits = 0;
    NormaliseInputs();
    EXPECT_NEAR(DemandFlow[1], 0.025, 1e-8);
    EXPECT_NEAR(DemandFlow[2], 0.05, 1e-8);
    EXPECT_EQ(OperatingFlowFactor, Single(1.0505030));
}

TEST_F(NormaliseTest, AFailureFromTheDemandOnIsQuietAndOneBeforeIsNot)
{
    const double Huge = std::numeric_limits<float>::max();
    wLife = 3;
    wVaryingDemand = 1, wDemandUnits = 11; // a factor above 1
    wDemand[1] = 1, wDemand[2] = Huge, wDemand[3] = 1;
    EXPECT_NO_THROW(NormaliseInputs());
    EXPECT_EQ(DemandFlow[1], Single(1.2628033));
    EXPECT_EQ(DemandFlow[2], 0);
    EXPECT_EQ(WaterSalesFactor, 0);

    wBRWL = Huge, wBRWLUnits = 1;
    wTRWL = 7;
    EXPECT_THROW(NormaliseInputs(), ArithmeticFailure);
    EXPECT_EQ(UpstreamLevel, 7);
    EXPECT_EQ(DownstreamLevel, 0);
}

} // namespace
} // namespace velorix
