// The screens of the tools under a user's hands: roughness from measurements, unit converter.
#include "InputTest.h"
#include "model/SampleRecords.h"
#include "results/PlotState.h"
#include "roughness/RoughnessStores.h"
#include "screens/ConverterScreen.h"
#include "screens/RoughnessScreen.h"

#include <filesystem>
#include <unistd.h>

namespace velorix {
namespace {

// A gravity main of 10 rows and 6 km, on the profile view.
class RoughnessScreenTest : public InputTest {
protected:
    RoughnessScreenTest()
    {
        ProjectFields Record = GravityRecord();
        SetText(Record.Designer, "A. Designer");
        Open(Record);
        Windows.Files = {File};
        frmLCC.sscViewProfile.Click();
        MDIProject.mnuRoughness.Click();
    }
    ~RoughnessScreenTest() override { std::filesystem::remove(File); }

    // Length from the list, elevation and pressure typed.
    void Enter(int Point, int Row, const std::u32string& Elevation, const std::u32string& Pressure)
    {
        Go(Table, 1, Point);
        frmRoughness.comAccLength.ListIndex = Row - 1;
        Go(Table, 2, Point);
        Type(Elevation + U"↓" + Pressure + U"⏎");
    }

    std::string Column(const Grid& Shown, int Col) const
    {
        std::string Texts;
        for (int Row = 1; Row < Shown.Rows(); ++Row) Texts += Shown.Text(Row, Col) + "; ";
        return Texts;
    }

    void MoveTo(int Scenario) { frmRoughness.hscScenario.Value = Scenario; }

    const std::filesystem::path File =
        std::filesystem::temp_directory_path() / ("velorix-roughness-" + std::to_string(::getpid()) + ".vlx");
    Grid& Table = frmRoughness.msgRoughness;
    Grid& Results = frmRoughness.msgRoughnessResults;
};

TEST_F(RoughnessScreenTest, WhatIsMeasuredGivesTheRoughnessBetweenThePoints)
{
    ASSERT_TRUE(frmRoughness.Visible && !frmView.Visible);
    EXPECT_TRUE(frmRoughness.comAccLength.Visible); // over the first length
    EXPECT_EQ(frmRoughness.comAccLength.List.Get().size(), 10U);
    EXPECT_EQ(frmRoughness.comAccLength.ListIndex, 0);
    EXPECT_EQ(Column(Table, 1) + Results.Text(3, 0), "; ; ; Karman-Prandtl (ks in mm)");
    frmRoughness.comAccLength.Click(); // the entry that is chosen already
    EXPECT_EQ(Table.Text(1, 1), "0.000");
    Enter(1, 1, U"150", U"10");
    Enter(2, 4, U"131-.6", U"25");
    EXPECT_EQ(Column(Table, 2), "2000.000; 131.6; 25; "); // no sign can be typed
    frmRoughness.txtFlowrate.Text = "90";
    frmRoughness.comFlowrateUnits.ListIndex = 3;  // l/s
    frmRoughness.comPressureUnits.ListIndex = 15; // metres of water
    frmRoughness.sscCalculate.Click();
    // By hand: 3.4 m over 2 km, and 0.09 m3/s by half of the area of 388 mm.
    EXPECT_NEAR(HeadDifference[1][1], 3.4, 1e-4);
    EXPECT_EQ(Results.Text(3, 0) + Results.Text(5, 1) + "; " + Results.Text(6, 1) + "; ",
              "Karman Prandtl (ks in mm)388.00; 0.381; ");
    EXPECT_EQ(Results.Text(7, 1).substr(0, 5), "12953");
    EXPECT_EQ(Column(Results, 2), "; ; ; ; ; ; ; ");
    MDIProject.mnuRoughness.Click(); // which shows the screen that stands
    EXPECT_EQ(Results.Text(5, 1), "388.00");

    MoveTo(2);
    EXPECT_EQ(frmRoughness.lblScenario.Caption.Get() + frmRoughness.fraScenario.Caption.Get() +
                  frmRoughness.fraResults.Caption.Get(),
              "Scenario 2Measuring data (for scenario 2)Results (for scenario 2)");
    EXPECT_EQ(Column(Table, 2) + frmRoughness.txtFlowrate.Text.Get(), "; ; ; 0");
    MoveTo(0);
    EXPECT_EQ(CurrentScenario, 1);
    EXPECT_EQ(Column(Table, 2) + Column(Results, 1), "2000; 131.6; 25; ; ; ; ; ; ; ; ");
    EXPECT_EQ(frmRoughness.comPressureUnits.ListIndex, 15);
    MoveTo(9);
    EXPECT_EQ(CurrentScenario, 8);
}

// The screen goes, the stores stay, and a screen without entries takes nothing from them.
TEST_F(RoughnessScreenTest, AScenarioKeepsItsEntriesWhileAnotherIsOnTheScreen)
{
    const char* const Entered = "0; 0; 55; ";
    Go(Table, 3, 2);
    Type(U"55⏎");
    for (const char* Reopened : {Entered, "; ; ; "}) {
        MoveTo(2);
        MoveTo(1);
        EXPECT_EQ(Column(Table, 2) + Column(Table, 3), std::string(Entered) + "; ; ; ");
        EXPECT_EQ(frmRoughness.comFlowrateUnits.ListIndex, 2);
        frmRoughness.sscPrevious.Click();
        EXPECT_TRUE(frmView.Visible && !frmRoughness.IsLoaded()) << Reopened;
        MDIProject.mnuRoughness.Click();
        EXPECT_EQ(Column(Table, 2), "; ; ; ");
    }
}

TEST_F(RoughnessScreenTest, WhatWasTypedOutlivesTheCommandsOfTheMenu)
{
    frmRoughness.txtFlowrate.Text = "90";
    Go(Table, 3, 2);
    Type(U"55⏎");
    Results.SetText(1, 1, "1.000"); // of what may be another pipe when the screen is back
    Windows.ModalScripts["frmConverter"] = [] { frmConverter.sscExit.Click(); };
    for (MenuItem* Command : {&MDIProject.mnuGeneral, &MDIProject.mnuSave, &MDIProject.mnuConvert}) {
        Command->Click();
        EXPECT_TRUE(frmLCC.Visible && !frmRoughness.Visible) << Command->Caption.Get();
        frmLCC.sscViewProfile.Click();
        MDIProject.mnuRoughness.Click();
        EXPECT_EQ(Table.Text(3, 2) + frmRoughness.txtFlowrate.Text.Get(), "5590") << Command->Caption.Get();
        EXPECT_EQ(Results.Text(1, 1), "");
    }
    frmRoughness.sscPrevious.Click(); // the texts go, what they said stays
    EXPECT_EQ(Readings[1][AtPressure][2], 55.0);
    EXPECT_EQ(ScenarioFlow[1][TheFlow], 90.0);
}

// The empty screen that stands before a scenario with readings: only what is touched goes into it.
TEST_F(RoughnessScreenTest, AReopenedScreenReplacesNothingButWhatIsEnteredOnIt)
{
    MoveTo(3);
    Enter(1, 1, U"150", U"10");
    Enter(2, 4, U"131.6", U"25");
    frmRoughness.txtFlowrate.Text = "90";
    frmRoughness.comFlowrateUnits.ListIndex = 3;
    frmRoughness.comPressureUnits.ListIndex = 15;
    const std::function<void()> Touches[] = {[] { frmRoughness.comPressureUnits.ListIndex = 5; },
                                             [&] {
                                                 Go(Table, 2, 2);
                                                 Type(U"130⏎");
                                             },
                                             [] { frmRoughness.txtFlowrate.Text = "0.08"; }};
    const char* const Stored[] = {"2000131.62590; 3; 5", "20001302590; 3; 5",
                                  "2000130250.08; 2; 5"}; // a flow with the unit beside it
    for (std::size_t Touched = 0; Touched < std::size(Touches); ++Touched) {
        frmRoughness.sscPrevious.Click();
        MDIProject.mnuRoughness.Click();
        EXPECT_EQ(Column(Table, 2), "; ; ; ");
        Touches[Touched]();
        MoveTo(2);
        MoveTo(3);
        EXPECT_EQ(Table.Text(1, 2) + Table.Text(2, 2) + Table.Text(3, 2) +
                      frmRoughness.txtFlowrate.Text.Get() + "; " +
                      std::to_string(frmRoughness.comFlowrateUnits.ListIndex) + "; " +
                      std::to_string(frmRoughness.comPressureUnits.ListIndex),
                  Stored[Touched]);
    }
}

TEST_F(RoughnessScreenTest, TheGraphShowsTheMeasuredStretchesOverTheProfile)
{
    MoveTo(3);
    Enter(1, 1, U"150", U"10");
    Enter(2, 4, U"131.6", U"25");
    Enter(3, 7, U"113.3", U"30");
    frmRoughness.sscCalculate.Click();
    PlotYear = 4;
    frmRoughness.sscViewGraph.Click();
    EXPECT_TRUE(frmViewRoughness.Visible && !frmRoughness.Visible);
    EXPECT_EQ(frmViewRoughness.lblYear.Caption.Get(), std::to_string(wSupplyStart + 3));
    const auto Drawn = [](int LastNode, bool Ticked) {
        frmViewRoughness.comEnd.ListIndex = LastNode - 1;
        frmViewRoughness.chkScenario[2].Value = Ticked;
        frmViewRoughness.sscView.Click();
        const Color Ink = frmViewRoughness.linScenario[2].BackColor;
        std::string Kinds;
        for (const DisplayItem& Each : frmViewRoughness.picGraph.Image().Items) {
            const auto* const Line = std::get_if<LineItem>(&Each);
            const auto* const Circle = std::get_if<CircleItem>(&Each);
            if ((Line && Line->Ink == Ink) || (Circle && Circle->Ink == Ink)) Kinds += Line ? '-' : 'o';
        }
        return Kinds;
    };
    EXPECT_EQ(Drawn(10, true), "---o---o");
    EXPECT_EQ(Drawn(4, true), "---o");
    EXPECT_EQ(Drawn(4, false), "");
    frmViewRoughness.hscYears.Value = 6;
    frmViewRoughness.chkHydraulic.Value = false;
    frmViewRoughness.sscOK.Click();
    EXPECT_TRUE(frmRoughness.Visible);
    EXPECT_NE(Results.Text(1, 1), ""); // hidden, not unloaded
    frmRoughness.sscViewGraph.Click();
    MDIProject.mnuRoughness.Click();
    EXPECT_TRUE(frmRoughness.Visible && !frmViewRoughness.IsLoaded());
    frmRoughness.sscPrevious.Click(); // the profile view follows the gradeline, in its picture too
    EXPECT_EQ(frmView.lblYear.Caption.Get(), std::to_string(wSupplyStart + 5));
    EXPECT_TRUE(frmView.hscYears.Value == 6 && ProfileYearDrawn == 6 && !frmView.chkHydraulic.Value);
    frmView.hscYears.Value = 8;
    MDIProject.mnuRoughness.Click();
    frmRoughness.sscPrevious.Click();
    EXPECT_TRUE(frmView.hscYears.Value == 8 && ProfileYearDrawn == 6); // until the view is asked for
    MDIProject.mnuGeneral.Click();
    EXPECT_FALSE(frmRoughness.Visible || frmView.IsLoaded() || MDIProject.mnuRoughness.Visible);
    EXPECT_EQ(Readings[3][AtPressure][3], 30.0);
}

using ConverterScreenTest = InputTest;

TEST_F(ConverterScreenTest, AResultStandsUntilAnythingIsTouched)
{
    const auto Result = [] { return frmConverter.lblConvert.Caption.Get(); };
    const auto Convert = [](const std::string& Number) {
        frmConverter.lstUnit.ListIndex = 2;
        frmConverter.comUnit[0].ListIndex = 2;
        frmConverter.comUnit[1].ListIndex = 4;
        frmConverter.txtConvert.Text = Number;
        frmConverter.sscConvert.Click();
    };
    const std::function<void()> Touches[] = {[&] { Type(U"5"); },
                                             [&] { Type(U"-"); }, // a key that is dropped
                                             [] { frmConverter.comUnit[0].ListIndex = 3; },
                                             [] { frmConverter.comUnit[1].Click(); }, // the same entry
                                             [] { frmConverter.lstUnit.Click(); },
                                             [] { frmConverter.lstUnit.ListIndex = 5; }};
    Windows.ModalScripts["frmConverter"] = [&] {
        EXPECT_FALSE(frmLCC.Visible);
        EXPECT_EQ(frmConverter.lstUnit.Text() + frmConverter.txtConvert.Text.Get() + Result(), "Area=");
        Windows.SetFocus(frmConverter.txtConvert);
        for (const auto& Touch : Touches) {
            Convert("1");
            EXPECT_EQ(Result(), "= 4.86854917234664");
            Touch();
            EXPECT_EQ(Result(), "=") << &Touch - Touches;
        }
        EXPECT_EQ(frmConverter.comUnit[0].Text() + frmConverter.comUnit[1].Text(),
                  "cubic meter (m³)cubic meter (m³)");
        frmConverter.txtConvert.Text = "12.5\r\n"; // a cell of a table
        frmConverter.txtConvert.Inserted("12.5\r\n");
        EXPECT_EQ(frmConverter.txtConvert.Text.Get(), "12.5");
        frmConverter.txtConvert.Text = "2..";
        frmConverter.lblConvert.Caption = "= 7";
        frmConverter.sscConvert.Click();
        EXPECT_EQ(LastMessage(),
                  "There was an error converting the value.  Please ensure it is a valid number");
        EXPECT_EQ(Result(), "= 7");
        frmConverter.sscExit.Click();
        EXPECT_TRUE(frmLCC.Visible);
    };
    for (int Opened = 0; Opened < 2; ++Opened) MDIProject.mnuConvert.Click();
    EXPECT_EQ(Windows.ModalScreens.size(), 2U);
}

} // namespace
} // namespace velorix
