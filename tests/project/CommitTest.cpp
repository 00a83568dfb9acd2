// What the commit asks for, what it takes from the screen, and what it leaves alone.
#include "project/Commit.h"
#include "ProjectTest.h"
#include "project/CostTables.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

class CommitTest : public ProjectTest {
protected:
    // A new project of that kind that passes every check. Its commits end ahead of the file.
    void StartComplete(int SystemType)
    {
        StartNew(SystemType);
        frmLCC.txtProject.Text = "Hill main";
        frmLCC.txtDesigner.Text = "A. Designer";
        SaveAs = 1;
    }

    static void EmptyAllBoxes()
    {
        for (Control* Each : frmLCC.Controls)
            if (auto* Box = dynamic_cast<TextBox*>(Each)) Box->Text = "  ";
    }

    // Commits and fills the box that is pointed out, until the commit passes; the boxes in that order.
    std::vector<Control*> BoxesAskedFor()
    {
        std::vector<Control*> Asked;
        for (CommitProject(); Committing == 1 && Asked.size() < 100; CommitProject()) {
            Asked.push_back(Windows.Focused);
            dynamic_cast<TextBox&>(*Windows.Focused).Text = "1";
        }
        return Asked;
    }

    void ExpectPointedOut(const TextBox& Box, const std::string& Text)
    {
        ASSERT_FALSE(Windows.Messages.empty());
        EXPECT_EQ(Windows.Messages.back().Text, Text);
        EXPECT_EQ(Windows.Messages.back().Title, "Error !");
        EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Exclamation);
        EXPECT_EQ(Windows.Focused, &Box);
        EXPECT_TRUE(frmLCC.Visible);
        EXPECT_EQ(Committing, 1);
    }
};

TEST_F(CommitTest, PumpingSystemIsAskedForItsCurvePointByPointOrItsOperatingPoint)
{
    StartNew(1);
    SaveAs = 1;
    frmLCC.optPumpDetails.Value = true;
    frmLCC.optMortar.Value = true;
    EmptyAllBoxes();
    frmLCC.txtPumpOperatingFlowrate.Text = frmLCC.txtPumpEfficiency.Text = "3"; // not asked for here

    std::vector<Control*> Expected = {&frmLCC.txtProject, &frmLCC.txtDesigner, &frmLCC.txtPFlowrate,
                                      &frmLCC.txtPPRWL, &frmLCC.txtPERWL};
    for (int Point = 0; Point < 6; ++Point)
        for (TextBox* Each : {&frmLCC.txtH[Point], &frmLCC.txtQ[Point], &frmLCC.txtEfficiency[Point]})
            Expected.push_back(Each);
    for (TextBox* Each :
         {&frmLCC.txtKsNew, &frmLCC.txtKsOld, &frmLCC.txtKsOldYears, &frmLCC.txtLiningThickness,
          &frmLCC.txtSPeak, &frmLCC.txtSStandard, &frmLCC.txtSOffpeak, &frmLCC.txtWPeak, &frmLCC.txtWStandard,
          &frmLCC.txtWOffpeak, &frmLCC.txtEscalation, &frmLCC.txtDiscountRate, &frmLCC.txtWaterSales,
          &frmLCC.txtWaterIncrease, &frmLCC.txtElectrical, &frmLCC.txtMechanical, &frmLCC.txtSupervision,
          &frmLCC.txtEnergyEscalation})
        Expected.push_back(Each);
    EXPECT_EQ(BoxesAskedFor(), Expected);
    EXPECT_EQ(Windows.Messages.front().Text, "Enter the project name !");
    EXPECT_EQ(Windows.Messages.back().Text, "Enter the estimated energy escalation rate !");

    frmLCC.optFlowrate.Value = true;
    frmLCC.txtPumpOperatingFlowrate.Text = frmLCC.txtPumpEfficiency.Text = "";
    EXPECT_EQ(BoxesAskedFor(),
              (std::vector<Control*>{&frmLCC.txtPumpOperatingFlowrate, &frmLCC.txtPumpEfficiency}));
    EXPECT_EQ(Windows.Messages.back().Text,
              "Enter the pump efficiency at the operating point(must be greater than zero) !");
}

TEST_F(CommitTest, GravitySystemIsNotAskedForPumpAndEnergy)
{
    StartNew(0);
    SaveAs = 1;
    EmptyAllBoxes(); // the lining is a Copon coat
    EXPECT_EQ(BoxesAskedFor(),
              (std::vector<Control*>{&frmLCC.txtProject, &frmLCC.txtDesigner, &frmLCC.txtGFlowrate,
                                     &frmLCC.txtTRWL, &frmLCC.txtBRWL, &frmLCC.txtKsNew, &frmLCC.txtKsOld,
                                     &frmLCC.txtKsOldYears, &frmLCC.txtEscalation, &frmLCC.txtDiscountRate,
                                     &frmLCC.txtWaterSales, &frmLCC.txtWaterIncrease, &frmLCC.txtElectrical,
                                     &frmLCC.txtMechanical, &frmLCC.txtSupervision}));
    EXPECT_EQ(frmLCC.txtDescription.Text.Get(), " ");
    EXPECT_EQ(TextOf(ProjectRecord.Description), "");
}

TEST_F(CommitTest, FailedCheckLeavesTheRecordAndKeepsTheTablesReadBeforeIt)
{
    StartComplete(0);
    const std::string Before = BytesOf(ProjectRecord);
    frmLCC.sstInput.Tab = 3;
    frmLCC.optGCalculatedFlowrate.Value = true;
    frmLCC.msgDemand.SetText(2, 1, "7.5");
    frmLCC.msgLaying.SetText(1, 1, "40");
    frmLCC.txtTRWL.Text = "";
    CommitProject();
    ExpectPointedOut(frmLCC.txtTRWL, "Enter the top reservoir water level !");
    EXPECT_EQ(BytesOf(ProjectRecord), Before);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3);
    EXPECT_EQ(wVaryingDemand, 1);
    EXPECT_EQ(wDemand[2], 7.5);
    EXPECT_EQ(wLaying[1], 0.0); // read further down

    frmLCC.txtTRWL.Text = "120.1";
    CommitProject();
    EXPECT_EQ(Committing, 0);
    EXPECT_EQ(ProjectRecord.Demand[2], 7.5);
    EXPECT_EQ(ProjectRecord.TRWL, Single(120.1));
    EXPECT_EQ(ProjectRecord.Laying[1], 40.0);
}

TEST_F(CommitTest, TextThatIsNoNumberIsNamedAndNothingOfTheScreenIsTaken)
{
    StartComplete(1);
    const std::string Before = BytesOf(ProjectRecord);
    frmLCC.txtKsNew.Text = "0.15";
    for (const std::string Text : {"12,5", "1e39", "nan", "5 m"}) {
        frmLCC.txtQ[2].Text = Text;
        CommitProject();
        EXPECT_EQ(Windows.Focused, &frmLCC.txtQ[2]);
        EXPECT_THAT(Windows.Messages.back().Text,
                    testing::AllOf(testing::StartsWith("Flow rate of point 3: "), testing::HasSubstr(Text)));
        EXPECT_EQ(Committing, 1);
        EXPECT_EQ(BytesOf(ProjectRecord), Before);
        EXPECT_EQ(wKsNew, 0.0);
        EXPECT_EQ(wProject, "");
    }
    frmLCC.txtQ[2].Text = " 12.5 ";
    frmLCC.txtLiningThickness.Text = "thin"; // no matter with a Copon coat
    CommitProject();
    EXPECT_EQ(Committing, 0);
    EXPECT_EQ(ProjectRecord.PumpCurve[8], 12.5);
}

TEST_F(CommitTest, GravitySystemKeepsThePumpFieldsOfTheRecord)
{
    StartNew(1);
    for (int Entry = 1; Entry <= 18; ++Entry) ProjectRecord.PumpCurve[Entry] = Entry;
    ProjectRecord.SummerHour[7] = 2;
    ProjectRecord.SPeak = 1.5;
    ProjectRecord.PumpingHours = 18;
    ProjectRecord.Reserved1 = 4.25;
    SetText(ProjectRecord.Pumptype, "Split casing");
    const ProjectFields Before = ProjectRecord;
    ProjectRecord.SystemType = 0;
    LoadThroughFile();
    SaveAs = 1;
    wPumpEfficiency = 64.0;
    frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
    frmLCC.txtH[0].Text = frmLCC.txtSPeak.Text = frmLCC.txtPumptype.Text = "?";
    frmLCC.fsbPumpingHours.Value = 3;
    frmLCC.lblSummerHour[0].BackColor = PeakColor;
    CommitProject();

    ASSERT_EQ(Committing, 0);
    ProjectFields Expected = Before;
    Expected.SystemType = 0;
    SetText(Expected.Project, "x");
    SetText(Expected.Designer, "x");
    Expected.EnergyEscalation = 0.0;
    Expected.PumpEfficiency = 64.0;
    EXPECT_EQ(BytesOf(ProjectRecord), BytesOf(Expected));
    EXPECT_EQ(wEnergyEscalation, 0.0);
}

TEST_F(CommitTest, UnitsComeFromTheSelectorsThatCount)
{
    StartComplete(1);
    frmLCC.comVaryingDemandUnits.ListIndex = 7; // kept equal to the pumping system's as that changes
    frmLCC.comPPRWLUnits.ListIndex = 1;
    frmLCC.comPERWLUnits.ListIndex = 2;
    frmLCC.comTRWLUnits.ListIndex = frmLCC.comBRWLUnits.ListIndex = 3; // the gravity system's
    frmLCC.comKsNewUnits.ListIndex = -1;
    wKsNewUnits = 9;
    CommitProject();
    EXPECT_EQ(ProjectRecord.DemandUnits, 7);
    EXPECT_EQ(ProjectRecord.TRWLUnits, 1);
    EXPECT_EQ(ProjectRecord.BRWLUnits, 2);
    EXPECT_EQ(ProjectRecord.KsNewUnits, 9);
}

TEST_F(CommitTest, GravitySystemIsReadFromItsOwnBoxes)
{
    StartComplete(0);
    frmLCC.txtGFlowrate.Text = "45.5";
    frmLCC.comGFlowrateUnits.ListIndex = 11;
    frmLCC.txtTRWL.Text = "1250.1";
    frmLCC.txtBRWL.Text = "-3";
    frmLCC.comTRWLUnits.ListIndex = 3;
    frmLCC.comBRWLUnits.ListIndex = 2;
    frmLCC.optMortar.Value = true;
    frmLCC.txtLiningThickness.Text = "12";
    frmLCC.comLiningThicknessUnits.ListIndex = 2;
    CommitProject();
    EXPECT_EQ(ProjectRecord.Flowrate, 45.5);
    EXPECT_EQ(ProjectRecord.FlowrateUnits, 11);
    EXPECT_EQ(ProjectRecord.TRWL, Single(1250.1));
    EXPECT_EQ(ProjectRecord.BRWL, -3.0);
    EXPECT_EQ(ProjectRecord.TRWLUnits, 3);
    EXPECT_EQ(ProjectRecord.BRWLUnits, 2);
    EXPECT_EQ(ProjectRecord.LiningType, 1);
    EXPECT_EQ(ProjectRecord.LiningThickness, 12.0);

    frmLCC.optCopon.Value = true; // a coat without thickness
    CommitProject();
    EXPECT_EQ(ProjectRecord.LiningType, 0);
    EXPECT_EQ(ProjectRecord.LiningThickness, 0.0);
    EXPECT_EQ(ProjectRecord.LiningThicknessUnits, 0);
}

TEST_F(CommitTest, TextsAreTrimmedCutAndPadded)
{
    StartComplete(1);
    frmLCC.txtProject.Text = "  Häuser  ";
    frmLCC.txtDesigner.Text = std::string(100, 'd');
    frmLCC.txtPumptype.Text = "  Multistage ";
    CommitProject();
    EXPECT_EQ(ToImage(ProjectRecord)[7], '\xE4'); // one byte a character
    EXPECT_EQ(TextOf(ProjectRecord.Project), "Häuser");
    EXPECT_EQ(ProjectRecord.Project.Bytes[79], ' ');
    EXPECT_EQ(TextOf(ProjectRecord.Designer), std::string(80, 'd'));
    EXPECT_EQ(ProjectRecord.Pumptype.Bytes[0], 'M');
}

} // namespace
} // namespace velorix
