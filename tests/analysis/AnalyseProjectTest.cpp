// The course of an analysis: its steps, its ends, and what is left after each.
#include "AnalysisTest.h"
#include "cost/CostResults.h"
#include "cost/Figures.h"
#include "results/PlotState.h"

#include <cfenv>
#include <cstring>
#include <map>

namespace velorix {
namespace {

using AnalyseProjectTest = AnalysisTest;

// A result as it lies in memory, every bit of it.
template <typename Shape>
std::string BytesOf(const Shape& Value)
{
    return {reinterpret_cast<const char*>(&Value), sizeof Value};
}

TEST_F(AnalyseProjectTest, EitherKindOfSystemStandsAndFillsTheResultsScreen)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        Analyse(Record);
        EXPECT_EQ(Analysed, 1) << LastMessage();
        EXPECT_EQ(frmAnalyse.proBar.Value, 100);
        EXPECT_FALSE(frmResults.Visible);
        EXPECT_EQ(frmResults.sscDutypoint.Visible, IsPumping());
        EXPECT_EQ(frmResults.lblDesignLife.Caption.Get(), "20 years");
        EXPECT_EQ(frmResults.lblYear.Caption.Get(), "2003");
        EXPECT_EQ(frmResults.comEnd.ListIndex, 9);
        EXPECT_EQ(frmResults.hscYears.Max, 20);
        EXPECT_EQ(frmResults.msgCost.Text(14, 0), "Total capital cost");
    }
}

TEST_F(AnalyseProjectTest, CurvesThatDoNotCrossEndTheAnalysis)
{
    ProjectFields Record = PumpCurveRecord();
    Record.BRWL = 250.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    ASSERT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(Windows.Messages[0].Text, "The pump curve does not intersect the system curve for year 1");
    EXPECT_EQ(Windows.Messages[0].Title, "Error");
    EXPECT_EQ(Windows.ModalScreens, std::vector<std::string>{"frmDutyPoint"});
    EXPECT_EQ(frmAnalyse.proBar.Value, 55);
    EXPECT_EQ(TotalCapitalCost, 0.0);
    Analyse(PumpCurveRecord());
    EXPECT_EQ(Analysed, 1);

    // The fee is read from the screen once the fees before it stand.
    ResetResults();
    SupervisionCost = 77.0;
    frmLCC.txtSupervision.Text = "R 150000";
    AnalyseProject(Tables::Filled);
    EXPECT_EQ(Analysed, 0);
    EXPECT_GT(ConsultingFees, 0.0);
    EXPECT_EQ(SupervisionCost, 77.0);
    EXPECT_EQ(TotalCapitalCost, 0.0);
}

// Each of the works alone can be stored, their sum can't. The allowance takes nine tenths off whatever the
// costs store, so that the table is the first to fail.
TEST_F(AnalyseProjectTest, SubTotalTooLargeToStoreEndsTheAnalysis)
{
    ProjectFields Record = GravityRecord();
    Record.Mechanical = Record.Electrical = 3e38;
    Record.PG = -90.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 0);
    EXPECT_EQ(LastMessage(), "Could not determine the flow for each year.");
    EXPECT_GT(NpvCost, 6e37);

    Record.Electrical = 0.0;
    Analyse(Record);
    EXPECT_EQ(Analysed, 1) << LastMessage();
    std::feraiseexcept(FE_DIVBYZERO); // as a toolkit may, before the results are shown
    EXPECT_NO_THROW(RefreshResults());
}

// A gravity system goes on with zero flows, such as with more than 99 rows. A pumping system divides by one.
TEST_F(AnalyseProjectTest, FailedHydraulicsEndOnlyAPumpingAnalysis)
{
    Analyse(GravityRecord(99));
    EXPECT_GT(Flow[1], 0.0);
    ResetResults();
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

    ForEachResult(
        [](const ResultInfo&, auto& Value) { std::memset(static_cast<void*>(&Value), 1, sizeof Value); });
    ResetProgram();
    StartSession();
    ForEachResult([](const ResultInfo& Of, const auto& Value) {
        EXPECT_TRUE(BytesOf(Value) == std::string(sizeof Value, '\0')) << Of.Name;
    });
    Analyse(Record);
    EXPECT_EQ(SectionLength[10], 0.0);
    EXPECT_EQ(Irr, 0.0);
}

// What is left out where nobody asks for the tables.
template <typename Shape>
constexpr bool IsTable = std::is_same_v<Shape, ByCurvePoint> || std::is_same_v<Shape, SystemCurves> ||
                         std::is_same_v<Shape, ByRate> || std::is_same_v<Shape, ByRateInFull>;

// The same figures without a screen, with the tables or without, whatever the kind of system and however the
// hydraulics end.
TEST_F(AnalyseProjectTest, TheEngineAloneGivesTheSameBits)
{
    ProjectFields GivenFlow = PumpCurveRecord(30);
    GivenFlow.PumpDetails = 0;
    GivenFlow.PumpOperatingFlowrate = 300.0;
    ProjectFields HighPoint = GravityRecord();
    HighPoint.Elevation[5] = 152.0;
    ProjectFields NoDutyPoint = PumpCurveRecord();
    NoDutyPoint.BRWL = 250.0;
    for (const ProjectFields& Record :
         {GravityRecord(), GravityRecord(100), HighPoint, PumpCurveRecord(), NoDutyPoint, GivenFlow}) {
        std::map<std::string, std::string> Analysed;
        ResetProgram();
        StartSession();
        Analyse(Record);
        ForEachResult([&](const ResultInfo& Of, const auto& Value) { Analysed[Of.Name] = BytesOf(Value); });

        Windows.Messages.clear();
        for (const Tables Wanted : {Tables::Filled, Tables::LeftOut}) {
            ResetProgram();
            OpenRecord(Record);
            const bool Stand = ComputeFigures(Wanted);
            EXPECT_EQ(Stand, AnalysisAborted == 0);
            ForEachResult([&](const ResultInfo& Of, const auto& Value) {
                const bool Told = Wanted == Tables::Filled || !IsTable<std::decay_t<decltype(Value)>>;
                EXPECT_TRUE(!Told || BytesOf(Value) == Analysed[Of.Name]) << Of.Name;
            });
        }
        EXPECT_TRUE(Windows.Messages.empty());
    }
}

} // namespace
} // namespace velorix
