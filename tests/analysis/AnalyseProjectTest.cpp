// The course of an analysis: its steps, its ends, and what is left after each.
#include "AnalysisTest.h"
#include "base/NumberText.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/YearlySupply.h"
#include "results/PlotState.h"

#include <limits>

namespace velorix {
namespace {

using AnalyseProjectTest = AnalysisTest;

TEST_F(AnalyseProjectTest, GravityProjectStands)
{
    Analyse(GravityRecord());
    EXPECT_EQ(Analysed, 1);
    EXPECT_TRUE(Windows.Messages.empty());
    EXPECT_EQ(frmAnalyse.proBar.Value, 100);
    EXPECT_TRUE(frmResults.IsLoaded());
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_EQ(frmResults.lblDesignLife.Caption.Get(), "20 years");
    EXPECT_EQ(frmResults.lblYear.Caption.Get(), "2003");
    EXPECT_FALSE(frmResults.sscDutypoint.Visible);
    EXPECT_EQ(frmResults.msgAnnualCost.Rows(), 5);
    EXPECT_EQ(frmResults.comEnd.ListIndex, 9);
    EXPECT_EQ(Chainage[10], 6000.0);
    EXPECT_EQ(frmResults.hscYears.Max, 20);
    // The whole head is lost on the way, to the accuracy of the search for the flow.
    EXPECT_NEAR(Gradeline(10, 1), 100.0, 0.001);
}

TEST_F(AnalyseProjectTest, HeadlinesShowTheFigures)
{
    Analyse(GravityRecord());
    const std::string Income = frmResults.lblNPVI.Caption;
    EXPECT_EQ(Income.front(), 'R');
    EXPECT_NE(Income.find(','), std::string::npos);
    EXPECT_EQ(frmResults.lblIRR.Caption.Get().substr(0, 6), "IRR = ");

    // The table adds up from its own rows.
    const auto Amount = [](int Row) {
        std::string Digits = frmResults.msgCost.Text(Row, 1);
        std::erase(Digits, ',');
        return ParseDouble(Digits);
    };
    EXPECT_EQ(frmResults.msgCost.Text(5, 0), "Preliminary & General (10%)");
    EXPECT_NEAR(Amount(4) + Amount(5), Amount(6), 1.0);
    EXPECT_NEAR(Amount(6) + Amount(7) + Amount(8), Amount(9), 1.0);
    EXPECT_NEAR(Amount(14), TotalCapitalCost, 2.0);
}

TEST_F(AnalyseProjectTest, PumpCurveProjectStands)
{
    Analyse(PumpCurveRecord());
    EXPECT_EQ(Analysed, 1) << LastMessage();
    EXPECT_TRUE(frmResults.sscDutypoint.Visible);
    EXPECT_EQ(frmResults.msgAnnualCost.Text(5, 1), "Total annual energy cost");
    // A rougher pipe moves the duty point up the curve: less flow, more head.
    EXPECT_LT(Flow[20], Flow[1]);
    EXPECT_GT(PumpHead[20], PumpHead[1]);
}

TEST_F(AnalyseProjectTest, CurvesThatDoNotCrossEndTheAnalysis)
{
    ProjectFields Record = PumpCurveRecord();
    Record.BRWL = 250.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    EXPECT_EQ(AnalysisAborted, -1);
    EXPECT_EQ(LastMessage(), "The pump curve does not intersect the system curve for year 1");
    EXPECT_EQ(Windows.Messages.back().Title, "Error");
    EXPECT_EQ(Windows.ModalScreens, std::vector<std::string>{"frmDutyPoint"});
    EXPECT_EQ(frmAnalyse.proBar.Value, 55);
    EXPECT_EQ(TotalCapitalCost, 0.0);
}

// A gravity system goes on with zero flows, a pumping system divides by one.
TEST_F(AnalyseProjectTest, FailedHydraulicsEndOnlyAPumpingAnalysis)
{
    Analyse(GravityRecord(120));
    EXPECT_EQ(Analysed, 1);
    EXPECT_EQ(HydraulicsFailed, 1);
    EXPECT_EQ(Flow[1], 0.0);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(LastMessage(), "Could not determine the hydraulic gradeline. Please check input data");

    ProjectFields Record = PumpCurveRecord();
    Record.KsOldYears = 1.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    ASSERT_EQ(Windows.Messages.size(), 2U);
    EXPECT_EQ(LastMessage(), "Could not determine the flow for each year.");
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix Error");
}

TEST_F(AnalyseProjectTest, SupervisionIsReadAsItStandsOnTheScreen)
{
    Open(GravityRecord());
    frmLCC.txtSupervision.Text = "2500";
    AnalyseProject();
    EXPECT_EQ(SupervisionCost, 2500.0);

    frmLCC.txtSupervision.Text = "";
    AnalyseProject();
    EXPECT_EQ(LastMessage(), "Could not determine the flow for each year.");
    EXPECT_EQ(frmAnalyse.proBar.Value, 70);
    EXPECT_EQ(SupervisionCost, 2500.0);
}

TEST_F(AnalyseProjectTest, HighPointIsToldAfterTheLastStep)
{
    ProjectFields Record = GravityRecord();
    Record.Elevation[5] = 152.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 1);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(Windows.Messages[0].Title, "Velorix: comment");
    EXPECT_EQ(Windows.Messages[0].Icon, MessageIcon::Information);
    EXPECT_EQ(frmAnalyse.proBar.Value, 100);
    for (int Row = 2; Row <= 10; ++Row) EXPECT_GT(Gradeline(Row - 1, 1) - Record.Elevation[Row], -1.001);
}

TEST_F(AnalyseProjectTest, StaleStateOfTheRunStays)
{
    Analyse(GravityRecord(30));
    const Single LongSection = SectionLength[10];
    const Single FirstRate = Irr;
    ASSERT_GT(FirstRate, 0.0);
    ProjectFields Record = GravityRecord(10);
    Record.WaterSales = 0.0;
    Analyse(Record);
    EXPECT_EQ(SectionLength[10], LongSection); // past the last section of the shorter profile
    EXPECT_EQ(Irr, FirstRate);                 // no income, no crossing

    ResetProgram();
    StartSession();
    Analyse(Record);
    EXPECT_EQ(SectionLength[10], 0.0);
    EXPECT_EQ(Irr, 0.0);
}

// Levels that aren't numbers fail in the expressions that use them; showing what is left must not.
TEST_F(AnalyseProjectTest, ForeignNumbersEndInAMessage)
{
    ProjectFields Record = GravityRecord();
    Record.TRWL = std::numeric_limits<float>::quiet_NaN();
    Analyse(Record);
    EXPECT_EQ(HydraulicsFailed, 1);

    Record = GravityRecord();
    Record.BaseYear = 1950;
    Record.SupplyStart = 2500; // more construction years than the series holds
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    EXPECT_EQ(LastMessage(), "Could not determine the flow for each year.");
    EXPECT_GT(CapitalSeries[100], 0.0);
}

} // namespace
} // namespace velorix
