// Opening dialogs, preferences and notices.
#include "ShellTest.h"

namespace velorix {
namespace {

using DialogsTest = ShellTest;

TEST_F(DialogsTest, TheOpeningCountsOnAdvisesOnOtherScreenSizesAndEndsInANewProject)
{
    std::vector<std::size_t> Counts;
    Windows.ModalScripts["frmIntro"] = [&] {
        for (int Tick = 0; Tick < 11; ++Tick) {
            Counts.push_back(frmIntro.lblCounter.Caption.Get().size());
            Fire(frmIntro.tmrWelcome);
        }
        Fire(frmIntro.tmrIntro);
    };
    StartProgram();
    EXPECT_EQ(Counts, (std::vector<std::size_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 1}));
    EXPECT_FALSE(frmIntro.tmrWelcome.Enabled);
    EXPECT_FALSE(frmIntro.IsLoaded() || frmAgree.IsLoaded());
    EXPECT_TRUE(MDIProject.Visible && !MDIProject.mnuRoughness.Visible);
    EXPECT_EQ(Shown(), std::set<std::string>{"frmLCC"});
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Open a project or start a new project");
    EXPECT_TRUE(Windows.Messages.empty());

    Windows.Pixels = {1280, 800};
    StartProgram();
    EXPECT_EQ(LastMessage(), "The recommended screen size is 800 x 600 !");
    EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Information);
}

TEST_F(DialogsTest, RefusedAgreementEndsTheProgram)
{
    Windows.ModalScripts["frmAgree"] = [] { frmAgree.sscCancel.Click(); };
    EXPECT_FALSE(StartProgram());
    EXPECT_TRUE(Windows.Ended);
    EXPECT_EQ(Windows.ModalScreens, std::vector<std::string>{"frmAgree"}); // no intro
}

TEST_F(DialogsTest, PreferencesAreTakenOnOKOnly)
{
    wPG = 12.34;
    wContingencies = 12.125; // the bar counts hundredths of a percent, halves to the even one
    for (const bool Taken : {false, true}) {
        Windows.ModalScripts["frmPref"] = [Taken] {
            EXPECT_FALSE(frmLCC.Visible);
            EXPECT_EQ(frmPref.hsbPG.Value, 1234);
            EXPECT_EQ(frmPref.lblPG.Caption.Get(), "12.34%");
            EXPECT_EQ(frmPref.hsbContingencies.Value, 1212);
            EXPECT_TRUE(frmPref.optMetric.Value);
            frmPref.optUS.Value = true;
            frmPref.optDollars.Value = true;
            frmPref.hsbContingencies.Value = 755;
            EXPECT_EQ(frmPref.lblContingencies.Caption.Get(), "7.55%");
            Taken ? frmPref.sscOK.Click() : frmPref.CloseByFrame();
        };
        MDIProject.mnuPreferences.Click();
        EXPECT_EQ(wUnits + wCurrency, Taken ? 2 : 0);
        EXPECT_EQ(wContingencies, Single(Taken ? 7.55 : 12.125));
        EXPECT_TRUE(frmLCC.Visible);
    }
    EXPECT_EQ(wPG, Single(12.34));
    EXPECT_EQ(frmLCC.lblUnit[5].Caption.Get(), "$");
    EXPECT_EQ(frmLCC.msgLaying.Text(0, 1), "Cost ($/ft³)");
}

// The results don't come back; the currency signs are new a moment later.
TEST_F(DialogsTest, DialogsOverTheResultsBringBackTheInput)
{
    const std::pair<MenuItem*, Screen*> Cases[] = {{&MDIProject.mnuPreferences, &frmPref},
                                                   {&MDIProject.mnuAbout, &frmAbout},
                                                   {&MDIProject.mnuDisclaimer, &frmDisclaimer}};
    for (const auto& [Item, Dialog] : Cases) {
        frmLCC.Visible = false;
        frmResults.Visible = true;
        wCurrency = 0;
        MDIProject.tmrCurrency.Tick();
        Windows.ModalScripts[Dialog->Name] = [Shown = Dialog] {
            EXPECT_FALSE(frmResults.Visible);
            wCurrency = 1;
            Shown->CloseByFrame();
        };
        Item->Click();
        EXPECT_EQ(Shown(), std::set<std::string>{"frmLCC"}) << Dialog->Name;
        EXPECT_EQ(frmLCC.lblCurrency[0].Caption.Get(), "R");
        Fire(MDIProject.tmrCurrency);
        EXPECT_EQ(frmLCC.lblCurrency[0].Caption.Get(), "$") << Dialog->Name;
        EXPECT_FALSE(MDIProject.tmrCurrency.Enabled);
    }
}

TEST_F(DialogsTest, AboutTellsTheVersionAndTheSystem)
{
    Windows.ModalScripts["frmAbout"] = [] {
        EXPECT_EQ(frmAbout.lblVersion.Caption.Get().substr(0, 9), "Version: ");
        frmAbout.sscSystemInfo.Click();
        frmAbout.sscOK.Click();
    };
    MDIProject.mnuAbout.Click();
    EXPECT_EQ(LastMessage(), "System Information Is Unavailable At This Time");
    EXPECT_TRUE(frmLCC.Visible);
}

} // namespace
} // namespace velorix
