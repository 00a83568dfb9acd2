// What the results screen shows: cost tables and headline figures.
#include "results/CostTable.h"

#include "cost/CostTest.h"
#include "results/Headlines.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

#include <limits>

namespace velorix {
namespace {

class ResultsTest : public CostTest {
protected:
    // Headings and all.
    static std::string Shown(const Grid& Table)
    {
        std::string Texts;
        for (int Row = 0; Row < Table.Rows(); ++Row)
            for (int Col = 0; Col < Table.Cols(); ++Col)
                Texts += Table.Text(Row, Col) + (Col + 1 < Table.Cols() ? ": " : "; ");
        return Texts;
    }
};

// By hand: 1 000 000 of pipeline and works, 10 % and then 20 % on top, 5000 of escalation, 145 000 of fees.
TEST_F(ResultsTest, CapitalCostAddsUpRowByRow)
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
    EXPECT_EQ(frmResults.msgAnnualCost.Rows(), 5); // no energy in a gravity system
    EXPECT_EQ(
        Shown(frmResults.msgCost),
        "Description: Amount; Pipeline cost: 700,000; Mechanical cost: 100,000; Electrical cost: 200,000; "
        "Sub total: 1,000,000; Preliminary & General (10%): 100,000; Sub total: 1,100,000; "
        "Contingencies (20%): 220,000; Escalation: 5,000; Sub total: 1,325,000; "
        "Consulting fees (SAACE) 2002): 145,000; Administration and management: 30,000; "
        "Total construction cost: 1,500,000; VAT 14%: 210,000; Total capital cost: 1,710,000; ");
}

TEST_F(ResultsTest, AnnualCostFollowsTheYear)
{
    OperationalCost[2] = 1234.5;
    MaintPipeline[2] = 2.0;
    MaintMechanical[2] = 3.0;
    MaintElectrical[2] = 4.0;
    EnergyCost[2] = 0.125;
    wLife = 3;
    wSystemType = 1;
    wCurrency = 1;
    FillCapitalCostTable();
    frmResults.hsbAnnual.Value = 2;
    ShowAnnualCost();
    EXPECT_EQ(Shown(frmResults.msgAnnualCost),
              "Description: Description: Amount; "
              "Total annual operational cost: Total annual operational cost: $1,234.50; "
              "Total annual maintenance cost: Pipeline: $2.00; "
              "Total annual maintenance cost: Mechanical: $3.00; "
              "Total annual maintenance cost: Electrical: $4.00; "
              "Total annual energy cost: Total annual energy cost: $0.13; ");
    EXPECT_EQ(frmResults.lblAnnual.Caption.Get(), "Year : 2");
    EXPECT_EQ(frmResults.hsbAnnual.Max, 3);
    FillCapitalCostTable();
    EXPECT_EQ(frmResults.lblAnnual.Caption.Get(), "Year : 1");
}

TEST_F(ResultsTest, FigureThatIsNoNumberLeavesItsLabelEmpty)
{
    NpvCost = std::numeric_limits<float>::quiet_NaN();
    NpvIncome = 1250000.0;
    Irr = 12.3456;
    ShowHeadlines();
    EXPECT_EQ(frmResults.lblNPVE.Caption.Get() + frmResults.lblNPVI.Caption.Get(), "R1,250,000");
    EXPECT_EQ(frmResults.lblIRR.Caption.Get(), "IRR = 12.346 %");
}

} // namespace
} // namespace velorix
