// The duty point of the pump on the system curve, and what happens without one.
#include "hydraulics/DutyPoint.h"

#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"
#include "hydraulics/SystemCurve.h"

#include <cmath>
#include <limits>
#include <random>

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

// A random pump on a random pipeline, for Year. Most cross somewhere. Some seeds have what no real one has:
// losses below zero, none at all, next to none, a kinked or a reversed pump curve, one point twice, a head
// just on a point, numbers that aren't finite or lie far out.
class AnyPump {
public:
    explicit AnyPump(unsigned Seed)
        : Random(Seed)
        , Kind(Seed % 16)
        , Strange(std::array<double, 6>{NAN, HUGE_VAL, 2e37, 3e38, 1e-45,
                                        std::numeric_limits<float>::signaling_NaN()}[Seed / 16 % 6])
    {
        const int Rows = Kind == 0 ? 2 + Up(120) : Up(12);
        for (int i = 1; i <= Rows; ++i) {
            const double Sign = Kind == 1 && Up(3) == 1 ? -1 : 1;
            const double Scale = Kind == 2 ? 0 : Kind == 3 ? 1e-9 : 1;
            HydraulicsTest::AddRow(60 * Part() - (Kind % 2 == 0 ? 100 : 0), Scale * Sign * 600 * Part(),
                                   0.2 + 0.4 * Part(), Scale * Sign * Part(), 0.01 + 0.02 * Part());
        }
        UpstreamLevel = 30 * Part();
        DownstreamLevel = 60 + 20 * Part();
        AddCurve();
        if (Kind == 4) wPumpCurve[Up(18)] = Strange;
        if (Kind == 5) wSecondaryLoss[Up(Rows)] = Strange;
        if (Kind == 6) wElevation[Up(Rows)] = -Strange;
    }

private:
    double Part() { return std::uniform_real_distribution<double>(0, 1)(Random); }
    int Up(int Most) { return std::uniform_int_distribution<int>(1, Most)(Random); }

    void AddCurve()
    {
        HeadFactor = Kind == 7 ? 0.3048 : 1;
        FlowFactor = Kind == 8 ? 0.00027777778 : 1;
        const double Top = 70 + 80 * Part();
        const double Widest = 0.05 + 0.5 * Part();
        for (int p = 1; p <= 6; ++p) {
            const double x = (Kind == 9 ? 7 - p : p - 1) / 5.0; // from the largest flow down
            const double Kink = Kind == 10 ? Part() - 0.5 : 0;
            wPumpCurve[3 * p - 2] = (Top - 60 * x * x * (1 + Kink)) / HeadFactor;
            wPumpCurve[3 * p - 1] = Widest * (x + 0.3 * Kink) / FlowFactor;
            wPumpCurve[3 * p] = 80 * x;
        }
        if (Kind == 11) wPumpCurve[17] = wPumpCurve[2];
        if (Kind == 12) wPumpCurve[3 * Up(6) - 2] = DownstreamLevel - UpstreamLevel;
        if (Kind == 13) wPumpCurve[2] = -Widest;
    }

    std::mt19937 Random;
    unsigned Kind;
    double Strange;
};

// How the search ends, and what it takes.
plain::Duty DutyBy(Tables Wanted)
{
    ClearArithmeticFlags();
    try {
        if (!FindDutyPoint(Wanted)) return {};
    } catch (const Failure&) {
        return {plain::Duty::Outcome::Fails, 0, 0, 0};
    }
    return {plain::Duty::Outcome::Found, DutyHead, OperatingFlow, DutyEfficiency};
}

TEST_F(DutyPointTest, RandomPumpsGiveThePlainDutyPoint)
{
    std::array<int, 3> Ends{};
    for (unsigned Seed = 0; Seed < 4000; ++Seed) {
        sample::Reset();
        const AnyPump Pump(Seed);
        AnalysisYear = Year;
        plain::Duty Plain{plain::Duty::Outcome::Fails, 0, 0, 0};
        try {
            StoreSystemCurve();
            Plain = plain::DutyPoint(Year);
        } catch (const ArithmeticFailure&) {
            SystemHead.Fill(-1); // a search that reads on would find it
        }
        for (const Tables Wanted : {Tables::LeftOut, Tables::Filled}) {
            const plain::Duty Found = DutyBy(Wanted);
            ASSERT_EQ(Found.Ends, Plain.Ends) << Seed;
            ASSERT_EQ(Found.Head.Bits(), Plain.Head.Bits()) << Seed;
            ASSERT_EQ(Found.Flow.Bits(), Plain.Flow.Bits()) << Seed;
            ASSERT_EQ(Found.Efficiency.Bits(), Plain.Efficiency.Bits()) << Seed;
        }
        ++Ends[static_cast<std::size_t>(Plain.Ends)];
    }
    for (const int Count : Ends) EXPECT_GT(Count, 300);
}

} // namespace
} // namespace velorix
