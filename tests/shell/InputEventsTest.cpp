// What the input screen's controls do when a user touches them.
#include "shell/InputEvents.h"

#include "InputTest.h"
#include "project/CostTables.h"
#include "project/ProfileTable.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::ElementsAre;

class InputEventsTest : public InputTest {
protected:
    // What is left of the keys once the box has filtered them.
    static std::string Taken(TextBox& Box, const std::string& Typed)
    {
        std::string Passed;
        for (const char Each : Typed) {
            int Key = Each;
            Box.KeyPress(Key);
            if (Key != 0) Passed += static_cast<char>(Key);
        }
        return Passed;
    }
};

TEST_F(InputEventsTest, EveryEditMarksTheProjectAndAnHourDoesNot)
{
    frmLCC.txtDesigner.Text = "M. Naidoo";
    ExpectMarked(true, "a text");
    frmLCC.txtEfficiency[5].Text = "70";
    ExpectMarked(true, "a text of a row of boxes");
    frmLCC.comKsOldUnits.ListIndex = 2;
    ExpectMarked(true, "a unit");
    frmLCC.dtpDate.Value = Date{2006, 7, 1};
    ExpectMarked(true, "the date");
    frmLCC.optGCalculatedFlowrate.Value = true;
    ExpectMarked(true, "an option");
    frmLCC.hscBaseYear.Value = 2010;
    ExpectMarked(true, "a bar");

    frmLCC.lblSummerHour[3].Click();
    ExpectMarked(false, "an hour");
    EXPECT_EQ(frmLCC.lblSummerHour[3].BackColor.Get(), PeakColor);
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Click to change applicable rate");
}

TEST_F(InputEventsTest, NumberBoxesTakeDigitsAndThePoint)
{
    const std::string Typed = "-1,2.e%(\x08\x0d\x1b";
    for (TextBox* Each :
         {&frmLCC.txtKsNew, &frmLCC.txtSupervision, &frmLCC.txtH[0], &frmLCC.txtEfficiency[5]})
        EXPECT_EQ(Taken(*Each, Typed), "12.\x08\x0d") << Each->ToolTip;
    EXPECT_EQ(Taken(frmLCC.txtGFlowrate, Typed), Typed);
    EXPECT_EQ(Taken(frmLCC.txtProject, Typed), Typed);
}

TEST_F(InputEventsTest, BarsShowAndStoreTheirValue)
{
    Start(1);
    frmLCC.hscLife.Value = 12;
    frmLCC.hscBaseYear.Value = 2011;
    frmLCC.hscSupplyStart.Value = 2012;
    frmLCC.fsbSummer.Value = 9;
    frmLCC.fsbPumpingHours.Value = 17;
    frmLCC.hscMPipeline.Value = 1250;
    frmLCC.hscMMechanical.Value = 5;
    frmLCC.hscMElectrical.Value = 300;
    EXPECT_THAT((std::vector<int>{wLife, wBaseYear, wSupplyStart, wSummer, wPumpingHours, wMPipeline,
                                  wMMechanical, wMElectrical}),
                ElementsAre(12, 2011, 2012, 9, 17, 1250, 5, 300));
    EXPECT_EQ(frmLCC.lblLife.Caption.Get(), "12");
    EXPECT_EQ(frmLCC.lblSupplyStart.Caption.Get(), "2012");
    EXPECT_EQ(frmLCC.lblPumpingHours.Caption.Get(), "17");
    EXPECT_EQ(frmLCC.lblMPipeline.Caption.Get(), "12.50%");
    EXPECT_EQ(frmLCC.lblMMechanical.Caption.Get(), "0.05%");
}

TEST_F(InputEventsTest, TheDemandTableFollowsTheLifeAndKeepsWhatIsTyped)
{
    frmLCC.hscLife.Value = 10;
    frmLCC.msgDemand.SetText(2, 1, "3.5"); // typed, and not committed yet
    wDemand[12] = 4.5;
    frmLCC.hscLife.Value = 15;
    frmLCC.hscSupplyStart.Value = 2030;
    EXPECT_EQ(frmLCC.msgDemand.Rows(), 16);
    EXPECT_EQ(frmLCC.msgDemand.Text(2, 1), "3.5");
    EXPECT_EQ(frmLCC.msgDemand.Text(12, 1), "4.5");
}

// The pumping table follows the life at the next load only, and the gravity table is another project's.
TEST_F(InputEventsTest, TheLifeOfAPumpingProjectLeavesItsDemand)
{
    Start(1);
    const int PumpRows = frmLCC.msgPumpDemand.Rows();
    wDemand[2] = 3.5;
    frmLCC.hscLife.Value = 15;
    EXPECT_EQ(wDemand[2], 3.5);
    EXPECT_EQ(frmLCC.msgPumpDemand.Rows(), PumpRows);
}

// The view shows what is stored, so it comes up only over a project that has been saved.
TEST_F(InputEventsTest, TheProfileIsSavedAheadOfItsView)
{
    int Views = 0;
    ShowProfile = [&Views] { ++Views; };
    const auto Press = [&] {
        Windows.Messages.clear();
        frmLCC.sscViewProfile.Click();
        return Views;
    };
    EXPECT_EQ(Press(), 0);
    ASSERT_EQ(Windows.Messages.size(), 2U);
    EXPECT_EQ(Windows.Messages[0].Text, "The project must first be saved before the profile can be viewed");
    EXPECT_EQ(Windows.Messages[1].Text, "Enter the project name !");

    frmLCC.txtProject.Text = "Ridge main";
    frmLCC.txtDesigner.Text = "M. Naidoo";
    EXPECT_EQ(Press(), 0) << "no file chosen";
    EXPECT_TRUE(frmLCC.Visible);

    Windows.Files = {std::filesystem::temp_directory_path() / "velorix-view-test.vlx"};
    std::filesystem::remove(*Windows.Files.front());
    EXPECT_EQ(Press(), 1);
    frmLCC.txtProject.Text = "Ridge main, phase 2";
    EXPECT_EQ(Press(), 2);
    EXPECT_EQ(wProject, "Ridge main, phase 2");
    frmLCC.txtTRWL.Text = "";
    EXPECT_EQ(Press(), 2) << "a check has failed";
    std::filesystem::remove(FileName);
    ShowProfile = {};
}

TEST_F(InputEventsTest, OptionsShowTheirFields)
{
    frmLCC.optGCalculatedFlowrate.Value = true;
    EXPECT_TRUE(frmLCC.msgDemand.Enabled);
    EXPECT_FALSE(frmLCC.txtGFlowrate.Enabled);
    frmLCC.optMortar.Value = true;
    EXPECT_TRUE(frmLCC.txtLiningThickness.Enabled);
    frmLCC.optCopon.Value = true;
    EXPECT_FALSE(frmLCC.txtLiningThickness.Enabled);

    Start(1);
    frmLCC.optPumpVarying.Value = true;
    EXPECT_TRUE(frmLCC.fraPumpVaryingDemand.Visible);
    frmLCC.optPumpDetails.Value = true;
    EXPECT_TRUE(frmLCC.fraPumpcurve.Visible);
    EXPECT_FALSE(frmLCC.fraPumpingFlowrate.Visible);
    frmLCC.sscPumpcurve.Click();
    EXPECT_TRUE(frmLCC.fraPumpDetails.Visible);
    frmLCC.sscOK.Click();
    EXPECT_FALSE(frmLCC.fraPumpDetails.Visible);
}

TEST_F(InputEventsTest, TheDiameterUnitIsStoredAtOnceAndRefillsTheProfile)
{
    Go(frmLCC.msgProfile, 1, 1);
    Type(U"88");
    frmLCC.comDiameterUnits.ListIndex = 3;
    ExpectMarked(true, "a unit");
    EXPECT_EQ(wDiameterUnits, 3);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 1), "88"); // what was typed isn't lost
    EXPECT_EQ(frmLCC.msgProfile.Tag, "88");
    EXPECT_FALSE(frmLCC.txtCell.Visible);
}

TEST_F(InputEventsTest, ThePumpDemandUnitReachesTheSelectorThatIsCommitted)
{
    Start(1);
    frmLCC.comPumpVaryingDemandUnits.ListIndex = 4;
    EXPECT_EQ(wDemandUnits, 4);
    EXPECT_EQ(frmLCC.comVaryingDemandUnits.ListIndex, 4);
}

TEST_F(InputEventsTest, AUnitBeyondItsListStaysInTheWorkingSet)
{
    Start(1);
    ProjectRecord.DemandUnits = 13;
    ProjectRecord.DiameterUnits = 7;
    for (int Row = 1; Row <= 4; ++Row)
        ProjectRecord.Elevation[Row] = ProjectRecord.AccLength[Row] = 10.0 * Row;
    NewProject = 1;
    LoadProject();
    EXPECT_EQ(NodeCount, 4); // and not the profile that the table showed before
    EXPECT_EQ(wElevation[4], 40.0);
    EXPECT_EQ(wDemandUnits, 13);
    EXPECT_EQ(wDiameterUnits, 7);
    EXPECT_EQ(frmLCC.comDiameterUnits.ListIndex, -1);
    EXPECT_EQ(Saved, 1);
}

TEST_F(InputEventsTest, HintsComeWithTheFocusAndOverButtons)
{
    const auto Hint = [] { return MDIProject.StatusText.Caption.Get(); };
    Windows.SetFocus(frmLCC.txtProject);
    EXPECT_EQ(Hint(), "Enter the project name");
    Windows.SetFocus(frmLCC.comHeadUnits);
    EXPECT_EQ(Hint(), "Select the pump head units");
    Windows.SetFocus(frmLCC.msgProfile);
    EXPECT_EQ(Hint(), "Enter the pipeline profile");
    frmLCC.sscViewProfile.MouseMove();
    EXPECT_EQ(Hint(), "Click to view the pipeline profile");
}

TEST_F(InputEventsTest, TheLayingTableIsReadOnSaveAndNotOnCancel)
{
    frmLCC.sscLaying.Click();
    EXPECT_TRUE(frmLCC.fraLaying.Visible);
    Go(frmLCC.msgLaying, 2, 1);
    Type(U"45");
    frmLCC.sscCancelLaying.Click();
    EXPECT_FALSE(frmLCC.fraLaying.Visible);
    EXPECT_FALSE(frmLCC.txtLaying.Visible);
    EXPECT_EQ(wLaying[2], 0.0);
    EXPECT_EQ(frmLCC.msgLaying.Text(2, 1), "45");
    frmLCC.sscLaying.Click();
    frmLCC.sscHideLaying.Click();
    EXPECT_FALSE(frmLCC.fraLaying.Visible);
    EXPECT_EQ(wLaying[2], 45.0);
}

class DeleteRowTest : public InputTest {
protected:
    DeleteRowTest()
    {
        for (int Row = 1; Row <= 3; ++Row) wElevation[Row] = 60.0 + Row;
        FillProfileGrid();
        frmLCC.msgProfile.Select(2, 4);
    }

    // Presses the dialog's button once it shows the row.
    void DeleteWith(CommandButton& Button)
    {
        Windows.ModalScripts["frmDeleteRow"] = [this, &Button] {
            Shown = {frmDeleteRow.lblDelete[0].Caption, frmDeleteRow.lblDelete[6].Caption};
            frmDeleteRow.sscHelp.Click();
            Button.Click();
            EXPECT_FALSE(frmDeleteRow.Visible);
        };
        frmLCC.sscDelete.Click();
    }

    std::vector<std::string> Shown;
};

TEST_F(DeleteRowTest, YesDeletesTheRowThatIsShown)
{
    DeleteWith(frmDeleteRow.sscNo);
    EXPECT_EQ(frmLCC.msgProfile.Rows(), 4);
    EXPECT_THAT(Windows.HelpTopics, ElementsAre(3060));
    Windows.Answers = {Answer::Yes};
    DeleteWith(frmDeleteRow.sscYes);
    EXPECT_THAT(Shown, ElementsAre("62", "Node"));
    EXPECT_EQ(frmLCC.msgProfile.Rows(), 3);
    EXPECT_EQ(frmLCC.msgProfile.Text(2, 1), "63");
}

TEST_F(DeleteRowTest, AFailureIsTold)
{
    Windows.Answers = {Answer::Yes};
    frmLCC.msgProfile.CellView = [](int, int) { throw SubscriptFailure(501, 1, 500); };
    DeleteWith(frmDeleteRow.sscYes);
    frmLCC.msgProfile.CellView = {};
    EXPECT_EQ(Windows.Messages.back().Text, "Could not delete the row.");
    EXPECT_EQ(Windows.Messages.back().Title, "Error !");
}

TEST_F(InputEventsTest, HelpButtonsOpenTheirTopics)
{
    for (CommandButton* Each : {&frmLCC.sscHelp, &frmLCC.sscHelp1, &frmLCC.sscHelp2, &frmLCC.sscHelp3,
                                &frmLCC.sscMechanical, &frmLCC.sscElectrical})
        Each->Click();
    EXPECT_THAT(Windows.HelpTopics, ElementsAre(3050, 3060, 3070, 3065, 3090, 3100));
}

} // namespace
} // namespace velorix
