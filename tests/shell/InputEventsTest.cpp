// What the input screen's controls do when a user touches them.
#include "shell/InputEvents.h"

#include "InputTest.h"
#include "input/Commit.h"
#include "input/ProfileTable.h"
#include "screens/Viewers.h"

#include <cmath>
#include <gmock/gmock.h>
#include <set>

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
    frmResults.lblIRR.Caption = "IRR = 12.000 %";
    Analysed = 1;
    frmLCC.txtDesigner.Text = "M. Naidoo";
    ExpectMarked(true, "a text");
    EXPECT_EQ(Analysed, 0);
    EXPECT_EQ(frmResults.lblIRR.Caption.Get(), "");
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

// All but those of texts and the cells' editors, of which grids have the tests. One box is told to take any
// key.
TEST_F(InputEventsTest, BoxesOfNumbersTakeDigitsAndThePoint)
{
    const std::set<const Control*> Editors = {
        &frmLCC.txtCell,       &frmLCC.txtLaying,          &frmLCC.txtDemand,
        &frmLCC.txtPumpDemand, &frmLCC.txtCellOperational, &frmLCC.txtCellOtherOperational};
    const std::set<const Control*> Free = {&frmLCC.txtProject,         &frmLCC.txtDesigner,
                                           &frmLCC.txtDescription,     &frmLCC.txtPumptype,
                                           &frmLCC.txtPumpDescription, &frmLCC.txtGFlowrate};
    std::string Typed; // all that the keyboard has
    for (char Each = 1; Each < 127; ++Each) Typed += Each;
    for (Control* Each : frmLCC.Controls) {
        auto* const Box = dynamic_cast<TextBox*>(Each);
        if (!Box || Editors.count(Box)) continue;
        EXPECT_EQ(Taken(*Box, Typed), Free.count(Box) ? Typed : "\x08\x0d.0123456789") << Box->ToolTip;
    }
    MDIProject.StatusText.Caption = "";
    EXPECT_EQ(Taken(frmLCC.txtKsNew, "12.5\x1b"), "12.5"); // Escape is dropped, and no character
    EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "");
}

TEST_F(InputEventsTest, BarsShowAndStoreTheirValue)
{
    struct Case {
        ScrollBar& Bar;
        int Value;
        const std::int16_t& Stored;
        const Label& Reading;
        const char* Shown;
    };
    Start(1);
    const Case Cases[] = {{frmLCC.hscLife, 12, wLife, frmLCC.lblLife, "12"},
                          {frmLCC.hscBaseYear, 2011, wBaseYear, frmLCC.lblBaseYear, "2011"},
                          {frmLCC.hscSupplyStart, 2012, wSupplyStart, frmLCC.lblSupplyStart, "2012"},
                          {frmLCC.fsbSummer, 9, wSummer, frmLCC.lblSummer, "9"},
                          {frmLCC.fsbPumpingHours, 17, wPumpingHours, frmLCC.lblPumpingHours, "17"},
                          {frmLCC.hscMPipeline, 1250, wMPipeline, frmLCC.lblMPipeline, "12.50%"},
                          {frmLCC.hscMMechanical, 5, wMMechanical, frmLCC.lblMMechanical, "0.05%"},
                          {frmLCC.hscMElectrical, 300, wMElectrical, frmLCC.lblMElectrical, "3.00%"}};
    for (const Case& Each : Cases) {
        Each.Bar.Value = Each.Value;
        EXPECT_EQ(Each.Stored, Each.Value) << Each.Bar.ToolTip;
        EXPECT_EQ(Each.Reading.Caption.Get(), Each.Shown) << Each.Bar.ToolTip;
    }
}

TEST_F(InputEventsTest, TheDemandTableFollowsTheYearsAndShowsWhatIsStored)
{
    wDemand[2] = 2.5;
    wDemand[12] = 4.5;
    for (ScrollBar* Each : {&frmLCC.hscLife, &frmLCC.hscSupplyStart}) {
        frmLCC.msgDemand.SetText(2, 1, "3.5"); // typed, and not committed yet
        Each->Value = Each->Value + 5;
        EXPECT_EQ(frmLCC.msgDemand.Text(2, 1), "2.5") << Each->ToolTip;
        EXPECT_EQ(wDemand[2], 2.5); // which an analysis goes by
    }
    EXPECT_EQ(frmLCC.msgDemand.Rows(), 36);
    EXPECT_EQ(frmLCC.msgDemand.Text(12, 1), "4.5");

    // A load moves the bar as well, and what it brings isn't in the table yet.
    ProjectRecord.Life = 20;
    ProjectRecord.Demand[2] = 9.5;
    NewProject = 1;
    LoadProject();
    EXPECT_EQ(frmLCC.msgDemand.Text(2, 1), "9.5");

    // The pumping table follows at the next load only, and the gravity table is another project's.
    Start(1);
    const int PumpRows = frmLCC.msgPumpDemand.Rows();
    wDemand[2] = 6.5;
    frmLCC.hscLife.Value = 15;
    EXPECT_EQ(wDemand[2], 6.5);
    EXPECT_EQ(frmLCC.msgPumpDemand.Rows(), PumpRows);
}

// The view shows what is stored, so it comes up only over a project that has been saved.
TEST_F(InputEventsTest, TheProfileIsSavedAheadOfItsView)
{
    int Views = 0;
    const auto Press = [&] {
        Windows.Messages.clear();
        frmLCC.sscViewProfile.Click();
        Views += frmView.Visible ? 1 : 0;
        if (frmView.Visible) frmView.sscOK.Click();
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
}

TEST_F(InputEventsTest, OptionsShowTheirFields)
{
    frmLCC.optGCalculatedFlowrate.Value = true;
    EXPECT_TRUE(frmLCC.msgDemand.Enabled);
    EXPECT_FALSE(frmLCC.txtGFlowrate.Enabled);
    Go(frmLCC.msgDemand, 1, 1);
    Type(U"5");
    EXPECT_TRUE(frmLCC.txtDemand.Visible);
    frmLCC.optGSpecifiedFlowrate.Value = true;
    EXPECT_FALSE(frmLCC.txtDemand.Visible); // with its table
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
}

// A foreign file may store what is no number. It shows, whatever lining stood before, until an option of the
// boxes is chosen.
TEST_F(InputEventsTest, AStoredValueThatIsNoNumberShowsUntilItsBoxGoesOutOfUse)
{
    Start(1);
    wPumpCurve[2] = std::nanf("");
    wLiningType = 1;
    CopyWorkingSetToRecord();
    NewProject = 1; // the record as it is
    LoadProject();
    EXPECT_EQ(frmLCC.txtQ[0].Text.Get(), "NaN");
    frmLCC.optPumpDetails.Value = true;
    frmLCC.optFlowrate.Value = true;
    EXPECT_EQ(frmLCC.txtQ[0].Text.Get(), "0");
}

// The user couldn't reach it to mend that, and the commit reads it all the same.
TEST_F(InputEventsTest, ABoxThatGoesOutOfUseIsNotLeftEmpty)
{
    LccScreen& S = frmLCC;
    const struct {
        int SystemType;
        OptionButton &InUse, &OutOfUse;
        std::vector<TextBox*> Boxes;
    } Cases[] = {{0, S.optGSpecifiedFlowrate, S.optGCalculatedFlowrate, {&S.txtGFlowrate}},
                 {1, S.optPumpFixed, S.optPumpVarying, {&S.txtPFlowrate}},
                 {1, S.optPumpDetails, S.optFlowrate, {&S.txtH[0], &S.txtQ[3], &S.txtEfficiency[5]}},
                 {1, S.optFlowrate, S.optPumpDetails, {&S.txtPumpOperatingFlowrate, &S.txtPumpEfficiency}}};
    for (const auto& [SystemType, InUse, OutOfUse, Boxes] : Cases) {
        Start(SystemType);
        S.txtProject.Text = S.txtDesigner.Text = "x";
        InUse.Value = true;
        wFlowrate = wPumpOperatingFlowrate = wPumpEfficiency = 12.5;
        wPumpCurve.Fill(12.5);
        for (TextBox* Each : Boxes) Each->Text = " ";
        OutOfUse.Value = true;
        for (const TextBox* Each : Boxes) EXPECT_EQ(Each->Text.Get(), "12.5") << Each->ToolTip;
        SaveAs = 1;
        CommitProject();
        EXPECT_EQ(Committing, 0);
    }
}

TEST_F(InputEventsTest, UnitsThatAreStoredAtOnce)
{
    wElevation[1] = 50.0;
    Go(frmLCC.msgProfile, 1, 1);
    Type(U"88"); // the row operations and the commit read the table, a unit doesn't
    Saved = 1;
    frmLCC.comDiameterUnits.ListIndex = 3;
    ExpectMarked(true, "a unit");
    EXPECT_EQ(wDiameterUnits, 3);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 1), "50");
    EXPECT_EQ(frmLCC.msgProfile.Tag, "50");
    EXPECT_FALSE(frmLCC.txtCell.Visible);

    Start(1);
    frmLCC.comPumpVaryingDemandUnits.ListIndex = 4;
    EXPECT_EQ(wDemandUnits, 4);
    EXPECT_EQ(frmLCC.comVaryingDemandUnits.ListIndex, 4); // which the commit reads
}

TEST_F(InputEventsTest, ALoadKeepsItsProfileAndAUnitBeyondItsList)
{
    for (const std::int16_t Unit : {3, 7}) {
        Start(1);
        ProjectRecord.DemandUnits = 13;
        ProjectRecord.DiameterUnits = Unit;
        for (int Row = 1; Row <= 4; ++Row)
            ProjectRecord.Elevation[Row] = ProjectRecord.AccLength[Row] = 10.0 * Row;
        NewProject = 1;
        LoadProject();
        EXPECT_EQ(NodeCount, 4); // and not the profile that the table showed before
        EXPECT_EQ(wElevation[4], 40.0);
        EXPECT_EQ(wDemandUnits, 13);
        EXPECT_EQ(wDiameterUnits, Unit);
        EXPECT_EQ(Saved, 1);
    }
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
    Saved = 1;
    frmLCC.sscLaying.Click();
    frmLCC.sscHideLaying.Click();
    EXPECT_FALSE(frmLCC.fraLaying.Visible);
    EXPECT_EQ(wLaying[2], 45.0);
    ExpectMarked(true, "cells that were typed before");
    frmLCC.sscHideLaying.Click();
    ExpectMarked(false, "nothing new");
}

TEST_F(InputEventsTest, DeleteShowsTheRowAndAsks)
{
    for (int Row = 1; Row <= 3; ++Row) wElevation[Row] = 60.0 + Row;
    FillProfileGrid();
    Grid& Profile = frmLCC.msgProfile;
    Profile.Select(2, 4);
    const auto DeleteWith = [this](CommandButton& Button) {
        Windows.Answers = {Answer::Yes};
        Windows.ModalScripts["frmDeleteRow"] = [&Button] {
            EXPECT_EQ(frmDeleteRow.lblNode.Caption.Get(), "2");
            EXPECT_EQ(frmDeleteRow.lblDelete[0].Caption.Get(), "62");
            EXPECT_EQ(frmDeleteRow.lblDelete[6].Caption.Get(), "Node"); // without its padding
            Button.Click();
            EXPECT_FALSE(frmDeleteRow.Visible);
        };
        frmLCC.sscDelete.Click();
    };
    DeleteWith(frmDeleteRow.sscNo);
    EXPECT_EQ(Profile.Rows(), 4);

    Profile.CellView = [](int, int) { throw SubscriptFailure(501, 1, 500); };
    DeleteWith(frmDeleteRow.sscYes);
    Profile.CellView = {};
    EXPECT_EQ(LastMessage(), "Could not delete the row.");
    EXPECT_EQ(Windows.Messages.back().Title, "Error !");

    FillProfileGrid();
    Profile.Select(2, 4);
    DeleteWith(frmDeleteRow.sscYes);
    EXPECT_EQ(Profile.Rows(), 3);
    EXPECT_EQ(Profile.Text(2, 1), "63");
}

} // namespace
} // namespace velorix
