// The duty point of the pump on the system curve, and what happens without one.
#include "hydraulics/DutyPoint.h"

#include "base/Failure.h"
#include "hydraulics/AnyPump.h"
#include "hydraulics/PlainReference.h"
#include "hydraulics/SystemCurve.h"

namespace velorix {
namespace {

using DutyPointTest = HydraulicsTest;

// A pipe without length or fittings: the system head is the level difference, 20 m above the pump's highest.
// The year goes on with the flow that stands, and the loop ends in the next one.
TEST_F(DutyPointTest, WithoutADutyPointTheYearLoopEnds)
{
    for (int Row = 1; Row <= 2; ++Row) sample::AddNode({-100, 0, 1});
    sample::SetAgeing(0.001, 0.001, 2);
    sample::SetPumpCurve(
        {{{100, 0.0, 40}, {80, 0.1, 60}, {60, 0.2, 70}, {40, 0.3, 80}, {20, 0.4, 75}, {0, 0.5, 50}}});
    wBRWL = 120;
    wLife = 3;
    OperatingFlow = 0.125;
    Flow[2] = 7;
    Solve();
    EXPECT_EQ(Raised, std::vector<std::string>{"no duty point in year 1"});
    EXPECT_EQ(AnalysisAborted, -1);
    EXPECT_EQ(AnalysisYear, 2);
    EXPECT_EQ(Flow[1], 0.125);
    EXPECT_EQ(Flow[2], 7);
}

// How the search ends, and what it takes. One that doesn't fail leaves no failure to the steps behind it.
plain::Duty DutyBy(Tables Wanted)
{
    ClearArithmeticFlags();
    try {
        const bool Found = FindDutyPoint(Wanted);
        EXPECT_FALSE(ArithmeticFailed());
        if (!Found) return {};
    } catch (const Failure&) {
        return {plain::Duty::Outcome::Fails, 0, 0, 0};
    }
    return {plain::Duty::Outcome::Found, DutyHead, OperatingFlow, DutyEfficiency};
}

TEST_F(DutyPointTest, RandomPumpsGiveThePlainDutyPoint)
{
    std::array<int, 3> Ends{};
    for (unsigned Seed = 0; Seed < 4000; ++Seed) {
        const AnyPump Pump(Seed);
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
