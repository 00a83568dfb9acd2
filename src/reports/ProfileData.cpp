// The pipeline node by node, and a page of what holds for all of it.
#include "base/NumberText.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/InputReports.h"
#include "reports/PageFrame.h"
#include "reports/ReportPage.h"
#include "results/FlowCaptions.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

constexpr int Columns[] = {5, 11, 22, 35, 45, 56, 65, 75}; // those of the grid
constexpr PageBreaks Breaks = {27, 27, 486};

std::string Title()
{
    return "PIPELINE PROFILE DATA: " + KindOfSystem();
}

void BeginProfilePage()
{
    BeginTitledPage(Title());
    UseType("Courier New", 10);
    const auto UnitOf = [](const ComboBox& Units) { return InBrackets(Units.Text()); };
    const Cells Heading[] = {
        RowAt(Columns,
              {"Node", "Elevation", "Accumulated", "Pipe", "Wall", "Pipe", "Secondary", "Description"}),
        {{5, "nr"}, {22, "length"}, {35, "diameter"}, {45, "thickness"}, {56, "cost/"}, {65, "losses"}},
        {{11, UnitOf(frmLCC.comElevationUnits)},
         {22, UnitOf(frmLCC.comLengthUnits)},
         {35, UnitOf(frmLCC.comDiameterUnits)},
         {46, UnitOf(frmLCC.comWallThicknessUnits)},
         {56, "metre"}}};
    PrintTableHeading(Heading, true);
    Printer.FontBold = false;
}

void PrintNodes()
{
    for (int Row = 1; Row < frmLCC.msgProfile.Rows(); ++Row) {
        Cells Node;
        for (int Col = 0; Col < frmLCC.msgProfile.Cols(); ++Col)
            Node.push_back({Columns[Col], frmLCC.msgProfile.Text(Row, Col)});
        Printer.PrintCells(Node);
        if (!Breaks.IsBehind(Row)) continue;
        PrintPageFootAt(BreakFoot);
        BeginProfilePage();
    }
}

void PrintMeasure(const char* Label, const TextBox& Box, const std::string& Unit)
{
    Printer.PrintCells({{8, Label}, {40, Box.Text.Get() + " " + Unit}});
}

void PrintPipe()
{
    PrintBold({{7, "Pipline characteristics"}});
    if (frmLCC.optCopon.Value)
        Printer.PrintCells({{8, "Lining system - Copon coated"}});
    else
        PrintMeasure("Lining system - Cement mortar:", frmLCC.txtLiningThickness,
                     frmLCC.comLiningThicknessUnits.Text());
    PrintMeasure("Roughness of new pipe (Ks):", frmLCC.txtKsNew, frmLCC.comKsNewUnits.Text());
    PrintMeasure("Roughness of old pipe (Ks):", frmLCC.txtKsOld, frmLCC.comKsOldUnits.Text());
    PrintMeasure("Roughness deterioration years:", frmLCC.txtKsOldYears, "years");
    Printer.Print();
}

// What the laying table of the input screen calls the value of a row.
const std::string& LayingLabel(int Row)
{
    return frmLCC.msgLaying.Text(Row, 0);
}

void PrintLaying()
{
    const std::string Length = UsesUSUnits() ? "ft" : "m";
    const auto Print = [](const std::string& Label, const std::string& Value) {
        Printer.PrintCells({{8, Label}, {40, Value}});
    };
    PrintBold({{7, "Pipe laying conditions"}});
    Print("Laying (incl joining)", CurrencySign() + GeneralText(wLaying[1]) + "/" + Length);
    for (int Rate = 2; Rate <= 8; ++Rate)
        Print(LayingLabel(Rate), CurrencySign() + GeneralText(wLaying[Rate]) + "/" + Length + "³");
    Printer.Print();

    constexpr int HeadingRows = 2; // of the laying table, between the rates and the conditions
    PrintBold({{7, "Anticipated laying conditions"}});
    Printer.PrintCells({{8, "Description"}, {35, "Percentage expected"}});
    for (int Part = 9; Part <= 11; ++Part)
        Print(LayingLabel(Part + HeadingRows), GeneralText(wLaying[Part]) + "%");
    Print("Required cover", GeneralText(wLaying[12]) + " " + Length);
    Print("Excavation lower than pipe", GeneralText(wLaying[13]) + " " + Length);
}

} // namespace

void PrintProfileData()
{
    BeginProfilePage();
    PrintNodes();
    PrintPageFootAt(LastFoot);
    BeginTitledPage(Title());
    PrintPipe();
    PrintLaying();
    PrintPageFootAt(LastFoot);
}

} // namespace velorix
