// Commands of the main window: guards, messages, and which screen stands afterwards.
#include "shell/MainCommands.h"

#include "ShellTest.h"

namespace velorix {
namespace {

using MainCommandsTest = ShellTest;

TEST_F(MainCommandsTest, EveryCommandAsksForAProject)
{
    ProjectOpen = 0;
    const std::pair<MenuItem*, const char*> Cases[] = {
        {&MDIProject.mnuAnalyse, "First open an existing project or start a new project"},
        {&MDIProject.mnuSave, "First open an existing project or start a new project"},
        {&MDIProject.mnuSaveAs, "First open an existing project or start a new project"},
        {&MDIProject.mnuGeneral, "No project has been opened."},
        {&MDIProject.mnuDelete, "First open the project that you want to delete"},
        {&MDIProject.mnuPrint,
         "First open an existing project or start a new project and then print the data."},
        {&MDIProject.mnuImport,
         "First open an existing project or start a new project and then import the profile"}};
    for (const auto& [Item, Text] : Cases) {
        Item->Click();
        EXPECT_EQ(LastMessage(), Text);
        EXPECT_EQ(Windows.Messages.back().Title, "Velorix");
    }
    EXPECT_EQ(Windows.Messages.size(), std::size(Cases));
    EXPECT_TRUE(Windows.ModalScreens.empty());
}

TEST_F(MainCommandsTest, ResultsNeedAnAnalysis)
{
    MDIProject.mnuResults.Click();
    EXPECT_EQ(LastMessage(), "Project has not been analysed.");
    EXPECT_TRUE(frmLCC.Visible);

    Analysed = 1;
    MDIProject.mnuResults.Click();
    EXPECT_TRUE(frmResults.Visible);
    EXPECT_FALSE(frmLCC.Visible);
    MDIProject.mnuGeneral.Click();
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_TRUE(frmLCC.Visible);
}

TEST_F(MainCommandsTest, NewStartsTheKindThatIsChosen)
{
    Windows.ModalScripts["frmLCCType"] = [] {
        EXPECT_TRUE(frmLCCType.optGravity.Value);
        frmLCCType.optPumping.Value = true;
        frmLCCType.sscContinue.Click();
    };
    MDIProject.sscNew.Click();
    EXPECT_EQ(wSystemType, 1);
    EXPECT_TRUE(frmLCC.Visible);

    Windows.ModalScripts["frmLCCType"] = [] { frmLCCType.sscCancel.Click(); };
    MDIProject.mnuNew.Click();
    EXPECT_EQ(wSystemType, 1);
    EXPECT_FALSE(frmLCC.Visible);
    MDIProject.mnuGeneral.Click();
    EXPECT_TRUE(frmLCC.Visible);
}

// Every button that can be pressed does something.
TEST_F(MainCommandsTest, NoButtonIsLeftUnconnected)
{
    for (const Screen* Each :
         std::initializer_list<const Screen*>{&MDIProject, &frmLCC, &frmAnalyse, &frmLCCType, &frmPref,
                                              &frmDeleteRow, &frmAgree, &frmDisclaimer, &frmAbout})
        for (const Control* Control : Each->Controls) {
            const auto* Button = dynamic_cast<const CommandButton*>(Control);
            if (!Button || !Button->Enabled) continue;
            EXPECT_TRUE(Button->Click) << Each->Name << ": " << Button->Caption.Get() << Button->ToolTip;
        }
}

// A dialog over the results brings back the input screen, and the currency signs a moment later.
TEST_F(MainCommandsTest, DialogOverTheResultsRefreshesTheCurrency)
{
    frmLCC.Visible = false;
    frmResults.Visible = true;
    Windows.ModalScripts["frmPref"] = [] {
        EXPECT_EQ(ViewState, 2);
        wCurrency = 1;
        frmPref.sscCancel.Click();
    };
    MDIProject.mnuPreferences.Click();
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(frmLCC.lblCurrency[0].Caption.Get(), "R");
    Fire(MDIProject.tmrCurrency);
    EXPECT_EQ(frmLCC.lblCurrency[0].Caption.Get(), "$");
    EXPECT_FALSE(MDIProject.tmrCurrency.Enabled);
}

TEST_F(MainCommandsTest, ClosingTheAnalysisByItsFrameIsACancel)
{
    Windows.ModalScripts["frmAnalyse"] = [] {
        Fire(frmAnalyse.tmrStopMatrix);
        frmAnalyse.CloseByFrame();
    };
    MDIProject.mnuAnalyse.Click();
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_FALSE(frmAnalyse.IsLoaded());
}

TEST_F(MainCommandsTest, WelcomeLineRunsOutAfterItsTicks)
{
    Fire(MDIProject.tmrWelcome);
    Fire(MDIProject.tmrWelcome);
    EXPECT_EQ(MDIProject.Caption.Get(), "We");
    int Ticks = 2;
    while (MDIProject.tmrWelcome.Enabled && Ticks < 1000) {
        Fire(MDIProject.tmrWelcome);
        ++Ticks;
    }
    EXPECT_EQ(Ticks, 82);
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
}

TEST_F(MainCommandsTest, HelpAndHints)
{
    MDIProject.mnuContents.Click();
    MDIProject.mnuMethod.Click();
    frmLCC.sscHelp2.Click();
    EXPECT_EQ(Windows.HelpTopics, (std::vector<int>{1000, 7000, 3070}));
    MDIProject.sscSave.MouseMove();
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Save the project");
    MDIProject.sspProject.MouseMove();
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "");
}

} // namespace
} // namespace velorix
