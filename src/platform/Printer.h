// The printer: lines of items set by tabs, rules and pictures on A4 pages, each page a print document.
#pragma once

#include "platform/Color.h"
#include "platform/PrintedPage.h"

#include <initializer_list>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace velorix {

// Column n of a line, from 1, in average character widths of the font in force.
struct Tab {
    int Column;
};
using PrintItem = std::variant<Tab, std::string>;

// A row of a table: texts at their columns, from left to right.
struct Cell {
    int Column;
    std::string Text;
};
using Cells = std::vector<Cell>;

enum class PaperScale { Twips = 1, Millimetres = 6 };
enum class PaperOrientation { Portrait = 1, Landscape = 2 };

constexpr double TwipsPerMillimetre = 1440 / 25.4;

class PagePrinter {
public:
    // State that holds until it is changed, from page to page.
    std::string FontName;
    double FontSize = 8;
    bool FontBold = false;
    bool FontUnderline = false;
    Color ForeColor = Black;
    PaperScale ScaleMode = PaperScale::Twips; // unit of the positions below
    PaperOrientation Orientation = PaperOrientation::Portrait;

    // What the pages from here on belong to.
    void BeginSection(const std::string& Title);

    // Where the next text begins, from the top of the page.
    double CurrentY() const { return PenY / Unit(); }
    void SetCurrentY(double Y) { PenY = Y * Unit(); }

    // Writes the items from the current position on and ends the line. A text behind a tab that has been
    // passed already goes to the next line, one that would leave the paper is set smaller; no items make an
    // empty line of the height of the font. Nothing breaks at the foot of the paper.
    void Print(std::initializer_list<PrintItem> Items = {}) { Print(std::span(Items.begin(), Items.size())); }
    void Print(std::span<const PrintItem> Items);

    // Writes a row as one line, whatever its texts: one that would run into the next column is set smaller.
    void PrintCells(const Cells& Row);

    // Writes a text from the column on, on as many lines as it takes.
    void PrintWrapped(Tab Target, const std::string& Text);

    // The size, the wanted one at the most, in which the last text of each row ends on the paper.
    double SizeThatFits(double Wanted, std::span<const Cells> Rows) const;

    // Moves all that stands below Top together, and sets it smaller, when the current position is beyond
    // Bottom, so that it comes to stand there.
    void FitBetween(double Top, double Bottom);

    // A level line that begins Right of and Below the current position, which moves to its end.
    void Line(double Right, double Below, double Length);

    void PaintPicture(const StoredPicture& Picture, double X, double Y); // at its natural size
    void PaintPicture(const StoredPicture& Picture, double X, double Y, double Width, double Height);

    // The drawing as large as the place allows without distortion, in its middle.
    void PaintPicture(const DisplayList& Drawing, double X, double Y, double Width, double Height);

    // A filled box with a corner at (X, Y).
    void FillBox(double X, double Y, double Width, double Height, Color Fill);

    // Hands the page to the printer and begins the next one. Throws what Platform::PrintPage throws.
    void EndDoc();

private:
    bool IsUpright() const { return Orientation == PaperOrientation::Portrait; }
    double Unit() const { return ScaleMode == PaperScale::Millimetres ? TwipsPerMillimetre : 1; }
    int ToTwips(double Length) const;
    Font InForce() const { return {FontName, FontSize, FontBold, FontUnderline}; }
    void Move(Tab Target, const Font& Face);
    void Write(const std::string& Text, const Font& Face, double End);
    double EndOfCell(const std::string& Text, double Next) const;
    double RightEdge() const;
    void EndLine(const Font& Face);

    PrintedPage Page;
    std::string Section;
    bool IsSectionsFirst = false; // the page
    double PenX = 0;              // twips
    double PenY = 0;
};

inline PagePrinter Printer;

// A fresh page, and the state of the program's start.
void ResetPrinter();

} // namespace velorix
