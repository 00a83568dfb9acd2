// Failures found through the status flags, and integer rounding.
#include "base/Arithmetic.h"

#include "base/Failure.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace velorix {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

// Volatile, so that the compiler leaves the arithmetic to the processor.
volatile double Zero = 0.0;
volatile double One = 1.0;
volatile double Large = 1e300;

class ArithmeticTest : public testing::Test {
protected:
    void SetUp() override { ClearArithmeticFlags(); }
};

TEST_F(ArithmeticTest, EachKindOfFailureIsFound)
{
    EXPECT_THAT([] { Checked(One / Zero); }, ThrowsMessage<ArithmeticFailure>("division by zero"));
    EXPECT_THAT([] { Checked(std::log(Zero)); }, ThrowsMessage<ArithmeticFailure>("division by zero"));
    EXPECT_THAT([] { Checked(Zero / Zero); }, ThrowsMessage<ArithmeticFailure>("invalid operation"));
    EXPECT_THROW(Checked(std::log(-One)), ArithmeticFailure);
    EXPECT_THROW(Checked(std::pow(-One, 0.5)), ArithmeticFailure);
    EXPECT_THAT([] { Checked(Large * Large); }, ThrowsMessage<ArithmeticFailure>("overflow"));
}

TEST_F(ArithmeticTest, OverflowOfTheRoundingToTheStoredWidthIsAFailure)
{
    EXPECT_THROW(Checked(One * 3.5e38), ArithmeticFailure);
    EXPECT_EQ(Checked(One * 3.4e38), Single(3.4e38));
    EXPECT_EQ(Checked(One * 1e-60), 0.0); // underflow is none
    EXPECT_EQ(Checked(One / 3.0), Single(1.0 / 3.0));
}

TEST_F(ArithmeticTest, AFailedStoreLeavesTheTargetAndForgetsTheFailure)
{
    Single Flow = 5.0;
    EXPECT_THROW(Flow = Checked(One / Zero), ArithmeticFailure);
    EXPECT_EQ(Flow, 5.0);
    Flow = Checked(One / 2.0);
    EXPECT_EQ(Flow, 0.5);
}

TEST_F(ArithmeticTest, AFailureInsideAnExpressionCountsThoughTheResultIsFinite)
{
    EXPECT_THROW(Checked(One / (One / Zero)), ArithmeticFailure);
}

TEST_F(ArithmeticTest, FlagsStandUntilTheyAreChecked)
{
    const volatile double Lost = One / Zero;
    EXPECT_TRUE(std::isinf(Lost));
    EXPECT_TRUE(ArithmeticFailed());
    EXPECT_THROW(CheckArithmetic(), ArithmeticFailure);
    EXPECT_FALSE(ArithmeticFailed());
    EXPECT_NO_THROW(CheckArithmetic());
}

TEST_F(ArithmeticTest, HalvesRoundToTheEvenNeighbour)
{
    EXPECT_EQ(RoundEven(0.5), 0.0);
    EXPECT_EQ(RoundEven(1.5), 2.0);
    EXPECT_EQ(RoundEven(2.5), 2.0);
    EXPECT_EQ(RoundEven(-2.5), -2.0);
    EXPECT_EQ(RoundEven(-3.5), -4.0);
    EXPECT_EQ(RoundEven(2.4999999), 2.0);
    EXPECT_EQ(RoundToInt16(14.5), 14);
}

TEST_F(ArithmeticTest, ANumberThatItsIntegerCannotHoldIsAFailure)
{
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768); // the tie goes to the even -32768
    EXPECT_THAT([] { RoundToInt16(32767.5); }, ThrowsMessage<ArithmeticFailure>(HasSubstr("32767.5")));
    EXPECT_THROW(RoundToInt16(-32769.0), ArithmeticFailure);
    EXPECT_THROW(RoundToInt16(std::numeric_limits<double>::quiet_NaN()), ArithmeticFailure);
    EXPECT_EQ(RoundToInt32(2147483647.0), 2147483647);
    EXPECT_THROW(RoundToInt32(2147483648.0), ArithmeticFailure);
}

} // namespace
} // namespace velorix
