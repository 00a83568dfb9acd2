// The window system that answers from a list.
#include "platform/ScriptedPlatform.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace velorix {
namespace {

using testing::ElementsAre;

struct DialogScreen : Screen {
    DialogScreen()
        : Screen("frmDialog", "Dialog")
    {
        DesignEnds();
    }
    TextBox Entry;
};

class ScriptedPlatformTest : public testing::Test {
protected:
    ScriptedPlatformTest() { InstallPlatform(&Scripted); }
    ~ScriptedPlatformTest() override { InstallPlatform(nullptr); }

    ScriptedPlatform Scripted;
};

TEST_F(ScriptedPlatformTest, QuestionsTakeTheScriptInOrderAndThenTheLastButton)
{
    Scripted.Answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(Confirm("Save?"));
    Warn("A note has nothing to decide", "Error !");
    EXPECT_TRUE(Confirm("Save?"));
    EXPECT_FALSE(Confirm("Save?"));
    EXPECT_EQ(Scripted.Show({.Text = "Again?", .Buttons = MessageButtons::RetryCancel}), Answer::Cancel);

    ASSERT_EQ(Scripted.Messages.size(), 5U);
    EXPECT_EQ(Scripted.Messages[0].Title, "Velorix");
    EXPECT_EQ(Scripted.Messages[0].Icon, MessageIcon::Question);
    EXPECT_EQ(Scripted.Messages[1].Title, "Error !");
    EXPECT_EQ(Scripted.Messages[1].Icon, MessageIcon::Exclamation);
}

TEST_F(ScriptedPlatformTest, BothFileDialogsTakeOneScript)
{
    Scripted.Files = {"a.vlx", std::nullopt, "b.vlx"};
    FileDialog Open;
    FileDialog Save;
    Save.Title = "Save";
    EXPECT_EQ(System().AskFileToOpen(Open), "a.vlx");
    EXPECT_EQ(System().AskFileToOpen(Open), std::nullopt);
    EXPECT_EQ(System().AskFileToSave(Save), "b.vlx");
    EXPECT_EQ(System().AskFileToSave(Save), std::nullopt);
    EXPECT_EQ(Scripted.FileDialogs.at(2).Title, "Save");
}

TEST_F(ScriptedPlatformTest, AModalScreenRunsItsScriptWhileItShows)
{
    DialogScreen Dialog;
    bool SeenVisible = false;
    Scripted.ModalScripts["frmDialog"] = [&] {
        SeenVisible = Dialog.Visible;
        Dialog.Entry.Text = "typed";
        Dialog.Visible = false; // hidden, not unloaded: what was typed can still be read
    };
    System().ShowModal(Dialog);
    EXPECT_TRUE(SeenVisible);
    EXPECT_TRUE(Dialog.IsLoaded());
    EXPECT_EQ(Dialog.Entry.Text.Get(), "typed");

    Scripted.ModalScripts.clear();
    System().ShowModal(Dialog); // closed at once by the user
    EXPECT_FALSE(Dialog.IsLoaded());
    EXPECT_THAT(Scripted.ModalScreens, ElementsAre("frmDialog", "frmDialog"));
}

TEST_F(ScriptedPlatformTest, ATimerTicksOnlyWhileItRuns)
{
    Timer Clock(100);
    int Ticks = 0;
    Clock.Tick = [&] {
        ++Ticks;
        Clock.Enabled = false;
    };
    Fire(Clock);
    EXPECT_EQ(Ticks, 0);
    Clock.Enabled = true;
    Fire(Clock);
    Fire(Clock);
    EXPECT_EQ(Ticks, 1);
}

TEST(PlatformTest, WithoutAWindowSystemNothingCanBeShown)
{
    EXPECT_THROW(Warn("nobody hears this"), std::logic_error);
}

} // namespace
} // namespace velorix
