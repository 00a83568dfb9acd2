// Bounds of the checked arrays.
#include "base/Arrays.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::ThrowsMessage;

TEST(ArraysTest, EntriesStandInOrderAndAnIndexBeyondABoundFailsAndSaysWhich)
{
    Array1<int, 3> Rows;
    Rows[1] = 10;
    Rows[3] = 30;
    EXPECT_THAT(Rows, ElementsAre(10, 0, 30));
    EXPECT_THAT([&] { Rows[0] = 1; }, ThrowsMessage<SubscriptFailure>("subscript 0 is outside 1 to 3"));
    EXPECT_THROW(Rows[4] = 1, SubscriptFailure);

    Array0<int, 3> Hours;
    EXPECT_THROW(Hours[3] = 1, SubscriptFailure);

    YearTable<int, 0, 4, 2> Heads;
    Heads.Fill(7);
    Heads(4, 1) = 41;
    EXPECT_THAT(Heads.Year(1), ElementsAre(7, 7, 7, 7, 41));
    EXPECT_THAT(Heads.Year(2), ElementsAre(7, 7, 7, 7, 7));
    EXPECT_THROW(Heads(5, 1), SubscriptFailure);
    EXPECT_THROW(Heads(1, 3), SubscriptFailure);
}

} // namespace
} // namespace velorix
