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

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();

// Volatile, so that the compiler leaves the arithmetic to the processor.
volatile double Zero = 0.0;
volatile double One = 1.0;
volatile double Large = 1e300;

TEST(ArithmeticTest, EachKindOfFailureIsFoundAndNothingElse)
{
    EXPECT_THAT([] { Checked(One / Zero); }, ThrowsMessage<ArithmeticFailure>("division by zero"));
    EXPECT_THAT([] { Checked(std::log(Zero)); }, ThrowsMessage<ArithmeticFailure>("division by zero"));
    EXPECT_THAT([] { Checked(Zero / Zero); }, ThrowsMessage<ArithmeticFailure>("invalid operation"));
    EXPECT_THROW(Checked(std::pow(-One, 0.5)), ArithmeticFailure);
    EXPECT_THAT([] { Checked(Large * Large); }, ThrowsMessage<ArithmeticFailure>("overflow"));
    EXPECT_THROW(Checked(One * 3.5e38), ArithmeticFailure);       // too large once it is rounded to 32 bits
    EXPECT_THROW(Checked(One / (One / Zero)), ArithmeticFailure); // though the result is finite
    EXPECT_THROW(Ordered(Nan), ArithmeticFailure);
    EXPECT_EQ(Checked(One * 1e-60), 0.0); // underflow is none
}

TEST(ArithmeticTest, AFailureStandsUntilItIsCheckedAndLeavesTheTarget)
{
    Single Flow = 5.0;
    const volatile double Lost = One / Zero;
    EXPECT_TRUE(std::isinf(Lost) && ArithmeticFailed());
    EXPECT_THROW(Flow = Checked(One), ArithmeticFailure);
    EXPECT_EQ(Flow, 5.0);
    Flow = Checked(One / 2.0);
    EXPECT_EQ(Flow, 0.5);
}

// Others save and restore the flags by the library, which has those of every unit in mind.
TEST(ArithmeticTest, WhatIsClearedIsClearForTheLibraryToo)
{
    volatile long double Wide = 0;
    Wide = 1 / Wide;
    const volatile double Lost = One / Zero;
    EXPECT_TRUE(std::isinf(Lost) && ArithmeticFailed());
    ClearArithmeticFlags();
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
}

TEST(ArithmeticTest, HalvesRoundToTheEvenNeighbourAndAnIntegerMustHoldThem)
{
    EXPECT_EQ(RoundEven(-3.5), -4.0);
    EXPECT_EQ(RoundToInt16(14.5), 14);
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768); // the tie goes to the even -32768
    EXPECT_THAT([] { RoundToInt16(32767.5); }, ThrowsMessage<ArithmeticFailure>(HasSubstr("32767.5")));
    EXPECT_THROW(RoundToInt16(-32769.0), ArithmeticFailure);
    EXPECT_THROW(RoundToInt16(Nan), ArithmeticFailure);
    EXPECT_THROW(RoundToInt32(2147483648.0), ArithmeticFailure);
}

} // namespace
} // namespace velorix
