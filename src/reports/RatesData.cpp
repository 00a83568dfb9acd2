// Capital works, maintenance, operation, and the rates by which money grows.
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/InputReports.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "results/FlowCaptions.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

void PrintCapitalCost()
{
    const auto Cost = [](const TextBox& Box) { return CurrencySign() + InFormat(Box, "###,###,###,##0"); };
    PrintBold({{7, "Capital cost"}});
    Printer.PrintCells({{8, "Mechanical works - "}, {35, Cost(frmLCC.txtMechanical)}});
    Printer.PrintCells({{8, "Electrical works - "}, {35, Cost(frmLCC.txtElectrical)}});
    Printer.Print();
}

void PrintMaintenance()
{
    PrintBold({{7, "Maintenance cost"}});
    Printer.PrintCells({{8, "Pipeline -"}, {35, frmLCC.lblMPipeline.Caption}});
    Printer.PrintCells({{8, "Mechanical works -"}, {35, frmLCC.lblMMechanical.Caption}});
    Printer.PrintCells({{8, "Electrical works -"}, {35, frmLCC.lblMElectrical.Caption}});
    Printer.Print();
}

// The rows below a table's headings.
void PrintRows(const Grid& Table, std::span<const int> Columns)
{
    for (int Row = 1; Row < Table.Rows(); ++Row) {
        Cells Texts;
        for (int Col = 0; Col < Table.Cols(); ++Col)
            Texts.push_back({Columns[static_cast<std::size_t>(Col)], Table.Text(Row, Col)});
        Printer.PrintCells(Texts);
    }
}

void PrintOperation()
{
    constexpr int StaffColumns[] = {8, 32, 55};
    constexpr int ExpenseColumns[] = {8, 40};
    const std::string Sign = InBrackets(CurrencySign());
    PrintBold({{7, "Operational cost"}});
    Printer.PrintCells({{7, "Waterboard/Municipality (owner) staff expenses"}});
    Printer.PrintCells({{7, "Staff"}, {25, "Annual package " + Sign}, {50, "Percentage of time (%)"}});
    PrintRows(frmLCC.msgOperational, StaffColumns);
    Printer.PrintCells({{7, "Other operational expenses"}});
    Printer.PrintCells({{7, "Description of expenses"}, {35, "Annual ammount " + Sign}});
    PrintRows(frmLCC.msgOtherOperational, ExpenseColumns);
    Printer.Print();
}

void PrintRates()
{
    const auto Percent = [](const TextBox& Box) { return Box.Text.Get() + " %"; };
    const std::string Tariff =
        CurrencySign() + InFormat(frmLCC.txtWaterSales, "0.00") + frmLCC.comWaterSalesUnits.Text();
    PrintBold({{7, "Rates"}, {52, "Income"}});
    Printer.PrintCells({{8, "Escalation rate - "},
                        {35, Percent(frmLCC.txtEscalation)},
                        {56, "Current water sales unit tariff - "},
                        {90, Tariff}});
    Printer.PrintCells({{8, "Discount rate - "},
                        {35, Percent(frmLCC.txtDiscountRate)},
                        {56, "Water tariff annual increase - "},
                        {90, Percent(frmLCC.txtWaterIncrease)}});
    if (IsPumping())
        Printer.PrintCells({{8, "Energy escalation rate - "}, {35, Percent(frmLCC.txtEnergyEscalation)}});
}

} // namespace

void PrintRatesData()
{
    PrintPageHead();
    Printer.FontSize = 12;
    Printer.Print();
    PrintTitle(7, "RATES AND SALES DATA: " + KindOfSystem());
    PrintCapitalCost();
    PrintMaintenance();
    PrintOperation();
    PrintRates();
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
