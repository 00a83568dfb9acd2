// The window system that answers from a list.
#include "platform/ScriptedPlatform.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace velorix {
namespace {

TEST(ScriptedPlatformTest, QuestionsTakeTheScriptInOrderAndThenTheLastButton)
{
    EXPECT_THROW(Warn("nobody hears this"), std::logic_error); // no window system is installed yet
    ScriptedPlatform Scripted;
    InstallPlatform(&Scripted);
    Scripted.Answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(Confirm("Save?"));
    Warn("A note has nothing to decide", "Error !");
    EXPECT_TRUE(Confirm("Save?"));
    EXPECT_FALSE(Confirm("Save?"));
    EXPECT_EQ(Scripted.Show({.Text = "Again?", .Buttons = MessageButtons::RetryCancel}), Answer::Cancel);
    InstallPlatform(nullptr);

    EXPECT_EQ(Scripted.Messages.at(0).Title, "Velorix");
    EXPECT_EQ(Scripted.Messages.at(0).Icon, MessageIcon::Question);
    EXPECT_EQ(Scripted.Messages.at(1).Title, "Error !");
    EXPECT_EQ(Scripted.Messages.at(1).Icon, MessageIcon::Exclamation);
}

struct DialogScreen : Screen {
    DialogScreen()
        : Screen("frmDialog", "Dialog")
    {
        DesignEnds();
    }
};

TEST(ScriptedPlatformTest, AModalScreenIsClosedUnlessItsScriptHidesIt)
{
    ScriptedPlatform Scripted;
    DialogScreen Dialog;
    Timer Clock(100);
    Clock.Tick = [&] { Dialog.Visible = false; };
    Scripted.ModalScripts["frmDialog"] = [&] {
        EXPECT_TRUE(Dialog.Visible);
        Fire(Clock);
    };
    Scripted.ShowModal(Dialog); // the clock isn't running
    EXPECT_FALSE(Dialog.IsLoaded());
    Clock.Enabled = true;
    Scripted.ShowModal(Dialog);
    EXPECT_TRUE(Dialog.IsLoaded()); // what was typed can still be read
}

} // namespace
} // namespace velorix
