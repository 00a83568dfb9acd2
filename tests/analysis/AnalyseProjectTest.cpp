// The course of an analysis: its steps, its ends, and what is left after each.
#include "AnalysisTest.h"
#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "results/PlotState.h"

namespace velorix {
namespace {

using AnalyseProjectTest = AnalysisTest;

TEST_F(AnalyseProjectTest, GravityProjectStands)
{
    Analyse(GravityRecord());
    EXPECT_EQ(Analysed, 1);
    EXPECT_EQ(frmAnalyse.proBar.Value, 100);
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_EQ(frmResults.lblDesignLife.Caption.Get(), "20 years");
    EXPECT_EQ(frmResults.lblYear.Caption.Get(), "2003");
    EXPECT_FALSE(frmResults.sscDutypoint.Visible);
    EXPECT_EQ(frmResults.comEnd.ListIndex, 9);
    EXPECT_EQ(frmResults.hscYears.Max, 20);
    EXPECT_EQ(Chainage[10], 6000.0);
    // The whole head is lost on the way, to the accuracy of the search for the flow.
    EXPECT_NEAR(Gradeline(10, 1), 100.0, 0.001);
}

// A rougher pipe moves the duty point up the curve: less flow, more head.
TEST_F(AnalyseProjectTest, PumpCurveProjectStands)
{
    Analyse(PumpCurveRecord());
    EXPECT_EQ(Analysed, 1) << LastMessage();
    EXPECT_TRUE(frmResults.sscDutypoint.Visible);
    EXPECT_LT(Flow[20], Flow[1]);
    EXPECT_GT(PumpHead[20], PumpHead[1]);
    for (const Single Amount : {BackfillCost[1], MaintPipeline[1], EnergyCost[1], IncomeSeries[1], NpvCost})
        EXPECT_GT(Amount, 0.0);
    EXPECT_EQ(frmResults.msgCost.Text(14, 0), "Total capital cost");
}

TEST_F(AnalyseProjectTest, CurvesThatDoNotCrossEndTheAnalysis)
{
    ProjectFields Record = PumpCurveRecord();
    Record.BRWL = 250.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(Windows.Messages[0].Title, "Error");
    EXPECT_EQ(Windows.ModalScreens, std::vector<std::string>{"frmDutyPoint"});
    EXPECT_EQ(frmAnalyse.proBar.Value, 55);
    EXPECT_EQ(TotalCapitalCost, 0.0);
    Analyse(PumpCurveRecord());
    EXPECT_EQ(Analysed, 1);
    frmLCC.txtSupervision.Text = "";
    AnalyseProject();
    EXPECT_EQ(Analysed, 0);
}

// A gravity system goes on with zero flows, such as with more than 99 rows. A pumping system divides by one.
TEST_F(AnalyseProjectTest, FailedHydraulicsEndOnlyAPumpingAnalysis)
{
    Analyse(GravityRecord(99));
    EXPECT_GT(Flow[1], 0.0);
    ResetFlows();
    Analyse(GravityRecord(100));
    EXPECT_EQ(Analysed, 1);
    EXPECT_EQ(Flow[1], 0.0);
    EXPECT_EQ(LastMessage(), "Could not determine the hydraulic gradeline. Please check input data");

    ProjectFields Record = PumpCurveRecord();
    Record.KsOldYears = 1.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    ASSERT_EQ(Windows.Messages.size(), 2U);
    EXPECT_EQ(LastMessage(), "Could not determine the flow for each year.");
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix Error");
}

TEST_F(AnalyseProjectTest, HighPointIsToldAfterTheLastStep)
{
    ProjectFields Record = GravityRecord();
    Record.Elevation[5] = 152.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 1);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(Windows.Messages[0].Title, "Velorix: comment");
    EXPECT_EQ(frmAnalyse.proBar.Value, 100);
    for (int Row = 2; Row <= 10; ++Row) EXPECT_GT(Gradeline(Row - 1, 1) - Record.Elevation[Row], -1.001);
    Analyse(GravityRecord());
    EXPECT_TRUE(Windows.Messages.empty());
}

// The section past the last one of the shorter profile, and the return where no income makes one.
TEST_F(AnalyseProjectTest, StaleStateStaysUntilTheProgramIsReset)
{
    Analyse(PumpCurveRecord(30));
    const Single LongSection = SectionLength[10];
    const Single FirstReturn = Irr;
    ASSERT_GT(FirstReturn, 0.0);
    ProjectFields Record = GravityRecord(10);
    Record.WaterSales = 0.0;
    Analyse(Record);
    EXPECT_EQ(SectionLength[10], LongSection);
    EXPECT_EQ(Irr, FirstReturn);
    EXPECT_FALSE(frmResults.sscDutypoint.Visible); // but not what the results show

    ResetProgram();
    StartSession();
    EXPECT_EQ(SystemHeadByYear(CurvePoints, 1), 0.0);
    EXPECT_EQ(wPumpDetails, 0);
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "");
    EXPECT_EQ(frmAnalyse.proBar.Value, 0);
    Analyse(Record);
    EXPECT_EQ(SectionLength[10], 0.0);
    EXPECT_EQ(Irr, 0.0);
}

} // namespace
} // namespace velorix
