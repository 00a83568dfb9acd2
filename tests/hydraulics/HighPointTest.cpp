// The first flow that clears the high points, against the plain scan.
#include "hydraulics/HighPoint.h"

#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"

#include <limits>
#include <random>

namespace velorix {
namespace {

class HighPointTest : public HydraulicsTest {
protected:
    void SetUp() override
    {
        HydraulicsTest::SetUp();
        ElevationFactor = 1;
        UpstreamLevel = 100;
    }

    void AddRow(double Elevation, double Length, double Diameter, double K, double Factor)
    {
        sample::AddNode({Elevation, 0, Diameter, K});
        InternalDiameter[NodeCount] = Diameter;
        SectionLength[NodeCount] = Length;
        Lambda(NodeCount, 1) = Factor;
    }

    // Up to 20 rows between the reservoir and well below it; Mixed has falling lengths and negative K as
    // well.
    double AddRandomRows(int Seed, bool Mixed)
    {
        std::mt19937 Random(Seed);
        std::uniform_real_distribution<double> Part(0, 1);
        const int Rows = 2 + static_cast<int>(Part(Random) * 18);
        for (int i = 0; i < Rows; ++i) {
            const double Sign = Mixed && Part(Random) < 0.4 ? -1 : 1;
            AddRow(100.99 - 20 * Part(Random), Sign * 500 * Part(Random), 0.2 + 0.4 * Part(Random),
                   Sign * 20 * Part(Random), 0.01 + 0.02 * Part(Random));
        }
        return 0.05 + 0.4 * Part(Random);
    }

    // The first 300000 tries are scanned; a flow that needs more must lie beyond them.
    static void ExpectPlainFlow(Single Start)
    {
        const Single Plain = plain::FlowClearOfHighPoints(1, Start, 300000);
        const Single Fast = FlowClearOfHighPoints(1, Start);
        if (plain::ClearsHighPoints(1, Plain))
            EXPECT_EQ(Fast.Bits(), Plain.Bits());
        else
            EXPECT_LT(Fast, Plain);
    }
};

TEST_F(HighPointTest, RisingLossesGiveThePlainFlow)
{
    for (int Seed = 1; Seed <= 30; ++Seed) {
        SetUp();
        SCOPED_TRACE(Seed);
        ExpectPlainFlow(AddRandomRows(Seed, false));
    }
}

// Here a range of flows can clear between two that don't.
TEST_F(HighPointTest, LossesOfBothSignsGiveThePlainFlow)
{
    for (int Seed = 101; Seed <= 160; ++Seed) {
        SetUp();
        SCOPED_TRACE(Seed);
        ExpectPlainFlow(AddRandomRows(Seed, true));
    }
}

// A loss of 50 m and its gain of as much but for the rounding of the sums, and a ground level at which the
// rounding decides, flow by flow.
TEST_F(HighPointTest, SumsThatCancelAreDecidedByTheirRounding)
{
    for (int n = 0; n < 20; ++n) {
        SetUp();
        AddRow(0, 0, 0.5, -5000 - n, 0.02);
        AddRow(0, 0, 0.5, 5000 + n * 1.00001, 0.02);
        AddRow(101 - n * 1e-6, 0, 0.5, 0, 0.02);
        AddRow(0, 0, 0.5, 0, 0.02);
        SCOPED_TRACE(n);
        ExpectPlainFlow(0.3);
    }
}

// A secondary gain lets the point clear at negative flows only, far down the scan: 100 + 5 v^2/19.62 - 102 >
// -1 from |v| = 1.98091 m/s on, which is Q = -1.98091 m3/s in a bore of 1 m2.
TEST_F(HighPointTest, AFlowBelowZeroCanClear)
{
    AddRow(0, 0, 1.1283792, -5, 0.02);
    AddRow(102, 0, 1.1283792, 0, 0.02);
    EXPECT_NEAR(FlowClearOfHighPoints(1, 0.5), -1.98091, 2e-5);
}

TEST_F(HighPointTest, TheLastTryStandsWhenNoneClears)
{
    AddRow(0, 100, 0.5, 1, 0.02);
    AddRow(101, 100, 0.5, 1, 0.02); // exactly -1 m at no flow at all
    EXPECT_EQ(FlowClearOfHighPoints(1, 0.25), Single(0.25 - 10));
}

// Numbers for which the kernel isn't made take the plain way, and come to an end as soon.
TEST_F(HighPointTest, NumbersFarOutGiveThePlainFlow)
{
    const double Infinity = std::numeric_limits<double>::infinity();
    AddRow(0, 300, 0.5, 1, 0.02);
    AddRow(99, 300, 0.5, 1e-40, 0.02);
    AddRow(-Infinity, 300, 0.5, 1, 0.02);
    AddRow(0, 300, 0.5, 1, 0.02);
    ExpectPlainFlow(0.5);
    wElevation[3] = Infinity;
    EXPECT_EQ(FlowClearOfHighPoints(1, 0.5), Single(0.5 - 10));
}

// An infinite loss coefficient times no flow at all isn't a number: the scan fails where it meets zero.
TEST_F(HighPointTest, AFailureOnTheWayIsMet)
{
    AddRow(0, 0, 0.5, std::numeric_limits<double>::infinity(), 0.02);
    AddRow(0, 0, 0.5, 0, 0.02);
    EXPECT_THROW(FlowClearOfHighPoints(1, 0.5), ArithmeticFailure);
    EXPECT_EQ(FlowClearOfHighPoints(1, 20), 10); // never meets it
}

} // namespace
} // namespace velorix
