// Upright and on its side, one frame in two measures.
#include "reports/PageFrame.h"

#include "base/Arithmetic.h"
#include "base/Date.h"
#include "base/Text.h"
#include "base/Version.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "platform/Printer.h"
#include "screens/Lcc.h"
#include "screens/Pictures.h"

#include <span>

namespace velorix {

std::int16_t PageNo = 0;

namespace {

double BodyTop = 0; // where the last page head ended (mm)

constexpr Color HeadBlue = PureBlue;
constexpr double UprightRule = 185; // mm
constexpr double WideRule = 265;

// clang-format off
constexpr const char* UprightDisclaimer[] = {
    "The software program was developed for the convenience of its users.  Although every reasonable effort has been made to ensure that the results are",
    "correct and accurate, the developers assume no responsibility for any results, interpretation thereof or any use made of the results obtained",
    "with this program.  This program is not presented nor is it intended to be used as a complete study and the use of this software program or output",
    "shall be made under the direction of trained engineers exercising their independent judgement regarding the proposed optimized design.",
};
constexpr const char* WideDisclaimer[] = {
    "The software program was developed for the convenience of its users.  Although every reasonable effort has been made to ensure that the results are correct and accurate, the developers assume no",
    "responsibility for any results, interpretation thereof or any use made of the results obtained with this program.  This program is not presented nor is it intended to be used as a complete study",
    "and the use of this software program or output shall be made under the direction of trained engineers exercising their independent judgement regarding the proposed optimized design.",
};
constexpr const char* MakersNotice = "Velorix, life cycle costing of bulk water pipelines";
constexpr const char* MakersContact = "Faults are taken at the project's own list of issues";
// clang-format on

void DrawRule(double Length)
{
    Printer.Line(8, 1, Length);
}

// The page's number, and the program's name in the size and place that follow.
void BeginHead(double TitleSize, int TitleColumn)
{
    PageNo = RoundToInt16(PageNo + 1);
    Printer.FontName = "Times New Roman";
    Printer.FontSize = 12;
    Printer.Print();
    Printer.Print();
    Printer.FontSize = TitleSize;
    Printer.FontBold = true;
    Printer.ForeColor = HeadBlue;
    Printer.FontUnderline = true;
    Printer.Print({Tab{TitleColumn}, "Velorix"});
}

void PrintLogoAndProject(double Size)
{
    Printer.ForeColor = Black;
    Printer.ScaleMode = PaperScale::Millimetres;
    Printer.PaintPicture(picLogo, 15, 5, 20, 20);
    Printer.FontSize = Size;
    Printer.Print();
    Printer.Print({Tab{7}, UpperCase(Trim(wProject))});
    Printer.FontUnderline = false;
}

// What is left of a long name stands on one line; what couldn't be read there well, in small type on lines
// that begin at the same place.
void PrintRest(int Column, const std::string& Rest)
{
    constexpr double SmallType = 8;
    const double Size = Printer.FontSize;
    const Cells Line = {{Column, Rest}};
    if (Printer.SizeThatFits(Size, {&Line, 1}) >= SmallType)
        return Printer.Print({Tab{7}, Tab{Column}, Rest});
    Printer.FontSize = SmallType;
    Printer.PrintWrapped(Tab{1 + RoundToInt32((Column - 1) * Size / SmallType)}, Rest);
    Printer.FontSize = Size;
}

// A name of some length in the second column; what is too long for a line follows on the next.
bool PrintSplit(const char* Caption, int Column, const std::string& Text, int MostCharacters)
{
    const auto [First, Rest] = SplitAfter(Text, MostCharacters);
    Printer.Print({Tab{7}, Caption, Tab{Column}, std::string(First)});
    if (!Rest.empty()) PrintRest(Column, std::string(Rest));
    return !Rest.empty();
}

// The date in words; a text that is no date stands as it is.
std::string ProjectDate()
{
    if (const auto Found = ParseDate(wDate)) wDate = LongDate(*Found);
    return Trim(wDate);
}

void EndHead(int PageColumn, double RuleLength)
{
    Printer.FontSize = 8;
    Printer.Print({Tab{10}, "Printed: " + LongDate(System().Today()), Tab{PageColumn}, "Page ",
                   std::to_string(PageNo)});
    DrawRule(RuleLength);
    BodyTop = Printer.CurrentY();
}

void PrintFoot(std::span<const char* const> Disclaimer, double RuleLength)
{
    Printer.FontName = "Times New Roman";
    Printer.FontSize = 10;
    Printer.FontBold = false;
    DrawRule(RuleLength);
    Printer.FontSize = 6;
    Printer.Print();
    Printer.FontSize = 8;
    Printer.FontBold = true;
    for (const char* Each : Disclaimer) Printer.Print({Tab{10}, Each});
    Printer.FontSize = 6;
    Printer.Print();
    Printer.FontSize = 9;
    Printer.ForeColor = HeadBlue;
    Printer.Print({Tab{8}, "Velorix : ", std::string("VERSION: ") + ProgramVersion()});
    for (const char* Each : {MakersNotice, MakersContact}) Printer.Print({Tab{8}, Each});
    Printer.ForeColor = Black;
    DrawRule(RuleLength);
    Printer.EndDoc();
}

} // namespace

void PrintPageHead()
{
    Printer.Orientation = PaperOrientation::Portrait; // also behind a page on its side
    constexpr int MostCharacters = 70;
    BeginHead(21, 24);
    Printer.FontSize = 16;
    Printer.Print({Tab{33}, ""});
    PrintLogoAndProject(13);
    Printer.Print();
    Printer.Print({Tab{7}, "Designer : ", Tab{22}, Trim(wDesigner)});
    if (!PrintSplit("Filename :", 22, Trim(FileName), MostCharacters)) Printer.Print();
    Printer.Print({Tab{7}, "Date : ", Tab{22}, ProjectDate()});
    const std::string Description = Trim(wDescription);
    const bool Fits = CharacterCount(Description) <= MostCharacters;
    PrintSplit(Fits ? "Description : " : "Description :", 22, Description, MostCharacters);
    if (Fits) Printer.Print();
    EndHead(153, UprightRule);
}

void PrintPageFoot()
{
    PrintFoot(UprightDisclaimer, UprightRule);
}

void FitBodyAbove(double Y)
{
    Printer.FitBetween(BodyTop, Y);
}

void PrintPageFootAt(double Y)
{
    FitBodyAbove(Y);
    Printer.SetCurrentY(Y);
    PrintPageFoot();
}

void PrintGraphPageHead()
{
    constexpr double LowestEnd = 56.25; // mm, with a file name on two lines; title and picture follow
    Printer.Orientation = PaperOrientation::Landscape;
    BeginHead(16, 55);
    Printer.Print();
    PrintLogoAndProject(12);
    const double Names = Printer.CurrentY();
    Printer.Print({Tab{7}, "Designer : ", Tab{21}, Trim(wDesigner)});
    Printer.Print({Tab{7}, "Date : ", Tab{21}, ProjectDate()});
    PrintSplit("Filename :", 21, Trim(frmLCC.lblFileName.Caption.Get()), 100);
    EndHead(215, WideRule);
    Printer.FitBetween(Names, LowestEnd); // a file name may take several lines
}

void PrintGraphPageFoot()
{
    PrintFoot(WideDisclaimer, WideRule);
}

void PrintRule()
{
    DrawRule(UprightRule);
}

void ResetPageFrame()
{
    PageNo = 0;
    BodyTop = 0;
}

} // namespace velorix
