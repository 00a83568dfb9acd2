// Date texts.
#include "base/Date.h"

#include <gtest/gtest.h>

namespace velorix {
namespace {

TEST(DateTest, ReadsWhatItWritesAndNothingElse)
{
    EXPECT_EQ(LongDate({1999, 12, 31}), "31 December 1999");
    EXPECT_EQ(ShortDate({2005, 3, 3}), "2005-03-03");
    EXPECT_EQ(ParseDate("2000-02-29"), (Date{2000, 2, 29}));
    EXPECT_EQ(ParseDate(" 2005/3/31 "), (Date{2005, 3, 31}));
    for (const char* Text : {"", "2005", "2005-03-", "2005-13-01", "2005-00-10", "2005-02-29", "2005--3-3",
                             "2005-03-03x", "03.03.2005", "20050-01-01", "2005-01-257"})
        EXPECT_EQ(ParseDate(Text), std::nullopt) << Text;
}

} // namespace
} // namespace velorix
