// Positions are kept in twips, whatever the scale.
#include "platform/Printer.h"

#include "base/Arithmetic.h"
#include "base/Text.h"
#include "platform/Platform.h"
#include "platform/TextMetrics.h"

#include <algorithm>
#include <utility>

namespace velorix {
namespace {

// A4
constexpr double PaperWidth = 210;
constexpr double PaperHeight = 297;
constexpr double RightMargin = 8;

// The part of a line's height above the line that the letters stand on.
constexpr double AboveBaseline = 0.76;

int Millimetres(double Length)
{
    return RoundToInt32(Length * TwipsPerMillimetre);
}

// A text that was typed in several lines, such as the description of a project.
std::string OnOneLine(std::string Text)
{
    for (char& Each : Text)
        if (Each == '\r' || Each == '\n' || Each == '\t') Each = ' ';
    return Text;
}

double ColumnStart(int Column, const Font& Face)
{
    return (Column - 1) * AverageCharacterWidth(Face);
}

// How many bytes of the text a line of that width takes: up to a blank where one stands, one character at
// the least.
std::size_t BytesThatFit(const std::string& Text, double Width, const Font& Face)
{
    std::size_t Fitting = 0;
    std::size_t AtBlank = 0;
    for (std::size_t Next = 1; Next <= Text.size(); ++Next) {
        if (Next < Text.size() && !StartsCharacter(Text[Next])) continue;
        if (Fitting > 0 && System().TextWidth(Text.substr(0, Next), Face) > Width)
            return AtBlank > 0 ? AtBlank : Fitting;
        Fitting = Next;
        if (Next < Text.size() && Text[Next] == ' ') AtBlank = Next;
    }
    return Fitting;
}

} // namespace

void PagePrinter::BeginSection(const std::string& Title)
{
    Section = Title;
    IsSectionsFirst = true;
}

void PagePrinter::Print(std::span<const PrintItem> Items)
{
    const Font Face = InForce();
    for (const PrintItem& Each : Items) {
        if (const auto* const Target = std::get_if<Tab>(&Each))
            Move(*Target, Face);
        else
            Write(std::get<std::string>(Each), Face, RightEdge());
    }
    EndLine(Face);
}

void PagePrinter::PrintCells(const Cells& Row)
{
    const Font Face = InForce();
    for (std::size_t Index = 0; Index < Row.size(); ++Index) {
        const auto& [Column, Text] = Row[Index];
        Move(Tab{Column}, Face);
        const bool Last = Index + 1 == Row.size();
        Write(Text, Face, Last ? RightEdge() : EndOfCell(Text, ColumnStart(Row[Index + 1].Column, Face)));
    }
    EndLine(Face);
}

void PagePrinter::PrintWrapped(Tab Target, const std::string& Text)
{
    const Font Face = InForce();
    const double Width = RightEdge() - ColumnStart(Target.Column, Face);
    for (std::string Rest = Trim(OnOneLine(Text)); !Rest.empty();) {
        const std::size_t Bytes = BytesThatFit(Rest, Width, Face);
        Print({Target, Rest.substr(0, Bytes)});
        Rest = Trim(std::string_view(Rest).substr(Bytes));
    }
}

double PagePrinter::SizeThatFits(double Wanted, std::span<const Cells> Rows) const
{
    Font Face = InForce();
    Face.Size = Wanted;
    double Reached = 0;
    for (const Cells& Each : Rows)
        Reached = std::max(Reached, ColumnStart(Each.back().Column, Face) +
                                        System().TextWidth(Each.back().Text, Face));
    return Reached > RightEdge() ? Wanted * RightEdge() / Reached : Wanted;
}

void PagePrinter::FitBetween(double Top, double Bottom)
{
    const double Start = Top * Unit();
    const double End = Bottom * Unit();
    if (PenY <= End) return;
    const double Scale = (End - Start) / (PenY - Start);
    const auto Moved = [&](double Y) { return Start + (Y - Start) * Scale; };
    for (DisplayItem& Each : Page.Print.Items) {
        if (auto* const Text = std::get_if<TextItem>(&Each); Text && Text->Y >= Start) {
            Text->Y = Moved(Text->Y);
            Text->Width *= Scale;
            Text->Face.Size *= Scale;
        } else if (auto* const Rule = std::get_if<LineItem>(&Each); Rule && Rule->Y1 >= Start) {
            Rule->Y1 = Rule->Y2 = RoundToInt32(Moved(Rule->Y1));
        }
    }
    PenY = End;
}

void PagePrinter::Line(double Right, double Below, double Length)
{
    const double X = PenX + Right * Unit();
    PenY += Below * Unit();
    PenX = X + Length * Unit();
    Page.Print.Items.push_back(LineItem{RoundToInt32(X), RoundToInt32(PenY), RoundToInt32(PenX),
                                        RoundToInt32(PenY), ForeColor, 1, false});
}

void PagePrinter::PaintPicture(const StoredPicture& Picture, double X, double Y)
{
    Page.Print.Items.push_back(
        PictureItem{ToTwips(X), ToTwips(Y), Picture.Width, Picture.Height, Picture.Name});
}

void PagePrinter::PaintPicture(const StoredPicture& Picture, double X, double Y, double Width, double Height)
{
    Page.Print.Items.push_back(
        PictureItem{ToTwips(X), ToTwips(Y), ToTwips(Width), ToTwips(Height), Picture.Name});
}

void PagePrinter::PaintPicture(const DisplayList& Drawing, double X, double Y, double Width, double Height)
{
    Page.Drawings.push_back({X * Unit(), Y * Unit(), Width * Unit(), Height * Unit(), Drawing});
}

void PagePrinter::FillBox(double X, double Y, double Width, double Height, Color Fill)
{
    Page.Print.Items.push_back(
        BoxItem{ToTwips(X), ToTwips(Y), ToTwips(X + Width), ToTwips(Y + Height), Fill});
}

void PagePrinter::EndDoc()
{
    Page.Print.Width = Millimetres(IsUpright() ? PaperWidth : PaperHeight);
    Page.Print.Height = Millimetres(IsUpright() ? PaperHeight : PaperWidth);
    Page.Section = Section;
    Page.BeginsSection = std::exchange(IsSectionsFirst, false);
    const PrintedPage Ended = std::exchange(Page, {});
    PenX = PenY = 0;
    System().PrintPage(Ended);
}

int PagePrinter::ToTwips(double Length) const
{
    return RoundToInt32(Length * Unit());
}

void PagePrinter::Move(Tab Target, const Font& Face)
{
    const double X = ColumnStart(Target.Column, Face);
    if (X < PenX) EndLine(Face);
    PenX = X;
}

// A text that would reach beyond the end is set smaller, so that no word is lost.
void PagePrinter::Write(const std::string& Text, const Font& Face, double End)
{
    if (Text.empty()) return;
    const std::string Written = OnOneLine(Text);
    Font Fitting = Face;
    double Width = System().TextWidth(Written, Face);
    double Y = PenY;
    if (const double Room = End - PenX; Width > Room && Room > 0) {
        Width = Room;
        const double Ink = System().TextWidth(std::string(TrimmedRight(Written)), Face);
        Fitting.Size *= std::min(1.0, Room / Ink);
        Y += AboveBaseline * (System().TextHeight(Face) - System().TextHeight(Fitting));
    }
    Page.Print.Items.push_back(TextItem{PenX, Y, Width, Written, Fitting, ForeColor});
    PenX += Width;
}

// A text may come close to the next column; one that would run into it is set clear of it.
double PagePrinter::EndOfCell(const std::string& Text, double Next) const
{
    constexpr double Least = 0.3; // average characters
    constexpr double Clear = 0.9;
    const Font Face = InForce();
    const double Ink = System().TextWidth(std::string(TrimmedRight(OnOneLine(Text))), Face);
    const double Character = AverageCharacterWidth(Face);
    const bool Fits = PenX + Ink <= Next - Least * Character;
    return Next - (Fits ? Least : Clear) * Character;
}

double PagePrinter::RightEdge() const
{
    return Millimetres(IsUpright() ? PaperWidth : PaperHeight) - Millimetres(RightMargin);
}

void PagePrinter::EndLine(const Font& Face)
{
    PenX = 0;
    PenY += System().TextHeight(Face);
}

void ResetPrinter()
{
    Printer = {};
}

} // namespace velorix
