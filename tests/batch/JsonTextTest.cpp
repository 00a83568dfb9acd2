// Numbers and objects as JSON text.
#include "batch/JsonText.h"

#include <gtest/gtest.h>
#include <limits>

namespace velorix {
namespace {

TEST(JsonTextTest, NumbersAreTheShortestThatReadBack)
{
    const std::pair<double, const char*> Cases[] = {{0.1, "0.1"},
                                                    {0.016, "0.016"},
                                                    {16777216.0, "16777216"},
                                                    {0.3048, "0.3048"},
                                                    {1e15, "1E+15"},
                                                    {2.5e-7, "2.5E-07"},
                                                    {1e-45, "1E-45"},
                                                    {3.4028234663852886e38, "3.4028235E+38"}};
    for (const auto& [Value, Text] : Cases) {
        EXPECT_EQ(JsonNumber(Value), Text);
        EXPECT_EQ(JsonNumber(-Value), "-" + std::string(Text));
    }
}

TEST(JsonTextTest, ZeroKeepsItsSign)
{
    EXPECT_EQ(JsonNumber(0.0), "0");
    EXPECT_EQ(JsonNumber(-0.0), "-0.0");
}

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
