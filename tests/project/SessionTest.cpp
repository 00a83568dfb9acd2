// New projects, the load step and the dirty mark.
#include "ProjectTest.h"
#include "base/Failure.h"
#include "project/HourPattern.h"
#include "project/InputScreen.h"

namespace velorix {
namespace {

using SessionTest = ProjectTest;

TEST_F(SessionTest, FirstProjectIsMetricInRand)
{
    StartNew(0);
    EXPECT_EQ(wWaterSales, 2.0);
    EXPECT_EQ(wDemandUnits, 0);
    EXPECT_EQ(wFlowrateUnits, 3);
    EXPECT_EQ(frmLCC.txtEscalation.Text.Get(), "10");
    EXPECT_EQ(frmLCC.lblMElectrical.Caption.Get(), "2.00%");
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), "Velorix (New project file)");
    EXPECT_EQ(frmLCC.dtpDate.Value.Get(), (Date{2005, 3, 3}));
    EXPECT_EQ(MDIProject.lblSystem.Caption.Get(), "Gravity system");
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
    EXPECT_EQ(frmLCC.sstInput.TabVisible.Get(), (std::vector<bool>{true, true, false, true}));
    EXPECT_EQ(ProjectOpen, 1);
    EXPECT_EQ(Saved, 1);
}

TEST_F(SessionTest, NewProjectKeepsWhatItDoesNotName)
{
    StartNew(1);
    ProjectRecord.Units = 1;
    ProjectRecord.Laying[3] = 140.0;
    ProjectRecord.SummerHour[7] = 2;
    ProjectRecord.WallThickness[9] = 6.0;
    ProjectRecord.Demand[10] = 5.0;
    ProjectRecord.Demand[11] = 6.0;
    wCurrency = 1;
    StartNew(1);
    EXPECT_EQ(wLaying[3], 140.0);
    EXPECT_EQ(wSummerHour[7], 2);
    EXPECT_EQ(wWallThickness[9], 6.0);
    EXPECT_EQ(wDemand[10], 0.0);
    EXPECT_EQ(wDemand[11], 6.0);
    EXPECT_EQ(wLengthUnits, 2);
    EXPECT_EQ(wPumpOperatingFlowrateUnits, 3);
    EXPECT_EQ(wWaterSales, Single(0.05)); // US units of the record, dollars of the working set
    EXPECT_EQ(wCurrency, 0);              // the record's currency comes back with the load
}

TEST_F(SessionTest, LoadShowsAPumpingProject)
{
    StartNew(1);
    SetText(ProjectRecord.Project, "Hill main");
    SetText(ProjectRecord.Date, "2004-02-29");
    ProjectRecord.VaryingDemand = 1;
    ProjectRecord.PumpDetails = 1;
    ProjectRecord.PumpCurve[5] = 0.1;
    ProjectRecord.TRWL = 1234.5;
    ProjectRecord.Demand[3] = 7.25;
    ProjectRecord.WinterHour[24] = 1;
    LoadThroughFile();

    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix (Hill main)");
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), FileName);
    EXPECT_EQ(frmLCC.dtpDate.Value.Get(), (Date{2004, 2, 29}));
    EXPECT_TRUE(frmLCC.sstInput.TabVisible.Get()[2]);
    EXPECT_TRUE(frmLCC.fraPumpVaryingDemand.Visible);
    EXPECT_FALSE(frmLCC.FraPumpFixedDemand.Visible);
    EXPECT_TRUE(frmLCC.fraPumpcurve.Visible);
    EXPECT_FALSE(frmLCC.fraGravityOption.Visible);
    EXPECT_EQ(frmLCC.txtQ[1].Text.Get(), "0.1");
    EXPECT_EQ(frmLCC.txtPPRWL.Text.Get(), "1234.5");
    EXPECT_EQ(frmLCC.msgPumpDemand.Text(3, 1), "7.25");
    EXPECT_EQ(frmLCC.lblWinterHour[23].BackColor.Get(), PureGreen);
    EXPECT_FALSE(MDIProject.proProgressBar.Visible);
}

TEST_F(SessionTest, GravityLoadLeavesThePumpFieldsOfTheWorkingSet)
{
    StartNew(1);
    ProjectRecord.PumpDetails = 1;
    ProjectRecord.PumpEfficiency = 81.0;
    LoadThroughFile();
    ProjectRecord.SystemType = 0;
    ProjectRecord.PumpDetails = 0;
    ProjectRecord.PumpEfficiency = 55.0;
    ProjectRecord.TRWL = 99.0;
    LoadThroughFile();
    EXPECT_EQ(wPumpDetails, 1);
    EXPECT_EQ(wPumpEfficiency, 81.0);
    EXPECT_EQ(frmLCC.txtTRWL.Text.Get(), "99");
}

TEST_F(SessionTest, WhatAControlCannotHoldIsHeldAtItsRange)
{
    StartNew(1);
    ProjectRecord.Life = 30000;
    ProjectRecord.SupplyStart = -5;
    ProjectRecord.PumpingHours = 0;
    ProjectRecord.MPipeline = 2001;
    ProjectRecord.DemandUnits = 13;
    ProjectRecord.NodeDesc[1] = 500;
    SetText(ProjectRecord.Date, "soon");
    LoadThroughFile();
    EXPECT_EQ(wLife, 100);
    EXPECT_EQ(frmLCC.lblLife.Caption.Get(), "100");
    EXPECT_EQ(wSupplyStart, 1950);
    EXPECT_EQ(wPumpingHours, 1);
    EXPECT_EQ(wMPipeline, 2000);
    EXPECT_EQ(wDemandUnits, 13);
    EXPECT_EQ(frmLCC.comVaryingDemandUnits.ListIndex, -1);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 7), "");
    EXPECT_EQ(frmLCC.dtpDate.Value.Get(), (Date{2005, 3, 3})); // as the new project left it
}

TEST_F(SessionTest, FileOfZeroBytesIsAProjectWithoutTexts)
{
    StartNew(0);
    FileName = WriteFile("empty.vlx", "");
    LoadProject();
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "");
    EXPECT_EQ(wLife, 2);
}

TEST_F(SessionTest, UnreadableFileLeavesTheOpenProject)
{
    StartNew(0);
    ProjectRecord.KsNew = 0.15;
    LoadThroughFile();
    const std::string Before = BytesOf(ProjectRecord);
    FileName = (Folder / "missing.vlx").string();
    EXPECT_THROW(LoadProject(), FileFailure);
    EXPECT_EQ(BytesOf(ProjectRecord), Before);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.15");
    EXPECT_EQ(ProjectOpen, 1);
    EXPECT_FALSE(MDIProject.proProgressBar.Visible);
}

TEST_F(SessionTest, ChangeThrowsTheResultsAway)
{
    StartNew(0);
    frmResults.LoadHidden();
    frmResults.lblIRR.Caption = "IRR = 12.000 %";
    Analysed = 1;
    MarkChanged();
    EXPECT_EQ(Analysed, 0);
    EXPECT_EQ(Saved, 0);
    EXPECT_FALSE(frmResults.IsLoaded());
    EXPECT_EQ(frmResults.lblIRR.Caption.Get(), "");
}

TEST_F(SessionTest, HourClicksGoRoundTheClasses)
{
    StartNew(1);
    Label& Hour = frmLCC.lblSummerHour[0];
    std::vector<Color> Seen;
    for (int Click = 0; Click < 3; ++Click) {
        CycleHour(Hour);
        Seen.push_back(Hour.BackColor);
    }
    EXPECT_EQ(Seen, (std::vector<Color>{PureRed, PureGreen, PureYellow}));

    wSummerHour[2] = 9; // no class: no colour of the three, and the reading leaves it
    FillHourPattern();
    frmLCC.lblSummerHour[2].BackColor = PureRed;
    ReadHourPattern();
    EXPECT_EQ(wSummerHour[2], 9);
    EXPECT_EQ(wSummerHour[3], 2);
}

} // namespace
} // namespace velorix
