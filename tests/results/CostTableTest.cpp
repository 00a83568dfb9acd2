// The cost tables and the headline figures of the results screen, over money set by hand.
#include "results/CostTable.h"

#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "project/WorkingSet.h"
#include "results/Headlines.h"
#include "screens/Results.h"

#include <gtest/gtest.h>
#include <limits>

namespace velorix {
namespace {

class CostTableTest : public testing::Test {
protected:
    CostTableTest()
    {
        frmResults.Unload();
        ResetWorkingSet();
        ResetCapitalCost();
        ResetAnnualCosts();
        wLife = 3;
        wSystemType = 1;
    }

    static std::string Name(int Row) { return frmResults.msgCost.Text(Row, 0); }
    static std::string Amount(int Row) { return frmResults.msgCost.Text(Row, 1); }
};

// By hand: 1 000 000 of pipeline and works, 10 % and then 20 % on top, 5000 of escalation, 145 000 of fees.
TEST_F(CostTableTest, CapitalCostAddsUpRowByRow)
{
    LayingCost = 400000.0;
    PipeSupplyCost = 300000.0;
    wMechanical = 100000.0;
    wElectrical = 200000.0;
    wPG = 10.0;
    wContingencies = 20.0;
    EscalationAmount = 5000.0;
    ConsultingFees = 145000.0;
    SupervisionCost = 30000.0;
    FillCapitalCostTable();

    const std::pair<const char*, const char*> Rows[] = {{"Pipeline cost", "700,000"},
                                                        {"Mechanical cost", "100,000"},
                                                        {"Electrical cost", "200,000"},
                                                        {"Sub total", "1,000,000"},
                                                        {"Preliminary & General (10%)", "100,000"},
                                                        {"Sub total", "1,100,000"},
                                                        {"Contingencies (20%)", "220,000"},
                                                        {"Escalation", "5,000"},
                                                        {"Sub total", "1,325,000"},
                                                        {"Consulting fees (SAACE) 2002)", "145,000"},
                                                        {"Administration and management", "30,000"},
                                                        {"Total construction cost", "1,500,000"},
                                                        {"VAT 14%", "210,000"},
                                                        {"Total capital cost", "1,710,000"}};
    int Row = 0;
    for (const auto& [Caption, Money] : Rows) {
        ++Row;
        EXPECT_EQ(Name(Row), Caption);
        EXPECT_EQ(Amount(Row), Money) << Caption;
    }
    EXPECT_EQ(frmResults.msgCost.Rows(), Row + 1);
}

TEST_F(CostTableTest, AnnualCostFollowsTheYear)
{
    OperationalCost[2] = 1234.5;
    EnergyCost[2] = 0.125;
    FillCapitalCostTable();
    frmResults.hsbAnnual.Value = 2;
    ShowAnnualCost();
    EXPECT_EQ(frmResults.msgAnnualCost.Text(1, 2), "R1,234.50");
    EXPECT_EQ(frmResults.msgAnnualCost.Text(5, 2), "R0.13");
    EXPECT_EQ(frmResults.lblAnnual.Caption.Get(), "Year : 2");

    wSystemType = 0;
    wCurrency = 1;
    FillCapitalCostTable();
    EXPECT_EQ(frmResults.msgAnnualCost.Rows(), 5); // no energy in a gravity system
    EXPECT_EQ(frmResults.msgAnnualCost.Text(1, 2), "$0.00");
    EXPECT_EQ(frmResults.lblAnnual.Caption.Get(), "Year : 1");
}

TEST_F(CostTableTest, FigureThatIsNoNumberLeavesItsLabelEmpty)
{
    NpvCost = std::numeric_limits<float>::quiet_NaN();
    NpvIncome = 1250000.0;
    Irr = 12.3456;
    ShowHeadlines();
    EXPECT_EQ(frmResults.lblDesignLife.Caption.Get(), "3 years");
    EXPECT_EQ(frmResults.lblNPVE.Caption.Get(), "");
    EXPECT_EQ(frmResults.lblNPVI.Caption.Get(), "R1,250,000");
    EXPECT_EQ(frmResults.lblIRR.Caption.Get(), "IRR = 12.346 %");
}

} // namespace
} // namespace velorix
