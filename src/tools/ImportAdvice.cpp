// Finding what a spreadsheet has put on the clipboard that the parse doesn't take.
#include "tools/ImportAdvice.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <optional>

namespace velorix {
namespace {

bool IsNumber(const std::string& Text)
{
    try {
        ParseSingle(Text);
        return true;
    } catch (const Failure&) {
        return false; // an answer, no failure
    }
}

bool Converts(int Row, int Col)
{
    const std::string Text = ImportedText(Row, Col);
    return Text.empty() || IsNumber(Text);
}

bool IsEmpty(int Row)
{
    for (int Col = 1; Col <= ImportColumnCount; ++Col)
        if (!ImportedText(Row, Col).empty()) return false;
    return true;
}

struct CellPlace {
    int Row;
    int Col;
};

std::optional<CellPlace> FirstWithoutNumber()
{
    for (int Row = 1; Row <= ImportRows; ++Row)
        for (int Col = 1; Col <= ImportColumnCount; ++Col)
            if (!Converts(Row, Col)) return CellPlace{Row, Col};
    return std::nullopt;
}

// Not one number in it.
bool IsHeading(int Row)
{
    for (int Col = 1; Col <= ImportColumnCount; ++Col)
        if (!ImportedText(Row, Col).empty() && Converts(Row, Col)) return false;
    return true;
}

// Without what stands between the digits of a number written in groups; a sign that the code page doesn't
// know, as a narrow blank, has become "?".
std::string WithoutGroups(const std::string& Text)
{
    std::string Bytes = ToCodePage(Text);
    constexpr std::string_view Separators = " \xA0'\x92?";
    const auto IsDigit = [](char Each) { return Each >= '0' && Each <= '9'; };
    for (std::size_t At = Bytes.size(); At-- > 1;)
        if (Separators.find(Bytes[At]) != std::string_view::npos && At + 1 < Bytes.size() &&
            IsDigit(Bytes[At - 1]) && IsDigit(Bytes[At + 1]))
            Bytes.erase(At, 1);
    return FromCodePage(Bytes);
}

// What keeps the cell from being a number, and what to do in the spreadsheet.
std::string Remedy(const std::string& Text)
{
    if (Text.find('"') != std::string::npos)
        return "has quotation marks. Take line breaks and quotation marks out of the cells";
    if (Text.find(',') != std::string::npos)
        return "has a comma. Show the numbers with a decimal point and without thousands separators";
    if (IsNumber(WithoutGroups(Text)))
        return "has a sign between its digits. Show the numbers without thousands separators";
    return "is no number. Copy cells with plain numbers only";
}

Advice OfCell(const CellPlace& Cell)
{
    if (Cell.Row == 1 && IsHeading(1))
        return {"Row 1 holds headings. Go back and copy the rows below the headings only.", 1, Cell.Col};
    const std::string Text = ImportedText(Cell.Row, Cell.Col);
    return {"Row " + std::to_string(Cell.Row) + ", " + ImportHeading(Cell.Col) + ": \"" + Text + "\" " +
                Remedy(Text) + ", then copy and paste again.",
            Cell.Row, Cell.Col};
}

// What the parse has refused; the table holds something else then.
std::string OfRefused(ParseOutcome Outcome)
{
    switch (Outcome) {
    case ParseOutcome::NothingPasted:
        return "Nothing has been pasted. Go back, copy the data in the spreadsheet, and press PASTE.";
    case ParseOutcome::TooManyColumns:
        return "The data has more than six columns. Go back and copy only those from elevation to secondary "
               "loss.";
    case ParseOutcome::TooManyRows:
        return "The data has more than 100 rows. Go back and copy 100 rows at most.";
    case ParseOutcome::BrokenLines:
        return "The lines of the data end without line feeds. Go back and copy it in a spreadsheet program.";
    case ParseOutcome::Taken: break;
    }
    return {};
}

bool LacksLineFeeds()
{
    for (std::size_t At = ClipText.find('\r'); At != std::string::npos; At = ClipText.find('\r', At + 1))
        if (At + 1 < ClipText.size() && ClipText[At + 1] != '\n') return true;
    return false;
}

bool LosesLastLine()
{
    const std::size_t End = ClipText.find_last_of('\r'); // none: the whole text is lost
    return ClipText.find_first_not_of(" \t\r\n", End == std::string::npos ? 0 : End) != std::string::npos;
}

// The first cell of which more was pasted than is kept.
std::optional<CellPlace> FirstCut()
{
    CellPlace Cell{1, 1};
    for (std::size_t Start = 0; Cell.Row <= ImportRows && Start < ClipText.size();) {
        const std::size_t End = std::min(ClipText.find_first_of("\t\r", Start), ClipText.size());
        if (ClipText.find_first_not_of(' ', Start + ImportCellWidth) < End) return Cell;
        const bool EndsRow = ClipText[End] == '\r';
        Cell = EndsRow ? CellPlace{Cell.Row + 1, 1} : CellPlace{Cell.Row, Cell.Col + 1};
        Start = End + (EndsRow ? 2 : 1);
    }
    return std::nullopt;
}

// The row that ends the profile with rows of data behind it. Each number converts.
std::optional<int> RowThatEndsProfile()
{
    int Last = ImportRows;
    while (Last > 0 && IsEmpty(Last)) --Last;
    for (int Row = 1; Row <= Last; ++Row)
        if (ImportedNumber(Row, 1) == 0 && ImportedNumber(Row, 2) == 0)
            return Last > std::max(Row - 1, LeastNodes) ? std::optional(Row) : std::nullopt;
    return std::nullopt;
}

// Data that was taken, with numbers in all its cells.
Advice OfNumbers()
{
    if (LosesLastLine())
        return {"The last line was not taken, as no line end follows it. Go back and copy an empty row more "
                "below the data.",
                std::max<int>(ImportRows, 1)};
    if (const auto Cut = FirstCut())
        return {"Row " + std::to_string(Cut->Row) + ", " + ImportHeading(Cut->Col) +
                    ": the cell was cut to 30 characters. Show the number with fewer digits, then copy and "
                    "paste again.",
                Cut->Row, Cut->Col};
    if (const auto Row = RowThatEndsProfile())
        return {"Row " + std::to_string(*Row) +
                    " has elevation 0 and length 0, which ends the profile: the " +
                    "rows behind it will not show. Give it another elevation, then copy and paste again.",
                *Row};
    return {};
}

} // namespace

Advice ImportAdvice(ParseOutcome Outcome)
{
    const std::optional<CellPlace> Bad = FirstWithoutNumber();
    Advice Told;
    if (Outcome != ParseOutcome::Taken)
        Told.Text = OfRefused(Outcome);
    else if (LacksLineFeeds())
        Told.Text = OfRefused(ParseOutcome::BrokenLines) + " Each row has lost its first character.";
    else
        Told = Bad ? OfCell(*Bad) : OfNumbers();
    if (Bad)
        Told.Text += " Finish would end the program without a save.";
    else if (ImportRows == 0)
        Told.Text += (Told.Text.empty() ? "" : " ") + std::string("Finish would empty the profile.");
    else if (Outcome != ParseOutcome::Taken)
        Told.Text += " The table shows what an earlier paste has left.";
    return Told;
}

} // namespace velorix
