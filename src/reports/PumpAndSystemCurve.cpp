// The duty plot with its legend, and the table of the duty points.
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "reports/ResultReports.h"
#include "screens/Pictures.h"
#include "screens/Results.h"

namespace velorix {
namespace {

constexpr int Columns[] = {7, 15, 30, 45}; // those of the grid
constexpr PageBreaks Breaks = {27, 27, 459};
constexpr int HeadingRows = 2;

Cells DutyRow(int Row)
{
    Cells Texts;
    for (int Col = 0; Col < frmResults.msgDuty.Cols(); ++Col)
        Texts.push_back({Columns[Col], frmResults.msgDuty.Text(Row, Col)});
    return Texts;
}

void PrintCurves()
{
    BeginTitledPage("RESULTS: PUMP & SYSTEM CURVE");
    Printer.FontSize = 11;
    Printer.PrintCells({{8, frmResults.lblDutyYear.Caption}});
    FitBodyAbove(100);
    Printer.PaintPicture(frmResults.picDuty.Image(), 16, 100, 170, 90);
    Printer.FontSize = 9;
    Printer.SetCurrentY(200);
    PrintTitle(8, "LEGEND:");
    Printer.Print();
    Printer.PaintPicture(imgPumpCurve, 15, 208);
    Printer.PaintPicture(imgEfficiencyCurve, 65, 208);
    Printer.PrintCells({{23, "- Pump curve"}, {60, "- System curve"}});
    PrintPageFootAt(BreakFoot);
}

void BeginDutyPage()
{
    Printer.FontBold = false;
    BeginTitledPage("RESULTS: DUTY POINTS");
    UseType("Courier New", 10);
    const Cells Heading[HeadingRows] = {DutyRow(0), DutyRow(1)};
    PrintTableHeading(Heading, true);
    Printer.FontBold = false;
}

} // namespace

void PrintPumpAndSystemCurve()
{
    Printer.FontBold = false;
    PrintCurves();
    BeginDutyPage();
    for (int Row = HeadingRows; Row < frmResults.msgDuty.Rows(); ++Row) {
        Printer.PrintCells(DutyRow(Row));
        if (!Breaks.IsBehind(Row)) continue;
        PrintPageFootAt(BreakFoot);
        BeginDutyPage();
    }
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
