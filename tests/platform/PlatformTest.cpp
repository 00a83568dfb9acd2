// The boxes that any procedure may show.
#include "platform/ScriptedPlatform.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace velorix {
namespace {

TEST(PlatformTest, AQuestionIsMarkedAsOneAndANoteTakesNoAnswer)
{
    EXPECT_THROW(Warn("nobody hears this"), std::logic_error); // no window system is installed yet
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    Windows.Answers = {Answer::Yes};
    Warn("A note has nothing to decide");
    EXPECT_TRUE(Confirm("Save?"));
    EXPECT_FALSE(Confirm("Save?"));
    InstallPlatform(nullptr);
    EXPECT_EQ(Windows.Messages.at(0).Icon, MessageIcon::Exclamation);
    EXPECT_EQ(Windows.Messages.at(1).Icon, MessageIcon::Question);
}

} // namespace
} // namespace velorix
