// The first flow that clears the high points, against the plain scan.
#include "hydraulics/HighPoint.h"

#include "base/Failure.h"
#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"

#include <cmath>
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

    // The first 300000 tries are scanned; a flow that needs more must lie beyond them.
    static void ExpectPlainFlow(Single Start)
    {
        const Single Plain = plain::FlowClearOfHighPoints(Year, Start, 300000);
        const Single Fast = FlowClearOfHighPoints(Year, Start);
        if (plain::ClearsHighPoints(Year, Plain))
            EXPECT_EQ(Fast.Bits(), Plain.Bits());
        else
            EXPECT_LT(Fast, Plain);
    }
};

// Up to 20 rows between the reservoir and well below it. Two of three profiles have falling lengths and
// negative K as well, so that a range of flows can clear between two that don't.
TEST_F(HighPointTest, RandomProfilesGiveThePlainFlow)
{
    for (int Seed = 1; Seed <= 90; ++Seed) {
        SCOPED_TRACE(Seed);
        SetUp();
        std::mt19937 Random(Seed);
        std::uniform_real_distribution<double> Part(0, 1);
        const int Rows = 2 + static_cast<int>(Part(Random) * 18);
        for (int i = 0; i < Rows; ++i) {
            const double Sign = Seed % 3 != 0 && Part(Random) < 0.4 ? -1 : 1;
            AddRow(100.99 - 20 * Part(Random), Sign * 500 * Part(Random), 0.2 + 0.4 * Part(Random),
                   Sign * 20 * Part(Random), 0.01 + 0.02 * Part(Random));
        }
        ExpectPlainFlow(0.05 + 0.4 * Part(Random));
    }
}

// 1000 m x 0.02 / 0.5 m are 40 velocity heads, and 10 m of them may be lost.
TEST_F(HighPointTest, AnyNumberOfTriesGivesThePlainFlow)
{
    AddRow(0, 1000, 0.5, 0, 0.02);
    AddRow(91, 0, 0.5, 0, 0.02);
    const Single Clear = FlowClearOfHighPoints(Year, 1);
    for (int Tries = 1; Tries <= 300; ++Tries) ExpectPlainFlow(Clear + Tries / 1000000.0);
}

// A loss of 50 m and its gain of as much but for the rounding of the sums, and a ground level at which the
// rounding decides, flow by flow.
TEST_F(HighPointTest, SumsThatCancelAreDecidedByTheirRounding)
{
    for (int n = 0; n < 20; ++n) {
        SCOPED_TRACE(n);
        SetUp();
        AddRow(0, 0, 0.5, -5000 - n, 0.02);
        AddRow(0, 0, 0.5, 5000 + n * 1.00001, 0.02);
        AddRow(101 - n * 1e-6, 0, 0.5, 0, 0.02);
        AddRow(0, 0, 0.5, 0, 0.02);
        ExpectPlainFlow(0.3);
    }
}

// A secondary gain lets the point clear at negative flows only, far down the scan: 100 + 5 v^2/19.62 - 102 >
// -1 from |v| = 1.98091 m/s on, which is Q = -1.98091 m3/s in a bore of 1 m2. Without the gain none clears.
TEST_F(HighPointTest, FlowsBelowZeroAreTriedToo)
{
    AddRow(0, 0, 1.1283792, -5, 0.02);
    AddRow(102, 0, 1.1283792, 0, 0.02);
    EXPECT_NEAR(FlowClearOfHighPoints(Year, 0.5), -1.98091, 2e-5);
    wSecondaryLoss[1] = 0;
    wElevation[2] = 101; // exactly -1 m
    EXPECT_EQ(FlowClearOfHighPoints(Year, 0.25), Single(0.25 - 10));
}

// Such numbers take the plain way. An infinite loss coefficient times no flow at all isn't a number: the scan
// fails where it meets zero.
TEST_F(HighPointTest, NumbersFarOutGiveThePlainFlow)
{
    AddRow(0, 300, 0.5, 1, 0.02);
    AddRow(99, 300, 0.5, 1e-40, 0.02);
    AddRow(-INFINITY, 300, 0.5, 1, 0.02);
    ExpectPlainFlow(0.5);
    wElevation[3] = 0;
    wSecondaryLoss[1] = INFINITY;
    EXPECT_THROW(FlowClearOfHighPoints(Year, 0.5), ArithmeticFailure);
    EXPECT_EQ(FlowClearOfHighPoints(Year, 20), 10); // never meets it
}

} // namespace
} // namespace velorix
