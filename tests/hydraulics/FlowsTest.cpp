// Roughness by year, the failure path, and the year loop of a given flow.
#include "hydraulics/HydraulicsTest.h"

#include <vector>

namespace velorix {
namespace {

// A pumping system with 2 m/s in a bore of 1 m; hf is 5.66316 m for each 1000 m (see GravityFlowTest).
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
        wSystemType = 1;
        wPumpOperatingFlowrate = 1.5707963;
        wBRWL = 40;
    }
};

// From 1 to 5 mm. The slope takes the years unrounded, the passes rounded, halves to even: 2.5 gives two
// years, 3.5 gives four with 1.6 mm each.
TEST_F(FlowsTest, RoughnessGrowsInAStraightLineAndStays)
{
    wLife = 6;
    const std::pair<double, std::vector<double>> Cases[] = {
        {5, {1, 2, 3, 4, 5, 5}}, {2.5, {1, 5, 5, 5, 5, 5}}, {3.5, {1, 2.6, 4.2, 5, 5, 5}}};
    for (const auto& [Years, Expected] : Cases) {
        sample::SetAgeing(0.001, 0.005, Years);
        Solve();
        for (int y = 1; y <= 6; ++y)
            EXPECT_NEAR(1000 * KsYear[y], Expected[y - 1], 1e-6) << Years << ' ' << y;
    }
}

TEST_F(FlowsTest, YearsOfAgeingOutsideTheTableFail)
{
    for (const double Years : {1.0, 0.5, 0.0, -5.0, -1e30, 100.6, 40000.0, 1e30}) {
        SCOPED_TRACE(Years);
        sample::SetAgeing(0.0037, 0.0037, Years);
        Solve();
        ExpectGradelineFailure();
    }
    EXPECT_EQ(KsYear[100], KsNewM); // the years up to 100 were written
    wKsOldYears = 2;
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
}

// Up from the end reservoir at 40 m: 11.32631 m lost between rows 2 and 3, 5.66316 between 1 and 2, and 2
// velocity heads of 4/19.62 at row 1. The last row's K takes no part, point 0 is the ground at the pump. With
// row 2 at 20 m above its head the whole line but point 0 rises by 19 m.
TEST_F(FlowsTest, GivenFlowRunsTheGradelineBackFromTheEnd)
{
    wSecondaryLoss[1] = 2;
    wSecondaryLoss[3] = 50;
    const double Cases[][2] = {{12, 0}, {71.32631, 19}}; // ground at row 2, rise
    for (const auto& [Ground, Rise] : Cases) {
        wElevation[2] = Ground;
        Solve();
        for (int y = 1; y <= 2; ++y) {
            EXPECT_EQ(Flow[y], Single(1.5707963));
            EXPECT_NEAR(Gradeline(3, y), 40 + Rise, 2e-5);
            EXPECT_NEAR(Gradeline(2, y), 51.32631 + Rise, 2e-5);
            EXPECT_NEAR(Gradeline(1, y), 51.32631 + 5.66316 + 0.40775 + Rise, 4e-5);
            EXPECT_EQ(Gradeline(0, y), 10);
        }
    }
}

// At 10 m/s a velocity head is 5.1 m: K 3e38 is beyond 32 bits in row 2, K 6e37 in the sum of rows 1 and 2.
TEST_F(FlowsTest, AFailedYearKeepsWhatStoodBeforeAndHoldsWhatStandsInFrontOfTheFailure)
{
    struct Case {
        double K1, K2;
        int Friction, Secondary, Head; // rows written; the heads from the last row back
    };
    for (const Case& Each : {Case{0, 3e38, 2, 1, 0}, Case{6e37, 6e37, 3, 3, 2}}) {
        wPumpOperatingFlowrate = 7.8539816;
        wSecondaryLoss[1] = Each.K1;
        wSecondaryLoss[2] = Each.K2;
        for (ByRowAndYear* Losses : {&FrictionLoss, &SecondaryHeadLoss}) Losses->Fill(-7);
        Gradeline.Fill(-7);
        Solve();
        ExpectGradelineFailure();
        for (int i = 1; i <= 3; ++i) {
            EXPECT_EQ(FrictionLoss(i, 1) != -7, i <= Each.Friction) << i;
            EXPECT_EQ(SecondaryHeadLoss(i, 1) != -7, i <= Each.Secondary) << i;
            EXPECT_EQ(Gradeline(i, 1) != -7, i > 3 - Each.Head) << i;
        }
    }
}

} // namespace
} // namespace velorix
