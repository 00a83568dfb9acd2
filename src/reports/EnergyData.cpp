// Energy tariffs, their pattern over the day, and how long the pumps run.
#include "base/Text.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/InputReports.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

void PrintTariff(const char* Label, const TextBox& Summer, const TextBox& Winter)
{
    const auto Rate = [](const TextBox& Box) { return CurrencySign() + InFormat(Box, "##0.00") + "/kW"; };
    Printer.PrintCells({{7, Label}, {30, Rate(Summer)}, {55, Rate(Winter)}});
}

// A text for each hour of the day, from 1 to 24.
template <typename HourText>
void PrintHours(const char* Label, HourText TextOf)
{
    Cells Row = {{7, Label}};
    for (int Hour = 1; Hour <= wSummerHour.LastIndex; ++Hour) Row.push_back({12 + 4 * Hour, TextOf(Hour)});
    Printer.PrintCells(Row);
}

// The first letter of a rate class; a class beyond the three has none.
std::string ClassLetter(int Class)
{
    const bool Known = Class >= 0 && Class < static_cast<int>(RateClassNames.size());
    return Known ? std::string(RateClassNames.at(static_cast<std::size_t>(Class)), 1) : "";
}

void PrintPattern()
{
    PrintBold({{7, "Applicable energy cost pattern"}});
    PrintHours("Hour", [](int Hour) { return std::to_string(Hour); });
    PrintHours("Summer", [](int Hour) { return ClassLetter(wSummerHour[Hour]); });
    PrintHours("Winter", [](int Hour) { return ClassLetter(wWinterHour[Hour]); });
    Printer.Print();
    Printer.PrintCells({{7, "Legend:"}});
    Printer.PrintCells({{7, "O - Off-peak hours     S - Standard hours     P - Peak hours"}});
    Printer.Print();
}

} // namespace

void PrintEnergyData()
{
    PrintPageHead();
    Printer.FontSize = 13;
    Printer.Print();
    Printer.FontUnderline = true;
    Printer.PrintCells({{7, "ENERGY DATA: PUMPING SYSTEM"}});
    Printer.Print();
    PrintTitle(6, "Energy details:");

    Printer.FontSize = 12;
    PrintBold({{7, "Tariff"}, {24, "Summer months"}, {46, "Winter months"}});
    PrintTariff("Peak rate:", frmLCC.txtSPeak, frmLCC.txtWPeak);
    PrintTariff("Standard rate:", frmLCC.txtSStandard, frmLCC.txtWStandard);
    PrintTariff("Off-peak rate:", frmLCC.txtSOffpeak, frmLCC.txtWOffpeak);
    Printer.Print();
    Printer.Print();
    PrintPattern();
    Printer.PrintCells({{7, "Pumping hours per day - " + Trim(frmLCC.lblPumpingHours.Caption.Get())}});
    Printer.PrintCells({{7, "Number of summer months - " + frmLCC.lblSummer.Caption.Get() + " months"}});
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
