// Capital cost with its additions, present values, and the annual cost of the first year.
#include "cost/CapitalCost.h"
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "reports/ResultReports.h"
#include "results/FlowCaptions.h"

namespace velorix {
namespace {

constexpr const char* CapitalPattern = "###,###,###,###,##0";
constexpr const char* PresentValuePattern = "#,###,###,###,###,000";
constexpr const char* AnnualPattern = "###,###,##0";

// Behind the currency sign; nothing for an amount that is no number.
std::string Amount(Single Value, const char* Pattern)
{
    const std::string Text = FigureText(Value, Pattern);
    return Text.empty() ? Text : CurrencySign() + Text;
}

// In 32 bits, as the table on the screen has it.
void PrintCost(const std::string& Label, Single Cost)
{
    Printer.PrintCells({{7, Label}, {50, Amount(Cost, CapitalPattern)}});
}

void PrintCapitalCost()
{
    const Single Works = LayingCost + PipeSupplyCost + wMechanical + wElectrical;
    const Single WithPreliminary = (wPG / 100.0 + 1.0) * Works;
    const Single Escalated = (wContingencies / 100.0 + 1.0) * WithPreliminary + EscalationAmount;
    const Single Construction = ConsultingFees + Escalated + SupervisionCost;

    PrintBold({{6, "Description"}});
    PrintCost("Pipeline cost", LayingCost + PipeSupplyCost);
    PrintCost("Mechanical cost", wMechanical);
    PrintCost("Electrical cost", wElectrical);
    PrintCost("Sub total", Works);
    PrintCost("Preliminary & General (" + FigureText(wPG, "#0") + "%)", wPG / 100.0 * Works);
    PrintCost("Sub total", WithPreliminary);
    PrintCost("Contingencies (" + FigureText(wContingencies, "#0") + "%)",
              wContingencies / 100.0 * WithPreliminary);
    PrintCost("Escalation", EscalationAmount);
    PrintCost("Sub total", Escalated);
    PrintCost("Consulting fees (SAACE 2002)", ConsultingFees);
    PrintCost("Administration and management", SupervisionCost);
    PrintCost("Total construction cost", Construction);
    PrintCost("VAT 14%", Construction * Tax);
    PrintBold({{6, "Total capital cost"}, {47, Amount(Construction * TaxFactor, CapitalPattern)}});
}

void PrintReturn()
{
    Printer.Print();
    Printer.PrintCells({{7, "Design life:"}, {30, std::to_string(wLife) + " years"}});
    PrintBold({{6, "Net Present Value"}});
    Printer.PrintCells({{7, "Expenditure:"}, {30, Amount(NpvCost, PresentValuePattern)}});
    Printer.PrintCells({{7, "Income:"}, {30, Amount(NpvIncome, PresentValuePattern)}});
    PrintBold({{6, "Internal Rate of Return"}});
    Printer.PrintCells({{7, "IRR:"}, {30, FigureWithUnit(Irr, "%")}});
}

// The amount of the first year, and the rate by which it rises.
void PrintAnnual(const char* Label, const ByYear& Series, Single Rate)
{
    Printer.PrintCells({{7, Label},
                        {45, Amount(Series[1], AnnualPattern) + "  (Escalation rate is " +
                                 FigureText(Rate, "#0.00") + "%)"}});
}

void PrintAnnualCost()
{
    Printer.Print();
    PrintBold({{6, "Annual cost"}});
    PrintAnnual("Operational cost", OperationalCost, wEscalation);
    PrintAnnual("Maintenance cost - Pipeline", MaintPipeline, wEscalation);
    PrintAnnual("Maintenance cost - Mechanical", MaintMechanical, wEscalation);
    PrintAnnual("Maintenance cost - Electrical", MaintElectrical, wEscalation);
    PrintAnnual("Energy cost", EnergyCost, wEnergyEscalation);
}

} // namespace

void PrintCostAnalysis()
{
    PrintPageHead();
    Printer.FontSize = 13;
    PrintTitle(40, "COST ANALYSIS");
    Printer.FontSize = 12;
    Printer.Print();
    PrintCapitalCost();
    PrintReturn();
    PrintAnnualCost();
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
