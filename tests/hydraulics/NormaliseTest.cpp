// Units, bores and section lengths, and how the routine ends.
#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"

#include <limits>

namespace velorix {
namespace {

using NormaliseTest = HydraulicsTest;

// The bore: 0.6 m outside, walls 2 x 6 mm, lining 2 x 0.5 in; a coating takes nothing.
TEST_F(NormaliseTest, EachLengthTakesItsOwnUnit)
{
    sample::AddNode({0, 0, 0.6});
    sample::AddNode({0, 2.5, 0.6});
    wTRWL = 2, wTRWLUnits = 1;     // km
    wBRWL = 100, wBRWLUnits = 2;   // ft
    wLengthUnits = 3;              // miles
    wKsNew = 0.2, wKsNewUnits = 0; // mm
    wKsOld = 0.1, wKsOldUnits = 2; // in
    wWallThickness[1] = 6, wWallThicknessUnits = 0;
    wLiningThickness = 0.5, wLiningThicknessUnits = 2;
    wLiningType = 1;
    NormaliseInputs();
    EXPECT_EQ(UpstreamLevel, 2000);
    EXPECT_EQ(DownstreamLevel, Single(30.48));
    EXPECT_EQ(SectionLength[1], Single(4023.36));
    EXPECT_EQ(KsNewM, Single(Single(0.2) / 1000));
    EXPECT_EQ(KsOldM, Single(Single(0.1) * 0.0254));
    EXPECT_EQ(LiningLoss, Single(0.0254));
    EXPECT_NEAR(InternalDiameter[1], 0.6 - 0.012 - 0.0254, 1e-7);

    wLiningType = 0;
    NormaliseInputs();
    EXPECT_NEAR(InternalDiameter[1], 0.6 - 0.012, 1e-7);
}

// The factor is a whole number: 0.3048 becomes 0 and 1609.344 becomes 1609. A foreign unit leaves what
// stands.
TEST_F(NormaliseTest, ElevationFactorIsAWholeNumber)
{
    const std::pair<std::int16_t, int> Expected[] = {{0, 1},    {1, 1000}, {2, 0},
                                                     {3, 1609}, {4, 1609}, {-1, 1609}};
    for (const auto& [Units, Factor] : Expected) {
        wElevationUnits = Units;
        NormaliseInputs();
        EXPECT_EQ(ElevationFactor, Factor) << Units;
    }
}

// 24 megalitres a day, then 90 and 180 m3/h. Pump details decide which factors are taken; 90 ft3/h are
// 0.025 x 0.028316847 m3/s.
TEST_F(NormaliseTest, FlowsTakeTheFactorsInUse)
{
    wLife = 2;
    wFlowrate = 24, wFlowrateUnits = 0;
    wPumpOperatingFlowrateUnits = 6, wWaterSalesUnits = 3;
    NormaliseInputs();
    EXPECT_NEAR(DemandFlow[2], 0.2777778, 1e-7);
    EXPECT_EQ(OperatingFlowFactor, Single(1.0505030));
    EXPECT_EQ(WaterSalesFactor, Single(0.0037854118));
    EXPECT_EQ(FlowFactor, 0);

    wVaryingDemand = 1, wDemand[1] = 90, wDemand[2] = 180, wDemandUnits = 1;
    wPumpDetails = 1, wFlowUnits = 2, wPumpOperatingFlowrateUnits = 0;
    NormaliseInputs();
    EXPECT_NEAR(DemandFlow[1], 0.025, 1e-8);
    EXPECT_NEAR(DemandFlow[2], 0.05, 1e-8);
    EXPECT_NEAR(90 * FlowFactor, 0.025 * 0.028316847, 1e-10);
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
