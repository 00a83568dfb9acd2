// Commands of the main window: guards, messages, and which screen stands afterwards.
#include "shell/MainCommands.h"

#include "ShellTest.h"
#include "input/ProfileTable.h"
#include "platform/DrawingSurface.h"
#include "platform/Platform.h"
#include "screens/ConverterScreen.h"
#include "screens/ImportWizard.h"
#include "screens/Print.h"
#include "screens/RoughnessScreen.h"
#include "screens/Viewers.h"

#include <map>
#include <set>
#include <sstream>

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
    frmLCC.Visible = false;
    MDIProject.mnuResults.Click(); // not analysed
    EXPECT_TRUE(frmLCC.Visible);
    Analysed = 1;
    frmPumpView.LoadHidden();
    frmPumpView.Visible = true; // would stay in front
    MDIProject.mnuResults.Click();
    EXPECT_FALSE(frmPumpView.Visible);
    EXPECT_TRUE(frmResults.Visible);
    EXPECT_FALSE(frmLCC.Visible);
    MDIProject.mnuGeneral.Click();
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_TRUE(frmLCC.Visible);
}

// What a user could tell from before the press.
std::string Footprint(const ScriptedPlatform& Windows)
{
    std::ostringstream Seen;
    Seen << Windows.Messages.size() << " " << Windows.ModalScreens.size() << " " << Windows.FileDialogs.size()
         << " " << Windows.PrintDialogs.size() << " " << Windows.HelpTopics.size() << " " << Windows.Focused
         << " " << Saved << " " << frmLCC.msgProfile.Rows() << "\n";
    for (const Screen* Each : AllScreens()) {
        Seen << Each->Visible << Each->IsLoaded();
        for (const Control* Member : Each->Controls) {
            Seen << Member->Visible << Member->Enabled;
            if (const auto* Surface = dynamic_cast<const DrawingSurface*>(Member))
                Seen << Surface->Image().Items.size();
            if (const auto* Table = dynamic_cast<const Grid*>(Member))
                for (int Row = 0; Row < Table->Rows(); ++Row) Seen << Table->Text(Row, 0);
        }
    }
    return Seen.str();
}

// Every button, menu entry and option of the input screen does something, be it with the panes open or shut.
// Headings of menus don't.
TEST_F(MainCommandsTest, WhateverCanBePressedDoesSomething)
{
    const std::set<const Control*> Idle = {
        &MDIProject.mnuFile,       &MDIProject.munImportExport, &MDIProject.mnuExport,    &MDIProject.mnuView,
        &MDIProject.mnuHelp,       &MDIProject.mnuFGridRows,    &frmResults.sscDutypoint, &frmResults.sscView,
        &frmResults.sscChangeView, // these three need an analysis
        &frmImport.sscPrevious,    // hidden on the first step
        &frmRoughness.sscPrint};
    const auto Presses = [this](Screen& Owner, const Control& Pressed, const Handler& Click, bool Panes) {
        ResetProgram();
        StartSession();
        AddProfileRow();
        Owner.LoadHidden();
        Owner.Visible = true;
        if (&Owner == &MDIProject) frmLCC.Visible = false;
        for (Control* Member : Owner.Controls)
            if (auto* Pane = dynamic_cast<Frame*>(Member); Pane && &Owner == &frmResults)
                Pane->Visible = Panes;
        frmLCC.fraPumpDetails.Visible = frmLCC.fraLaying.Visible = Panes;
        Saved = 1;
        if (!Pressed.Enabled) return true; // by its screen's design
        const std::string Before = Footprint(Windows);
        Click();
        return Footprint(Windows) != Before;
    };
    for (Screen* Owner : AllScreens())
        for (Control* Each : Owner->Controls) {
            const auto Try = [&](auto* Pressed) {
                if (!Pressed || Idle.count(Each)) return;
                EXPECT_TRUE(Presses(*Owner, *Each, Pressed->Click, false) ||
                            Presses(*Owner, *Each, Pressed->Click, true))
                    << Owner->Name << ": " << Pressed->Caption.Get() << Each->ToolTip;
            };
            Try(dynamic_cast<CommandButton*>(Each));
            Try(dynamic_cast<MenuItem*>(Each));
            if (Owner == &frmLCC) Try(dynamic_cast<OptionButton*>(Each));
        }
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
    for (; MDIProject.tmrWelcome.Enabled && Ticks < 1000; ++Ticks) Fire(MDIProject.tmrWelcome);
    EXPECT_EQ(Ticks, 82);
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
