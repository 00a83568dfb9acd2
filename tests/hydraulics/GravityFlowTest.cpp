// The flow of a gravity system, found and cut back.
#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"

#include <limits>

namespace velorix {
namespace {

// A bore of 1 m with ks = 3.7 mm: 3.7 D / ks is 1000, its logarithm 3 and the friction factor 1/36. Over 1000
// m, hf = 1000 v^2 / (36 x 19.62), which is 5.6631555 m at 2 m/s, where Q = pi / 2.
class GravityFlowTest : public HydraulicsTest {
protected:
    void SetUp() override
    {
        HydraulicsTest::SetUp();
        sample::AddNode({80, 0, 1});
        sample::AddNode({60, 1000, 1});
        sample::SetAgeing(0.0037, 0.0037, 2);
        wLife = 1;
        wTRWL = 100;
        wBRWL = 100 - 5.6631555;
    }
};

TEST_F(GravityFlowTest, FrictionAloneByHand)
{
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    EXPECT_NEAR(Lambda(2, 1), 1.0 / 36, 1e-9);
    EXPECT_NEAR(Flow[1], 1.570796, 3e-6); // the level's last digit is worth 1e-6 of flow
    EXPECT_NEAR(FrictionLoss(1, 1), 5.66316, 2e-5);
    EXPECT_EQ(Gradeline(0, 1), 100);
    EXPECT_NEAR(Gradeline(1, 1), wBRWL, 2e-5);
    EXPECT_EQ(HighPointAdjusted, 0);
}

// K 5 at the first row and 3 at the last add 8 v^2 / 19.62 = 0.40774 v^2 to the 1.41579 v^2 of friction; with
// a head of 7.29412 m, v is 2 m/s again. The last K counts.
TEST_F(GravityFlowTest, SecondaryLossesOfAllRowsCount)
{
    wSecondaryLoss[1] = 5;
    wSecondaryLoss[2] = 3;
    wBRWL = 100 - (5.6631555 + 8 * 4 / 19.62);
    Solve();
    EXPECT_NEAR(Flow[1], 1.570796, 3e-6);
    EXPECT_NEAR(SecondaryHeadLoss(2, 1), 12 / 19.62, 1e-5);
    EXPECT_NEAR(Gradeline(2, 1), wBRWL, 2e-5);
}

// No flow loses a negative head, and the search climbs to its upper end, as for a flow beyond 100 m3/s.
TEST_F(GravityFlowTest, AHeadThatDrivesNothingEndsNextTo100)
{
    for (const double Level : {100.0, 120.0, -1e6}) {
        wBRWL = Level;
        wElevation[2] = -30000; // far below the gradeline
        Solve();
        EXPECT_EQ(HydraulicsFailed, 0);
        EXPECT_NEAR(Flow[1], 100, 1e-4);
    }
}

// Neighbouring 32-bit flows lie further apart here than the search asks for.
TEST_F(GravityFlowTest, LargeFlowsComeToAnEnd)
{
    wElevation[2] = -30000;
    for (double v = 0.5; v < 120; v *= 1.37) {
        wBRWL = 100 - 1000 * v * v / (36 * 19.62);
        Solve();
        EXPECT_NEAR(Flow[1], v * 0.7853982, 1e-6 + 3e-6 * v);
    }
}

TEST_F(GravityFlowTest, NumbersThatAreNotFiniteEndInFailureOrFlowButEnd)
{
    const double Infinity = std::numeric_limits<double>::infinity();
    const double NaN = std::numeric_limits<double>::quiet_NaN();
    wElevation[2] = -30000;
    NormaliseInputs();
    DownstreamLevel = -Infinity;
    SolveFlows();
    EXPECT_NEAR(Flow[1], 100, 1e-4);
    DownstreamLevel = NaN;
    SolveFlows();
    ExpectGradelineFailure();
}

TEST_F(GravityFlowTest, FromAHundredRowsOnItFails)
{
    NodeCount = 0;
    for (int i = 0; i < 99; ++i) sample::AddNode({20, 10.0 * i, 1});
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    EXPECT_GT(Flow[1], 0);

    sample::AddNode({20, 990, 1});
    Flow[1] = 7;
    Lambda(100, 1) = 0;
    Solve();
    ExpectGradelineFailure();
    EXPECT_EQ(Flow[1], 7);
    EXPECT_NEAR(Lambda(100, 1), 1.0 / 36, 1e-9);
}

// The ground behind section 1 stands at 98.5 m and section 2 falls steeply. The gradeline there may fall
// to 97.5 m: 2.5 m of loss, so v = sqrt(2.5 x 36 x 19.62 / 1000) = 1.328834 m/s and Q = 1.043664 m3/s.
TEST_F(GravityFlowTest, AHighPointCutsTheFlowBack)
{
    sample::AddNode({10, 1100, 1});
    wElevation[2] = 98.5;
    wBRWL = 20;
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    EXPECT_EQ(HighPointAdjusted, 1);
    EXPECT_NEAR(Flow[1], 1.043664, 2e-6);
    EXPECT_TRUE(plain::ClearsHighPoints(1, Flow[1]));
    EXPECT_FALSE(plain::ClearsHighPoints(1, Flow[1] + 0.000001));
}

// With feet the elevations drop out: no high point, whatever the ground.
TEST_F(GravityFlowTest, ElevationsInFeetNeverMakeAHighPoint)
{
    wElevation[2] = 5000;
    wElevationUnits = 2;
    Solve();
    EXPECT_EQ(HighPointAdjusted, 0);
    EXPECT_NEAR(Flow[1], 1.570796, 3e-6);
}

TEST_F(GravityFlowTest, GroundAboveTheReservoirEndsBelowZero)
{
    Solve();
    const double Uncut = Flow[1];
    wElevation[2] = 5000;
    Solve();
    EXPECT_EQ(Flow[1], Single(Uncut - 10));
    EXPECT_LT(FrictionLoss(1, 1), 1000);
    EXPECT_GT(FrictionLoss(1, 1), 0);
}

} // namespace
} // namespace velorix
