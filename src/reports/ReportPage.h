// What the text reports have in common: titles, bold lines, tables with their page breaks, texts of figures.
#pragma once

#include "platform/Controls.h"
#include "platform/Printer.h"

#include <span>
#include <string>
#include <vector>

namespace velorix {

// Where the foot of a report's last page stands, and that of a page that another one follows (mm).
constexpr double LastFoot = 245;
constexpr double BreakFoot = 240;

void UseType(const char* Name, double Size);

// The title of a page, underlined.
void PrintTitle(int Column, const std::string& Title);

// The head of a page and its title between two empty lines.
void BeginTitledPage(const std::string& Title);

void PrintBold(const Cells& Row);

// Headings between two rules, the lower one with an empty line below it and, where wanted, above it.
void PrintTableHeading(std::span<const Cells> Rows, bool EmptyLineAbove = false);

// The rows of a table behind which a page ends: the first of them, and then each so many rows up to the last.
struct PageBreaks {
    int First, Every, Last;
    bool IsBehind(int Row) const;
};

// Texts at columns of their own, one each.
Cells RowAt(std::span<const int> Columns, const std::vector<std::string>& Texts);

// The number in the box in that format; a text that is no number stands as it is.
std::string InFormat(const TextBox& Box, const char* Pattern);

// "PUMPING SYSTEM" or "GRAVITY SYSTEM".
std::string KindOfSystem();

} // namespace velorix
