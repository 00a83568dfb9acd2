// Units, bores and section lengths, and how the routine ends.
#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"

#include <limits>

namespace velorix {
namespace {

class NormaliseTest : public HydraulicsTest {};

TEST_F(NormaliseTest, LevelsAndLengthsTakeTheirOwnUnits)
{
    sample::AddNode({0, 0, 1});
    sample::AddNode({0, 2.5, 1});
    wTRWL = 2, wTRWLUnits = 1;     // km
    wBRWL = 100, wBRWLUnits = 2;   // ft
    wLengthUnits = 3;              // miles
    wKsNew = 0.2, wKsNewUnits = 0; // mm
    wKsOld = 0.1, wKsOldUnits = 2; // in
    NormaliseInputs();
    EXPECT_EQ(UpstreamLevel, 2000);
    EXPECT_EQ(DownstreamLevel, Single(30.48));
    EXPECT_EQ(SectionLength[1], Single(4023.36));
    EXPECT_EQ(KsNewM, Single(Single(0.2) / 1000));
    EXPECT_EQ(KsOldM, Single(Single(0.1) * 0.0254));
}

// The factor is a whole number: 0.3048 becomes 0 and 1609.344 becomes 1609.
TEST_F(NormaliseTest, ElevationFactorIsAWholeNumber)
{
    const int Expected[] = {1, 1000, 0, 1609};
    for (int Units = 0; Units < 4; ++Units) {
        wElevationUnits = static_cast<std::int16_t>(Units);
        NormaliseInputs();
        EXPECT_EQ(ElevationFactor, Expected[Units]);
    }
}

// 500 mm outside, walls 2 x 6 mm, lining 2 x 12 mm: 0.464 m of bore; a coating takes nothing.
TEST_F(NormaliseTest, BoreIsInsideLiningAndWalls)
{
    sample::AddNode({0, 0, 500});
    wDiameterUnits = wWallThicknessUnits = wLiningThicknessUnits = 0;
    wWallThickness[1] = 6;
    wLiningThickness = 12;
    wLiningType = 1;
    NormaliseInputs();
    EXPECT_NEAR(InternalDiameter[1], 0.464, 1e-7);
    EXPECT_EQ(LiningLoss, Single(0.024));

    wLiningType = 0;
    NormaliseInputs();
    EXPECT_NEAR(InternalDiameter[1], 0.488, 1e-7);
    EXPECT_EQ(LiningLoss, 0);
}

TEST_F(NormaliseTest, AForeignUnitLeavesWhatStands)
{
    wTRWL = 50;
    NormaliseInputs();
    wTRWL = 60, wTRWLUnits = 4;
    wElevationUnits = -1;
    wFlowrateUnits = 13;
    wWaterSalesUnits = 9;
    NormaliseInputs();
    EXPECT_EQ(UpstreamLevel, 50);
    EXPECT_EQ(ElevationFactor, 1);
    EXPECT_EQ(DemandFactor, 1);
    EXPECT_EQ(WaterSalesFactor, 1);
}

TEST_F(NormaliseTest, AShorterProfileKeepsTheLongerOnesSection)
{
    for (int i = 0; i < 3; ++i) sample::AddNode({0, 100.0 * i * i, 1});
    NormaliseInputs();
    EXPECT_EQ(SectionLength[2], 300);
    EXPECT_EQ(SectionLength[3], 0);
    NodeCount = 2;
    NormaliseInputs();
    EXPECT_EQ(SectionLength[1], 100);
    EXPECT_EQ(SectionLength[2], 300);
}

TEST_F(NormaliseTest, DemandIsFixedOrByYear)
{
    wLife = 2;
    wFlowrate = 24, wFlowrateUnits = 0; // 24 megalitres a day
    wDemand[1] = 90, wDemand[2] = 180, wDemandUnits = 1;
    NormaliseInputs();
    EXPECT_NEAR(DemandFlow[2], 0.2777778, 1e-7);
    wVaryingDemand = 1;
    NormaliseInputs();
    EXPECT_EQ(DemandFactor, Single(0.00027777778));
    EXPECT_NEAR(DemandFlow[1], 0.025, 1e-8);
    EXPECT_NEAR(DemandFlow[2], 0.05, 1e-8);
    EXPECT_EQ(DemandFlow[3], 0);
}

TEST_F(NormaliseTest, PumpFactorsFollowTheDetailsGiven)
{
    wHeadUnits = 1, wFlowUnits = 2, wPumpOperatingFlowrateUnits = 6;
    NormaliseInputs();
    EXPECT_EQ(OperatingFlowFactor, Single(1.0505030));
    EXPECT_EQ(HeadFactor, 0);
    wPumpDetails = 1, wPumpOperatingFlowrateUnits = 0;
    NormaliseInputs();
    EXPECT_EQ(HeadFactor, Single(0.3048));
    EXPECT_NEAR(FlowFactor, 7.8657908e-6, 1e-12); // 0.028316847 m3 over 3600 s
    EXPECT_EQ(OperatingFlowFactor, Single(1.0505030));
}

TEST_F(NormaliseTest, AFailureFromTheDemandOnIsQuietAndOneBeforeIsNot)
{
    const double Huge = std::numeric_limits<float>::max();
    wLife = 3;
    wVaryingDemand = 1, wDemandUnits = 11; // a factor above 1
    wDemand[1] = 1, wDemand[2] = Huge, wDemand[3] = 1;
    wPumpDetails = 1;
    EXPECT_NO_THROW(NormaliseInputs());
    EXPECT_EQ(DemandFlow[1], Single(1.2628033));
    EXPECT_EQ(DemandFlow[2], 0);
    EXPECT_EQ(HeadFactor, 0);
    EXPECT_EQ(WaterSalesFactor, 0);

    wBRWL = Huge, wBRWLUnits = 1;
    wTRWL = 7;
    EXPECT_THROW(NormaliseInputs(), ArithmeticFailure);
    EXPECT_EQ(UpstreamLevel, 7);
    EXPECT_EQ(DownstreamLevel, 0);
}

} // namespace
} // namespace velorix
