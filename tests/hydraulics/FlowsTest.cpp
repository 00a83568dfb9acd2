// Roughness by year, the failure path, and the year loop of a given flow.
#include "hydraulics/HydraulicsTest.h"

namespace velorix {
namespace {

class FlowsTest : public HydraulicsTest {
protected:
    void SetUp() override
    {
        HydraulicsTest::SetUp();
        sample::AddNode({10, 0, 1});
        sample::AddNode({12, 1000, 1});
        sample::AddNode({15, 3000, 1});
        sample::SetAgeing(0.0037, 0.0037, 2);
        wLife = 2;
    }

    // A pumping system with 2 m/s in the bore of 1 m; hf is 5.66316 m for each 1000 m (see GravityFlowTest).
    static void GiveFlow()
    {
        wSystemType = 1;
        wPumpOperatingFlowrate = 1.5707963;
    }
};

// From 1 to 5 mm in 4 steps up to year 5.
TEST_F(FlowsTest, RoughnessGrowsInAStraightLineAndStays)
{
    GiveFlow();
    wLife = 7;
    sample::SetAgeing(0.001, 0.005, 5);
    Solve();
    for (int y = 1; y <= 7; ++y) EXPECT_NEAR(KsYear[y], y < 5 ? 0.001 * y : 0.005, 1e-9) << y;
}

// The slope takes the years unrounded, the passes rounded, halves to even: 2.5 gives two years.
TEST_F(FlowsTest, HalfYearsRoundToEven)
{
    GiveFlow();
    wLife = 3;
    sample::SetAgeing(0.001, 0.004, 2.5);
    Solve();
    EXPECT_EQ(KsYear[1], Single(0.001));
    EXPECT_EQ(KsYear[2], KsOldM);
    sample::SetAgeing(0.001, 0.004, 3.5); // four years, 0.0012 m each
    wLife = 4;
    Solve();
    EXPECT_NEAR(KsYear[3], 0.0034, 1e-9);
    EXPECT_EQ(KsYear[4], KsOldM);
}

TEST_F(FlowsTest, YearsOfAgeingOutsideTheTableFail)
{
    GiveFlow();
    for (const double Years : {1.0, 0.5, 0.0, -5.0, -1e30, 100.6, 40000.0, 1e30}) {
        Windows.Messages.clear();
        sample::SetAgeing(0.0037, 0.0037, Years);
        Solve();
        SCOPED_TRACE(Years);
        ExpectGradelineFailure();
    }
    EXPECT_EQ(KsYear[100], KsNewM); // the years up to 100 were written
    EXPECT_EQ(Flow[1], 0);
}

TEST_F(FlowsTest, YearsDoneStandAndTheOthersKeepWhatTheyHeld)
{
    sample::SetAgeing(0.0037, 0, 2); // the second year has no roughness
    wTRWL = 30;
    Flow[2] = 7;
    Lambda(1, 2) = 8;
    Solve();
    ExpectGradelineFailure();
    EXPECT_GT(Flow[1], 1);
    EXPECT_EQ(Flow[2], 7);
    EXPECT_EQ(Lambda(1, 2), 8);

    sample::SetAgeing(0.0037, 0.0037, 2);
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    EXPECT_EQ(Flow[2], Flow[1]);
}

TEST_F(FlowsTest, APipeWithoutBoreFails)
{
    for (const double D : {0.0, -1.0}) {
        Windows.Messages.clear();
        wDiameter[2] = D;
        Solve();
        SCOPED_TRACE(D);
        ExpectGradelineFailure();
    }
}

// Down from the end reservoir at 40 m: 11.32631 m lost between rows 2 and 3, 5.66316 between 1 and 2, and 2
// velocity heads of 4/19.62 at row 1. The last row's K takes no part, point 0 is the ground at the pump.
TEST_F(FlowsTest, GivenFlowRunsTheGradelineBackFromTheEnd)
{
    GiveFlow();
    wBRWL = 40;
    wSecondaryLoss[1] = 2;
    wSecondaryLoss[3] = 50;
    Efficiency[1] = 3;
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    for (int y = 1; y <= 2; ++y) {
        EXPECT_EQ(Flow[y], Single(1.5707963));
        EXPECT_EQ(Gradeline(3, y), 40);
        EXPECT_NEAR(Gradeline(2, y), 51.32631, 2e-5);
        EXPECT_NEAR(Gradeline(1, y), 51.32631 + 5.66316 + 0.40775, 4e-5);
        EXPECT_EQ(Gradeline(0, y), 10);
    }
    EXPECT_EQ(Efficiency[1], 3);
    EXPECT_EQ(PumpHead[1], 0);
}

// Row 2 lies 20 m above its head: the whole line rises by 19 m, point 0 doesn't.
TEST_F(FlowsTest, TheGradelineIsLiftedOverAHighPoint)
{
    GiveFlow();
    wBRWL = 40;
    wElevation[2] = 71.32631;
    Solve();
    EXPECT_NEAR(Gradeline(2, 1), 70.32631, 2e-5);
    EXPECT_NEAR(Gradeline(3, 1), 59, 2e-5);
    EXPECT_EQ(Gradeline(0, 1), 10);
}

TEST_F(FlowsTest, AForeignSystemTypeIsGravity)
{
    GiveFlow();
    wSystemType = 2;
    wTRWL = 30;
    Solve();
    EXPECT_EQ(Gradeline(0, 1), 30);
    EXPECT_NE(Flow[1], Single(1.5707963));
}

} // namespace
} // namespace velorix
