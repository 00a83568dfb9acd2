// New projects, the load of foreign files, and the hours of the day.
#include "ProjectTest.h"
#include "input/Commit.h"
#include "input/HourPattern.h"
#include "input/InputScreen.h"

namespace velorix {
namespace {

using SessionTest = ProjectTest;

// Where units and currency come from: see the table of fields. The load takes the currency of the record
// back.
TEST_F(SessionTest, NewProjectIsLoadedWithItsDefaults)
{
    ProjectRecord.Laying[3] = 140.0;
    wCurrency = 1;
    StartNew(1);
    EXPECT_EQ(wWaterSales, 0.5);
    EXPECT_EQ(wCurrency, 0);
    EXPECT_EQ(wLaying[3], 140.0);
    EXPECT_EQ(frmLCC.txtEscalation.Text.Get(), "10");
    EXPECT_EQ(Saved, 1);
}

TEST_F(SessionTest, WhatAControlCannotHoldIsHeldAtItsRangeAndUnknownUnitsStay)
{
    StartNew(1);
    ProjectRecord.Life = 30000;
    ProjectRecord.SupplyStart = -5;
    ProjectRecord.PumpingHours = 0;
    ProjectRecord.MPipeline = 2001;
    ProjectRecord.DemandUnits = 13;
    ProjectRecord.NodeDesc[1] = 500;
    SetText(ProjectRecord.Project, "  Hill main");
    SetText(ProjectRecord.Date, "soon");
    FileName = WriteFile("project.vlx", BytesOf(ProjectRecord));
    LoadProject();
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix (Hill main)");
    EXPECT_EQ(wLife, 100);
    EXPECT_EQ(frmLCC.lblLife.Caption.Get(), "100");
    EXPECT_EQ(wSupplyStart, 1950);
    EXPECT_EQ(wPumpingHours, 1);
    EXPECT_EQ(wMPipeline, 2000);
    EXPECT_EQ(frmLCC.msgProfile.Text(1, 7), "");
    EXPECT_EQ(frmLCC.dtpDate.Value.Get(), (Date{2005, 3, 3})); // as the new project left it
    EXPECT_EQ(frmLCC.comVaryingDemandUnits.ListIndex, -1);

    frmLCC.txtDesigner.Text = "x";
    CommitProject();
    EXPECT_EQ(ProjectRecord.DemandUnits, 13); // a selector without a choice leaves the unit
}

TEST_F(SessionTest, FileOfZeroBytesIsAProjectWithoutTexts)
{
    FileName = WriteFile("empty.vlx", "");
    LoadProject();
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "");
    EXPECT_EQ(wLife, 2);
}

TEST_F(SessionTest, HourClicksGoRoundTheClasses)
{
    StartNew(1);
    Label& Hour = frmLCC.lblSummerHour[0];
    for (const Color Next : {PureRed, PureGreen, PureYellow}) {
        CycleHour(Hour);
        EXPECT_EQ(Hour.BackColor.Get(), Next);
    }
    wSummerHour[2] = 9; // no class: no colour of the three, and the reading leaves it
    FillHourPattern();
    frmLCC.lblSummerHour[2].BackColor = PureRed;
    ReadHourPattern();
    EXPECT_EQ(wSummerHour[2], 9);
    EXPECT_EQ(wSummerHour[3], 2);
}

} // namespace
} // namespace velorix
