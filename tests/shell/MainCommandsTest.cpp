// Commands of the main window: guards, messages, and which screen stands afterwards.
#include "shell/MainCommands.h"

#include "ShellTest.h"
#include "screens/ConverterScreen.h"
#include "screens/ImportWizard.h"
#include "screens/Print.h"
#include "screens/RoughnessScreen.h"
#include "screens/Viewers.h"

#include <map>
#include <set>

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
        {&MDIProject.mnuResults, "Project has not been analysed."},
        {&MDIProject.mnuDelete, "First open the project that you want to delete"},
        {&MDIProject.mnuPrint,
         "First open an existing project or start a new project and then print the data."},
        {&MDIProject.mnuImport,
         "First open an existing project or start a new project and then import the profile"}};
    for (const auto& [Item, Text] : Cases) {
        Item->Click();
        EXPECT_EQ(LastMessage(), Text);
        EXPECT_EQ(Windows.Messages.back().Title, "Velorix") << Text;
        EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Exclamation) << Text;
    }
    EXPECT_EQ(Windows.Messages.size(), std::size(Cases));
    EXPECT_TRUE(Windows.ModalScreens.empty());
}

TEST_F(MainCommandsTest, ResultsAndInputTakeTurns)
{
    const std::set<std::string> Input = {"frmLCC"};
    const std::set<std::string> Results = {"frmResults"};
    frmLCC.Visible = false;
    MDIProject.mnuResults.Click(); // not analysed
    EXPECT_EQ(Shown(), Input);
    Analysed = 1;
    frmPumpView.LoadHidden();
    frmPumpView.Visible = true; // would stay in front
    MDIProject.mnuResults.Click();
    EXPECT_EQ(Shown(), Results);
    MDIProject.mnuGeneral.Click();
    EXPECT_EQ(Shown(), Input);
    Windows.ModalScripts["frmAnalyse"] = [] { frmAnalyse.CloseByFrame(); };
    MDIProject.mnuAnalyse.Click();
    EXPECT_EQ(Shown(), Input);
    EXPECT_EQ(Analysed, 0);
}

// All but the headings of menus.
TEST_F(MainCommandsTest, WhateverCanBePressedIsAnswered)
{
    const std::set<const Control*> Idle = {&MDIProject.mnuFile,   &MDIProject.munImportExport,
                                           &MDIProject.mnuExport, &MDIProject.mnuView,
                                           &MDIProject.mnuHelp,   &MDIProject.mnuFGridRows};
    for (const Screen* Owner : AllScreens())
        for (const Control* Each : Owner->Controls) {
            const auto Examine = [&](const auto* Pressed) {
                if (!Pressed) return;
                EXPECT_NE(static_cast<bool>(Pressed->Click), Idle.count(Each) == 1)
                    << Owner->Name << ": " << Pressed->Caption.Get() << Each->ToolTip;
            };
            Examine(dynamic_cast<const CommandButton*>(Each));
            Examine(dynamic_cast<const MenuItem*>(Each));
            if (Owner == &frmLCC) Examine(dynamic_cast<const OptionButton*>(Each));
        }
}

TEST_F(MainCommandsTest, TheWelcomeLineRunsOutAndLeavesTheName)
{
    for (int Tick = 0; Tick < 2; ++Tick) Fire(MDIProject.tmrWelcome);
    EXPECT_EQ(MDIProject.Caption.Get(), "We");
    for (int Tick = 2; Tick < 81; ++Tick) Fire(MDIProject.tmrWelcome);
    EXPECT_TRUE(MDIProject.tmrWelcome.Enabled);
    Fire(MDIProject.tmrWelcome);
    EXPECT_FALSE(MDIProject.tmrWelcome.Enabled);
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
}

// These are all: no screen has another button or entry for help.
TEST_F(MainCommandsTest, HelpOpensAtItsTopic)
{
    const std::map<const Control*, int> Topics = {
        {&MDIProject.mnuContents, 1000},   {&MDIProject.mnuHelpOn, 1000}, {&MDIProject.sscHelp, 1000},
        {&MDIProject.mnuMethod, 7000},     {&frmLCCType.sscHelp, 3000},   {&frmImport.sscHelp, 3030},
        {&frmLCC.sscHelp, 3050},           {&frmLCC.sscHelp1, 3060},      {&frmDeleteRow.sscHelp, 3060},
        {&frmRoughness.sscHelp, 3060},     {&frmLCC.sscHelp3, 3065},      {&frmLCC.sscHelp2, 3070},
        {&frmLCC.sscMechanical, 3090},     {&frmLCC.sscElectrical, 3100}, {&frmPref.sscHelp, 4000},
        {&frmPrint.sscHelp, 4500},         {&frmAnalyse.sscHelp, 5000},   {&frmView.sscHelp, 5000},
        {&frmViewRoughness.sscHelp, 5000}, {&frmPumpView.sscHelp, 5000},  {&frmIRRView.sscHelp, 5000},
        {&frmConverter.sscHelp, 8500}};
    std::size_t Pressed = 0;
    for (const Screen* Owner : AllScreens())
        for (Control* Each : Owner->Controls) {
            if (!Each->ToolTip.starts_with("Help")) continue;
            Windows.HelpTopics.clear();
            if (auto* Button = dynamic_cast<CommandButton*>(Each)) Button->Click();
            if (auto* Entry = dynamic_cast<MenuItem*>(Each)) Entry->Click();
            const auto Topic = Topics.find(Each);
            ASSERT_NE(Topic, Topics.end()) << Owner->Name;
            EXPECT_EQ(Windows.HelpTopics, std::vector<int>{Topic->second}) << Owner->Name;
            ++Pressed;
        }
    EXPECT_EQ(Pressed, Topics.size());
}

TEST_F(MainCommandsTest, HintsComeWithTheFocusAndOverButtons)
{
    const auto Hint = [] { return MDIProject.StatusText.Caption.Get(); };
    Windows.SetFocus(frmLCC.comHeadUnits);
    EXPECT_EQ(Hint(), "Select the pump head units");
    Windows.SetFocus(frmLCC.msgProfile);
    EXPECT_EQ(Hint(), "Enter the pipeline profile");
    frmLCC.sscViewProfile.MouseMove();
    EXPECT_EQ(Hint(), "Click to view the pipeline profile");
    frmLCC.Visible = false;
    EXPECT_EQ(Hint(), ""); // goes with its screen
    MDIProject.sscSave.MouseMove();
    EXPECT_EQ(Hint(), "Save the project");
    MDIProject.sspProject.MouseMove();
    EXPECT_EQ(Hint(), "");
}

} // namespace
} // namespace velorix
