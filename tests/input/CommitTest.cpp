// What the commit asks for, what it takes from the screen, and what it leaves alone.
#include "input/Commit.h"
#include "ProjectTest.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

class CommitTest : public ProjectTest {
protected:
    // Complete, and its commits end ahead of the file.
    void StartUnwritten(int SystemType)
    {
        StartComplete(SystemType);
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
};

TEST_F(CommitTest, PumpingSystemIsAskedForItsCurvePointByPointOrItsOperatingPoint)
{
    StartUnwritten(1);
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
    EXPECT_EQ(LastMessage(), "Enter the estimated energy escalation rate !");

    frmLCC.optFlowrate.Value = true;
    frmLCC.txtPumpOperatingFlowrate.Text = frmLCC.txtPumpEfficiency.Text = "";
    EXPECT_EQ(BoxesAskedFor(),
              (std::vector<Control*>{&frmLCC.txtPumpOperatingFlowrate, &frmLCC.txtPumpEfficiency}));
    EXPECT_EQ(LastMessage(), "Enter the pump efficiency at the operating point(must be greater than zero) !");
}

TEST_F(CommitTest, GravitySystemIsNotAskedForPumpAndEnergyAndHasNoEnergyEscalation)
{
    StartUnwritten(0);
    EmptyAllBoxes(); // the lining is a Copon coat
    EXPECT_EQ(BoxesAskedFor(),
              (std::vector<Control*>{&frmLCC.txtProject, &frmLCC.txtDesigner, &frmLCC.txtGFlowrate,
                                     &frmLCC.txtTRWL, &frmLCC.txtBRWL, &frmLCC.txtKsNew, &frmLCC.txtKsOld,
                                     &frmLCC.txtKsOldYears, &frmLCC.txtEscalation, &frmLCC.txtDiscountRate,
                                     &frmLCC.txtWaterSales, &frmLCC.txtWaterIncrease, &frmLCC.txtElectrical,
                                     &frmLCC.txtMechanical, &frmLCC.txtSupervision}));
    EXPECT_EQ(frmLCC.txtDescription.Text.Get(), " ");
    EXPECT_EQ(ProjectRecord.EnergyEscalation, 0.0);
}

TEST_F(CommitTest, FailedCheckLeavesTheRecordAndKeepsTheTablesReadBeforeIt)
{
    StartUnwritten(0);
    const std::string Before = BytesOf(ProjectRecord);
    frmLCC.sstInput.Tab = 3;
    frmLCC.optGCalculatedFlowrate.Value = true;
    frmLCC.msgDemand.SetText(2, 1, "7.5");
    frmLCC.msgLaying.SetText(1, 1, "40");
    frmLCC.txtTRWL.Text = "";
    frmLCC.Visible = false;
    CommitProject();
    ExpectTold("Enter the top reservoir water level !", "Error !");
    EXPECT_EQ(Windows.Focused, &frmLCC.txtTRWL);
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(frmLCC.sstInput.Tab, 3);
    EXPECT_EQ(BytesOf(ProjectRecord), Before);
    EXPECT_EQ(wVaryingDemand, 1);
    EXPECT_EQ(wDemand[2], 7.5);
    EXPECT_EQ(wLaying[1], 0.0); // read further down

    frmLCC.txtTRWL.Text = "120.1";
    CommitProject();
    EXPECT_EQ(Committing, 0);
    EXPECT_EQ(ProjectRecord.Demand[2], 7.5);
    EXPECT_EQ(ProjectRecord.TRWL, Single(120.1));
}

TEST_F(CommitTest, TextThatIsNoNumberIsNamedAndNothingOfTheScreenIsTaken)
{
    StartUnwritten(1);
    const std::string Before = BytesOf(ProjectRecord);
    frmLCC.txtPFlowrate.Text = "0.15";
    for (const std::string Text : {"12,5", "1e39", "nan", "5 m"}) {
        frmLCC.txtQ[2].Text = Text;
        CommitProject();
        EXPECT_EQ(Windows.Focused, &frmLCC.txtQ[2]);
        EXPECT_THAT(LastMessage(),
                    testing::AllOf(testing::StartsWith("Flow rate of point 3: "), testing::HasSubstr(Text)));
        EXPECT_EQ(Committing, 1);
        EXPECT_EQ(BytesOf(ProjectRecord), Before);
        EXPECT_EQ(wFlowrate, 0.0);
        EXPECT_EQ(wProject, "");
    }
    frmLCC.txtQ[2].Text = " 12.5 ";
    wLiningThickness = 7.0;
    wLiningThicknessUnits = 2;
    frmLCC.txtLiningThickness.Text = "thin"; // no matter with a Copon coat, which has no thickness
    CommitProject();
    EXPECT_EQ(Committing, 0);
    EXPECT_EQ(ProjectRecord.PumpCurve[8], 12.5);
    EXPECT_EQ(ProjectRecord.LiningThickness, 0.0);
    EXPECT_EQ(ProjectRecord.LiningThicknessUnits, 0);
}

TEST_F(CommitTest, TextsAreTrimmedCutAndPadded)
{
    StartUnwritten(1);
    frmLCC.txtProject.Text = "  Häuser  ";
    frmLCC.txtDesigner.Text = std::string(100, 'd');
    frmLCC.txtPumptype.Text = "  Multistage ";
    CommitProject();
    const RecordImage Image = ToImage(ProjectRecord);
    EXPECT_EQ(std::string(Image.data() + 6, 160),
              "H\xE4user" + std::string(74, ' ') + std::string(80, 'd')); // one byte a character
    EXPECT_EQ(ProjectRecord.Pumptype.Bytes[0], 'M');
}

} // namespace
} // namespace velorix
