// The flow of a gravity system, found and cut back.
#include "hydraulics/GravityFlow.h"

#include "base/Failure.h"
#include "hydraulics/HighPoint.h"
#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"

#include <cmath>
#include <limits>
#include <random>

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
    }
};

// K 5 at the first row and 3 at the last add 8 v^2 / 19.62 = 0.40774 v^2 to the 1.41579 v^2 of friction; with
// a head of 7.29412 m, v is 2 m/s. The last K counts. The flow found is good for 1e-6, as is the level's last
// digit.
TEST_F(GravityFlowTest, AllLossesByHand)
{
    wElevation[2] = 93.8; // 0.48 m above the gradeline
    wElevation[3] = 5000; // of a longer profile before
    wSystemType = 2;      // what is no pumping system is gravity
    wSecondaryLoss[1] = 5;
    wSecondaryLoss[2] = 3;
    wBRWL = 100 - (5.6631555 + 8 * 4 / 19.62);
    Solve();
    EXPECT_EQ(HydraulicsFailed, 0);
    EXPECT_EQ(HighPointAdjusted, 0);
    EXPECT_NEAR(Lambda(2, 1), 1.0 / 36, 1e-9);
    EXPECT_NEAR(Flow[1], 1.570796, 3e-6);
    EXPECT_NEAR(FrictionLoss(1, 1), 5.66316, 2e-5);
    EXPECT_NEAR(SecondaryHeadLoss(2, 1), 12 / 19.62, 1e-5);
    EXPECT_EQ(Gradeline(0, 1), 100);
    EXPECT_NEAR(Gradeline(2, 1), wBRWL, 2e-5);
}

// The ground behind section 1 stands at 98.5 m and section 2 falls steeply. The gradeline there may fall
// to 97.5 m: 2.5 m of loss, so v = sqrt(2.5 x 36 x 19.62 / 1000) = 1.328834 m/s and Q = 1.043664 m3/s. With
// feet the elevations drop out: no high point, whatever the ground.
TEST_F(GravityFlowTest, AHighPointCutsTheFlowBackUnlessInFeet)
{
    sample::AddNode({10, 1100, 1});
    wElevation[2] = 98.5;
    wBRWL = 20;
    Solve();
    EXPECT_EQ(HighPointAdjusted, 1);
    EXPECT_NEAR(Flow[1], 1.043664, 2e-6);

    HighPointAdjusted = 0;
    wElevationUnits = 2;
    Solve();
    EXPECT_EQ(HighPointAdjusted, 0);
}

// A random pipeline for Year and the head on it. Some seeds lose next to nothing, gain head in fittings until
// all but cancels, meet a head of next to nothing, pass a high point by next to nothing, or hold what no real
// pipeline has.
Single AddRandomPipeline(unsigned Seed)
{
    std::mt19937 Random(Seed);
    const auto Part = [&] { return std::uniform_real_distribution<double>(0, 1)(Random); };
    const double Special[] = {
        NAN, HUGE_VAL, -HUGE_VAL, 3e38, 1e-45, 0, std::numeric_limits<float>::signaling_NaN()};
    const unsigned Kind = Seed % 16;
    const double Scale = Kind == 1 ? std::pow(10, -60 * Part()) : std::pow(10, 6 * Part() - 3);
    const int Rows = 1 + static_cast<int>(Part() * (Kind == 0 ? 120 : 20));
    for (int i = 1; i <= Rows; ++i) {
        const double Sign = (Kind == 2 || Kind == 3) && i % 2 == 0 ? -1 : 1;
        HydraulicsTest::AddRow(100 * Part() - 300, Kind == 3 ? 0 : Sign * Scale * Part(), 0.1 + Part(),
                               Kind == 3 ? Sign * Scale : Sign * 10 * Part(), 0.05 * Part());
    }
    wElevation[Rows + 1] = 50 * Part();
    UpstreamLevel = 100;
    const int Row = 1 + static_cast<int>(Part() * Rows);
    const Single Strange = Special[Seed / 16 % 7];
    if (Kind == 4) wSecondaryLoss[Row] = Strange;
    if (Kind == 5) InternalDiameter[Row] = Strange;
    if (Kind == 6) wElevation[Row + 1] = Strange;
    if (Kind == 7) return Strange;
    if (Kind == 8) return -100 * Part();

    const double Q = std::pow(10, 8 * Part() - 6);
    double Head = Kind == 9 ? 1e-6 * Part() : 0;
    for (int i = 1; i <= Rows; ++i) {
        Head += plain::Friction(i, HydraulicsTest::Year, Q) + plain::Secondary(i, Q);
        if (Kind == 10 && i == Row) wElevation[i + 1] = UpstreamLevel + 1 - Head;
    }
    return Head;
}

// The bits of the flow, -1 for a failure.
template <typename Routine>
std::int64_t FlowOrFailure(Routine Work)
{
    try {
        return Work().Bits();
    } catch (const Failure&) {
        return -1;
    }
}

// The loss is 3.2e38 m at 100 m3/s and a quarter of that at the first midpoint, where it takes the pressure
// head below what 32 bits hold. The last midpoint, near no flow, would not.
TEST_F(GravityFlowTest, APressureThatOverflowsOnTheWayIsAFailure)
{
    wTRWL = 1e36;
    wElevation[2] = 3.395e38;
    wAccLength[2] = 0;
    wSecondaryLoss[1] = 3.87e35;
    NormaliseInputs();
    SolveFlows(Tables::LeftOut);
    EXPECT_EQ(HydraulicsFailed, 1);
    EXPECT_EQ(HighPointAdjusted, 0);
}

TEST_F(GravityFlowTest, RandomPipelinesGiveThePlainFlow)
{
    int Failed = 0, CutBack = 0;
    for (unsigned Seed = 0; Seed < 4000; ++Seed) {
        SCOPED_TRACE(Seed);
        sample::Reset();
        ElevationFactor = 1;
        const Single H = AddRandomPipeline(Seed);
        const plain::Bisection Plain = plain::FlowOfHead(Year, H);
        ClearArithmeticFlags();
        if (Plain.BelowGround && Seed % 16 == 3) continue; // the search for what clears would take long
        const std::int64_t Expected = FlowOrFailure([&] {
            if (Plain.Fails) throw SubscriptFailure(0, 0, 0);
            return Plain.BelowGround ? FlowClearOfHighPoints(Year, Plain.Flow) : Plain.Flow;
        });
        ASSERT_EQ(FlowOrFailure([&] { return GravityFlow(Year, H); }), Expected);
        ASSERT_EQ(HighPointAdjusted, Plain.BelowGround ? 1 : 0);
        Failed += Expected < 0;
        CutBack += Plain.BelowGround;
    }
    EXPECT_GT(Failed, 100);
    EXPECT_GT(CutBack, 20);
}

} // namespace
} // namespace velorix
