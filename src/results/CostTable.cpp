// Rows of the cost tables.
#include "results/CostTable.h"

#include "base/Arithmetic.h"
#include "base/Format.h"
#include "cost/CapitalCost.h"
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "screens/Results.h"

namespace velorix {
namespace {

void PutAmount(int Row, const std::string& Name, Single Amount)
{
    frmResults.msgCost.SetText(Row, 0, Name);
    frmResults.msgCost.SetText(Row, 1, Format(Amount, "###,###,###,###,##0"));
}

void FillCapitalCosts()
{
    ClearArithmeticFlags(); // those of the toolkit, when the table is filled again after an analysis
    const Single Pipeline = Checked(LayingCost + PipeSupplyCost);
    const Single Works = Checked(LayingCost + PipeSupplyCost + wElectrical + wMechanical);
    const Single Preliminary = Checked(wPG / 100.0 * Works);
    const Single WithPreliminary = Checked((1.0 + wPG / 100.0) * Works);
    const Single Contingency = Checked(wContingencies / 100.0 * WithPreliminary);
    const Single Escalated = Checked(WithPreliminary + Contingency + EscalationAmount);
    const Single Construction = Checked(Escalated + ConsultingFees + SupervisionCost);

    frmResults.msgCost.SetText(0, 0, "Description");
    frmResults.msgCost.SetText(0, 1, "Amount");
    PutAmount(1, "Pipeline cost", Pipeline);
    PutAmount(2, "Mechanical cost", wMechanical);
    PutAmount(3, "Electrical cost", wElectrical);
    PutAmount(4, "Sub total", Works);
    PutAmount(5, "Preliminary & General (" + Format(wPG, "#0") + "%)", Preliminary);
    PutAmount(6, "Sub total", WithPreliminary);
    PutAmount(7, "Contingencies (" + Format(wContingencies, "#0") + "%)", Contingency);
    PutAmount(8, "Escalation", EscalationAmount);
    PutAmount(9, "Sub total", Escalated);
    PutAmount(10, "Consulting fees (SAACE) 2002)", ConsultingFees);
    PutAmount(11, "Administration and management", SupervisionCost);
    PutAmount(12, "Total construction cost", Construction);
    PutAmount(13, "VAT 14%", Checked(Tax * Construction));
    PutAmount(14, "Total capital cost", Checked(TaxFactor * Construction));
}

void PutAnnualRow(int Row, const std::string& Group, const std::string& Part)
{
    frmResults.msgAnnualCost.SetText(Row, 0, Group);
    frmResults.msgAnnualCost.SetText(Row, 1, Part);
}

void LayOutAnnualCosts()
{
    const bool Pumping = IsPumping();
    frmResults.msgAnnualCost.SetRows(Pumping ? 6 : 5);
    PutAnnualRow(0, "Description", "Description");
    frmResults.msgAnnualCost.SetText(0, 2, "Amount");
    PutAnnualRow(1, "Total annual operational cost", "Total annual operational cost");
    PutAnnualRow(2, "Total annual maintenance cost", "Pipeline");
    PutAnnualRow(3, "Total annual maintenance cost", "Mechanical");
    PutAnnualRow(4, "Total annual maintenance cost", "Electrical");
    if (Pumping) PutAnnualRow(5, "Total annual energy cost", "Total annual energy cost");

    frmResults.hsbAnnual.Max = wLife;
    frmResults.hsbAnnual.Value = 1;
    ShowAnnualCost();
}

void PutAnnualAmount(int Row, Single Amount)
{
    frmResults.msgAnnualCost.SetText(Row, 2, CurrencySign() + Format(Amount, "###,###,###,##0.00"));
}

} // namespace

void FillCapitalCostTable()
{
    FillCapitalCosts();
    LayOutAnnualCosts();
}

void ShowAnnualCost()
{
    const int Year = frmResults.hsbAnnual.Value;
    PutAnnualAmount(1, OperationalCost[Year]);
    PutAnnualAmount(2, MaintPipeline[Year]);
    PutAnnualAmount(3, MaintMechanical[Year]);
    PutAnnualAmount(4, MaintElectrical[Year]);
    if (IsPumping()) PutAnnualAmount(5, EnergyCost[Year]);
    frmResults.lblAnnual.Caption = "Year : " + std::to_string(Year);
}

} // namespace velorix
