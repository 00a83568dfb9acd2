// The stored number: where it rounds.
#include "base/Single.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

// 2^24 + 1 has no 32-bit form.
TEST(SingleTest, ComputesInDoubleAndRoundsAtEachStore)
{
    const Single Large = 16777216.0;
    const Single One = 1.0;
    EXPECT_EQ(Large + One - Large, 1.0); // in 32 bits the first sum would already lose the 1

    Single Sum = Large;
    Sum += One; // a tie, to even
    EXPECT_EQ(Sum, 16777216.0);
    Sum -= 0.5; // 16777215.5 lies between the neighbours 16777215 and 16777216
    EXPECT_EQ(Sum, 16777216.0);
    Sum += 1.00000001; // just above the tie: what is added isn't rounded by itself
    EXPECT_EQ(Sum, 16777218.0);

    Single Product = 1.0;
    Product /= 3.0;
    EXPECT_EQ(Product, 11184811.0 / 33554432.0); // 1/3 to 24 binary digits
    Product *= 3.0;                              // 1 + 2^-25, rounds to 1
    EXPECT_EQ(Product, 1.0);
}

} // namespace
} // namespace velorix
