// Bounds of the checked arrays.
#include "base/Arrays.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ThrowsMessage;

TEST(ArraysTest, AnIndexBeyondABoundFailsAndSaysWhich)
{
    Array1<int, 3> Rows;
    Rows[1] = 10;
    Rows[3] = 30;
    EXPECT_THAT(Rows, ElementsAre(10, 0, 30));
    EXPECT_THAT([&] { Rows[0] = 1; }, ThrowsMessage<SubscriptFailure>("subscript 0 is outside 1 to 3"));
    EXPECT_THROW(Rows[4] = 1, SubscriptFailure);

    Array0<int, 3> Hours;
    EXPECT_NO_THROW(Hours[0] = 1);
    EXPECT_THROW(Hours[3] = 1, SubscriptFailure);
    EXPECT_THROW(Hours[-1] = 1, SubscriptFailure);
}

TEST(ArraysTest, YearTableKeepsRowAndYearApart)
{
    YearTable<int, 0, 4, 2> Heads;
    Heads(4, 1) = 41;
    Heads(1, 2) = 12;
    EXPECT_THAT(Heads.Year(1), ElementsAre(0, 0, 0, 0, 41));
    EXPECT_EQ(Heads.Year(2).Data()[1], 12);
    EXPECT_THROW(Heads(5, 1), SubscriptFailure);
    EXPECT_THROW(Heads(1, 3), SubscriptFailure);
    EXPECT_THROW(Heads(1, 0), SubscriptFailure);

    Heads.Fill(7);
    EXPECT_THAT(Heads.Year(2), Each(7));
}

} // namespace
} // namespace velorix
