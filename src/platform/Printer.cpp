// Positions are kept in twips, whatever the scale.
#include "platform/Printer.h"

#include "base/Arithmetic.h"
#include "platform/Platform.h"
#include "platform/TextMetrics.h"

#include <utility>

namespace velorix {
namespace {

// A4
constexpr double PaperWidth = 210;
constexpr double PaperHeight = 297;
constexpr double RightMargin = 8;

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

} // namespace

void PagePrinter::Print(std::span<const PrintItem> Items)
{
    const Font Face = InForce();
    for (const PrintItem& Each : Items) {
        if (const auto* const Target = std::get_if<Tab>(&Each))
            Move(*Target, Face);
        else
            Write(std::get<std::string>(Each), Face);
    }
    EndLine(Face);
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
    const double X = (Target.Column - 1) * AverageCharacterWidth(Face);
    if (X < PenX) EndLine(Face);
    PenX = X;
}

// A text that would leave the paper is set smaller, so that no word is lost.
void PagePrinter::Write(const std::string& Text, Font Face)
{
    if (Text.empty()) return;
    double Width = System().TextWidth(Text, Face);
    const double Room = Millimetres(IsUpright() ? PaperWidth : PaperHeight) - Millimetres(RightMargin) - PenX;
    if (Width > Room && Room > 0) {
        Face.Size *= Room / Width;
        Width = Room;
    }
    Page.Print.Items.push_back(TextItem{PenX, PenY, Width, OnOneLine(Text), Face, ForeColor});
    PenX += Width;
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
