// Numbers and objects as JSON text.
#include "batch/JsonText.h"

#include <gtest/gtest.h>
#include <limits>

namespace velorix {
namespace {

TEST(JsonTextTest, NotFiniteIsNullUnlessNothingMayBeLost)
{
    constexpr float Infinity = std::numeric_limits<float>::infinity();
    const std::pair<float, const char*> Cases[] = {{Infinity, "\"Infinity\""},
                                                   {-Infinity, "\"-Infinity\""},
                                                   {std::numeric_limits<float>::quiet_NaN(), "\"NaN\""}};
    for (const auto& [Value, Word] : Cases) {
        EXPECT_EQ(JsonNumber(Value), "null");
        EXPECT_EQ(JsonNumber(Value, NotFinite::Text), Word);
    }
}

TEST(JsonTextTest, ObjectKeepsTheOrderOfItsMembers)
{
    JsonObject Object;
    Object.Add("second", JsonList({}));
    Object.Add("first", JsonList({"1", JsonString("a \"quoted\" ³")}));
    EXPECT_EQ(Object.Text(), "{\n  \"second\": [],\n  \"first\": [1, \"a \\\"quoted\\\" ³\"]\n}");
}

} // namespace
} // namespace velorix
