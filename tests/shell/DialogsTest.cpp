// Opening dialogs, preferences and notices.
#include "ShellTest.h"

namespace velorix {
namespace {

using DialogsTest = ShellTest;

TEST_F(DialogsTest, StartPutsANewProjectOnTheScreen)
{
    EXPECT_TRUE(MDIProject.Visible);
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_FALSE(frmIntro.IsLoaded());
    EXPECT_FALSE(frmAgree.IsLoaded());
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Open a project or start a new project");
    EXPECT_FALSE(MDIProject.mnuRoughness.Visible);
}

TEST_F(DialogsTest, TheIntroCountsFromOneToTenAndRound)
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
}

TEST_F(DialogsTest, RefusedAgreementEndsTheProgram)
{
    Windows.ModalScripts["frmAgree"] = [] { frmAgree.sscCancel.Click(); };
    EXPECT_FALSE(StartProgram());
    EXPECT_TRUE(Windows.Ended);
    EXPECT_EQ(Windows.ModalScreens, std::vector<std::string>{"frmAgree"}); // no intro
}

TEST_F(DialogsTest, OtherScreenSizesGetAdvice)
{
    StartProgram();
    EXPECT_TRUE(Windows.Messages.empty());
    Windows.Pixels = {1280, 800};
    StartProgram();
    EXPECT_EQ(LastMessage(), "The recommended screen size is 800 x 600 !");
    EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Information);
}

TEST_F(DialogsTest, PreferencesGoToTheWorkingSet)
{
    wPG = 12.34;
    Windows.ModalScripts["frmPref"] = [] {
        EXPECT_FALSE(frmLCC.Visible);
        EXPECT_EQ(frmPref.hsbPG.Value, 1234);
        EXPECT_EQ(frmPref.lblPG.Caption.Get(), "12.34%");
        EXPECT_TRUE(frmPref.optMetric.Value);
        frmPref.optUS.Value = true;
        frmPref.optDollars.Value = true;
        frmPref.hsbContingencies.Value = 755;
        EXPECT_EQ(frmPref.lblContingencies.Caption.Get(), "7.55%");
        frmPref.sscOK.Click();
    };
    MDIProject.mnuPreferences.Click();
    EXPECT_EQ(wUnits, 1);
    EXPECT_EQ(wCurrency, 1);
    EXPECT_EQ(wPG, Single(12.34));
    EXPECT_EQ(wContingencies, Single(7.55));
    EXPECT_EQ(frmLCC.lblUnit[5].Caption.Get(), "$");
    EXPECT_EQ(frmLCC.msgLaying.Text(0, 1), "Cost ($/ft³)");
    EXPECT_TRUE(frmLCC.Visible);
}

// Hundredths of a percent, halves to the even one.
TEST_F(DialogsTest, AllowanceBarsRoundHalvesToEven)
{
    wPG = 12.125;
    Windows.ModalScripts["frmPref"] = [] { frmPref.sscOK.Click(); };
    MDIProject.mnuPreferences.Click();
    EXPECT_EQ(wPG, Single(12.12));
}

TEST_F(DialogsTest, CancelledPreferencesChangeNothing)
{
    Windows.ModalScripts["frmPref"] = [] {
        frmPref.optUS.Value = true;
        frmPref.hsbPG.Value = 0;
        frmPref.CloseByFrame();
    };
    MDIProject.mnuPreferences.Click();
    EXPECT_EQ(wUnits, 0);
    EXPECT_EQ(wPG, 10.0);
    EXPECT_TRUE(frmLCC.Visible);
}

TEST_F(DialogsTest, NoticesComeAndGo)
{
    Windows.ModalScripts["frmAbout"] = [] {
        EXPECT_EQ(frmAbout.lblVersion.Caption.Get().substr(0, 9), "Version: ");
        frmAbout.sscSystemInfo.Click();
        frmAbout.sscOK.Click();
    };
    MDIProject.mnuAbout.Click();
    EXPECT_EQ(LastMessage(), "System Information Is Unavailable At This Time");
    EXPECT_TRUE(frmLCC.Visible);

    Windows.ModalScripts["frmDisclaimer"] = [] {
        for (const Label& Line : frmDisclaimer.Lines) EXPECT_FALSE(Line.Caption.Get().empty());
        frmDisclaimer.sscOK.Click();
    };
    MDIProject.mnuDisclaimer.Click();
    EXPECT_TRUE(frmLCC.Visible);
}

} // namespace
} // namespace velorix
