// From data to ticks, and from ticks to positions.
#include "results/ChartFrame.h"

#include "base/Failure.h"

#include <gtest/gtest.h>
#include <limits>

namespace velorix {
namespace {

// Steps are the least of 1, 2, 5 x 10^n not below a tenth of the range; origins and counts by hand.
TEST(AxisTicksTest, RangesHaveTheirStepsOriginsAndCounts)
{
    const std::tuple<double, double, double, double, int> Cases[] = {
        {0, 100, 10, 0, 10},          {37, 91, 10, 30, 7},  // 61 / 10 rounds to 6, and 60 is below 91
        {-20, 60, 10, -30, 9},                              // a multiple goes one step further down
        {-10, 80, 10, -10, 9},        {-3, 60, 10, -10, 7}, // the step itself, and less than a step
        {10, 110, 10, 10, 11},        {5, 90, 10, 0, 9},    // at the step, and below it
        {0, 0, 0.001, 0, 0},                                // no range takes the first rung
        {-100, 0, 10, 0, 0},                                // ten steps don't get below it
        {1460, 1559.8, 10, 1460, 11}, {0, 1e7, 1e6, 0, 10}};
    for (const auto& [Least, Most, Step, Origin, Intervals] : Cases) {
        const AxisTicks Found = FindTicks(Least, Most, Ladder::ToMillion);
        EXPECT_EQ(std::tuple(Found.Step, Found.Origin, Found.Intervals),
                  std::tuple(Single(Step), Single(Origin), Intervals))
            << Least << " to " << Most;
    }
}

TEST(AxisTicksTest, LaddersEndWhereTheyAreToldTo)
{
    const double Ranges[] = {9e6, 3e7, 2e8};
    const std::pair<Ladder, std::array<double, 3>> Cases[] = {{Ladder::ToMillion, {1e6, 0, 0}},
                                                              {Ladder::ClosedAtMillion, {1e6, 1e6, 1e6}},
                                                              {Ladder::ToTenMillion, {1e6, 5e6, 0}},
                                                              {Ladder::ClosedAtTenMillion, {1e6, 5e6, 1e7}}};
    for (const auto& [Steps, Expected] : Cases)
        for (std::size_t Index = 0; Index < 3; ++Index)
            EXPECT_EQ(FindStep(0, Ranges[Index], Steps), Expected[Index]) << Ranges[Index];
    EXPECT_THROW(FindTicks(0, 3e7, Ladder::ToMillion), ArithmeticFailure);
    EXPECT_THROW(FindTicks(0, 1e12, Ladder::ClosedAtTenMillion), ArithmeticFailure); // 100,000 grid lines
    EXPECT_THROW(FindTicks(0, std::numeric_limits<double>::quiet_NaN(), Ladder::ToMillion),
                 ArithmeticFailure);
}

TEST(AxisTicksTest, LabelsShowWhatTheStepAndTheRangeAskFor)
{
    const std::pair<double, const char*> Formats[] = {{0.01, "##0.000"}, {0.02, "##0.00"}, {0.1, "##0.00"},
                                                      {0.5, "##0.0"},    {1, "##0"},       {2000, "##0"}};
    for (const auto& [Step, Format] : Formats) EXPECT_EQ(LabelFormat(Step), Format) << Step;

    const std::tuple<double, double, const char*, const char*> Labels[] = {
        {1234.5, 5000, "1234.", "1234.5"},
        {1234.5, 999, "1234", "1234.5"},
        {1234.5, 10000, "1234.5", "1234.5"},
        {123456.7, 200000, "123456.", "123456.7"},
        {0.3, 2, "0.3", "0.3"},
        {-12.5, 10, "-12.5", "-12.5"},
        {1234.5678, 99999, "1234.5", "1234.568"}}; // seven significant digits, cut to six behind the blank
    for (const auto& [Value, End, Shown, Whole] : Labels) {
        const XLabel Label = FindXLabel(Value, End);
        EXPECT_EQ(Label.Shown + " of " + Label.Whole, Shown + std::string(" of ") + Whole);
    }
}

class ChartFrameTest : public testing::Test {
protected:
    ChartFrameTest()
    {
        X = FindTicks(0, 100, Ladder::ToMillion);
        Y = FindTicks(37, 91, Ladder::ToMillion);
        Frame.SetRectangle(10000, 5000, 800, 600);
        Frame.SetAxes(X, Y);
    }

    ChartFrame Frame;
    AxisTicks X, Y;
};

// By hand: x 1020 to 9620 over 100, y 4310 up to 350 over 70.
TEST_F(ChartFrameTest, ValuesStandBetweenTheAxes)
{
    EXPECT_EQ(std::vector({Frame.X(0), Frame.X(12.5), Frame.X(100), Frame.Y(30), Frame.Y(100)}),
              std::vector({1020, 2095, 9620, 4310, 350}));
    EXPECT_EQ(Frame.XTick(X, 1), Frame.X(0));
    EXPECT_EQ(Frame.XTick(X, X.Intervals + 1), Frame.XRight + FrameInset);
    EXPECT_EQ(Frame.YTick(Y, Y.Intervals + 1), Frame.YTop - FrameInset);
}

TEST_F(ChartFrameTest, APositionBeyondItsWidthIsHeldAtTheBound)
{
    EXPECT_EQ(Frame.X(1e9), 32767);
    EXPECT_EQ(Frame.Y(1e9), -32768);
    Frame.Positions = PositionWidth::Bits32;
    EXPECT_EQ(Frame.X(1000), 87020);
    EXPECT_EQ(Frame.X(1e12), std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(Frame.X(std::numeric_limits<double>::quiet_NaN()), ArithmeticFailure);
}

// The edges of the data belong to it; a frame that was never drawn has no data.
TEST_F(ChartFrameTest, ThePointerReadsTheDataAndNothingBesideIt)
{
    const auto Corner = ReadFrame(Frame, Frame, 9620, 350);
    ASSERT_TRUE(Corner);
    EXPECT_DOUBLE_EQ(Corner->X, 100);
    EXPECT_NEAR(Corner->Y, 100, 1e-5); // the scale is a 32-bit number
    for (const auto& [x, y] : {std::pair{9621, 350}, {9620, 349}, {1019, 4000}, {5000, 4311}})
        EXPECT_FALSE(ReadFrame(Frame, Frame, x, y)) << x << ", " << y;
    EXPECT_FALSE(ReadFrame(ChartScale(), ChartOrigin(), 220, -220));
}

} // namespace
} // namespace velorix
