// The duty point of the pump on the system curve, and what happens without one.
#include "hydraulics/HydraulicsTest.h"

namespace velorix {
namespace {

// A pipe without length or fittings loses nothing: the system head is the level difference at every flow. The
// pump falls by 20 m for each 0.1 m3/s, so the head falls by 0.01 m from one picked point to the next.
class DutyPointTest : public HydraulicsTest {
protected:
    void SetUp() override
    {
        HydraulicsTest::SetUp();
        sample::AddNode({-100, 0, 1});
        sample::AddNode({-100, 0, 1});
        sample::SetAgeing(0.001, 0.001, 2);
        sample::SetPumpCurve(
            {{{100, 0.0, 40}, {80, 0.1, 60}, {60, 0.2, 70}, {40, 0.3, 80}, {20, 0.4, 75}, {0, 0.5, 50}}});
        wLife = 1;
    }

    void SolveAt(double SystemHeadWanted)
    {
        wBRWL = SystemHeadWanted;
        Solve();
    }
};

// On segment 3 the heads 50.01, 50 and 49.99 m belong to the points 999, 1000 and 1001. In the second round
// the pump is given in ft and m3/h.
TEST_F(DutyPointTest, TheNearerPointIsTakenInAnyUnit)
{
    for (const int Round : {1, 2}) {
        SCOPED_TRACE(Round);
        SolveAt(50.004);
        EXPECT_NEAR(DutyHead, 50, 1e-4);
        EXPECT_NEAR(Flow[1], 0.25, 1e-6);
        EXPECT_NEAR(Efficiency[1], 75, 1e-4);
        EXPECT_EQ(PumpEfficiencyByYear[1], Efficiency[1]);
        EXPECT_EQ(PumpFlow[1], Flow[1]);
        EXPECT_NEAR(PumpHead[1], 150.004, 1e-5); // from the ground at the pump, not from the water
        SolveAt(50.006);
        EXPECT_NEAR(DutyHead, 50.01, 1e-4);
        EXPECT_NEAR(Efficiency[1], 74.995, 1e-4);

        for (int p = 1; p <= 6; ++p) {
            wPumpCurve[3 * p - 2] = wPumpCurve[3 * p - 2] / 0.3048;
            wPumpCurve[3 * p - 1] = 3600 * wPumpCurve[3 * p - 1];
        }
        wHeadUnits = 1, wFlowUnits = 0;
    }
}

// Entry 0 of the system curve is asked for there.
TEST_F(DutyPointTest, TheFirstSegmentAlwaysFails)
{
    Flow[1] = 7;
    SolveAt(90);
    ExpectGradelineFailure();
    EXPECT_EQ(AnalysisAborted, 0);
    EXPECT_EQ(Flow[1], 7);
}

// The year goes on with the flow that stands, and the loop ends in the next one.
TEST_F(DutyPointTest, WithoutADutyPointTheYearLoopEnds)
{
    wLife = 3;
    OperatingFlow = 0.125;
    Flow[2] = 7;
    SolveAt(120);
    EXPECT_EQ(Raised, std::vector<std::string>{"no duty point in year 1"});
    EXPECT_EQ(AnalysisAborted, -1);
    EXPECT_EQ(AnalysisYear, 2);
    EXPECT_EQ(Flow[1], 0.125);
    EXPECT_EQ(Flow[2], 7);
}

// In one of the picked points, and all along a flat stretch from 0.2 m3/s on.
TEST_F(DutyPointTest, CurvesThatOnlyTouchDoNotCross)
{
    SolveAt(50);
    EXPECT_EQ(AnalysisAborted, -1);

    AnalysisAborted = 0;
    for (int p = 4; p <= 6; ++p) wPumpCurve[3 * p - 2] = 60;
    SolveAt(60);
    EXPECT_EQ(AnalysisAborted, -1);
}

} // namespace
} // namespace velorix
