// Lines and texts of the reports.
#include "reports/ReportPage.h"

#include "base/Failure.h"
#include "base/Format.h"
#include "base/NumberText.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "reports/PageFrame.h"

namespace velorix {

void UseType(const char* Name, double Size)
{
    Printer.FontName = Name;
    Printer.FontSize = Size;
}

void PrintTitle(int Column, const std::string& Title)
{
    Printer.FontUnderline = true;
    Printer.PrintCells({{Column, Title}});
    Printer.FontUnderline = false;
}

void BeginTitledPage(const std::string& Title)
{
    PrintPageHead();
    Printer.FontSize = 13;
    Printer.Print();
    PrintTitle(7, Title);
    Printer.Print();
}

void PrintBold(const Cells& Row)
{
    Printer.FontBold = true;
    Printer.PrintCells(Row);
    Printer.FontBold = false;
}

void PrintTableHeading(std::span<const Cells> Rows, bool EmptyLineAbove)
{
    PrintRule();
    for (const Cells& Each : Rows) Printer.PrintCells(Each);
    if (EmptyLineAbove) Printer.Print();
    PrintRule();
    Printer.Print();
}

bool PageBreaks::IsBehind(int Row) const
{
    return Row >= First && Row <= Last && (Row - First) % Every == 0;
}

Cells RowAt(std::span<const int> Columns, const std::vector<std::string>& Texts)
{
    Cells Row;
    for (std::size_t Index = 0; Index < Texts.size(); ++Index) Row.push_back({Columns[Index], Texts[Index]});
    return Row;
}

std::string InFormat(const TextBox& Box, const char* Pattern)
{
    try {
        return Format(ParseDouble(Box.Text.Get()), Pattern);
    } catch (const Failure&) { // an end of its own: the text as it was typed
        return Box.Text;
    }
}

std::string KindOfSystem()
{
    return IsPumping() ? "PUMPING SYSTEM" : "GRAVITY SYSTEM";
}

} // namespace velorix
