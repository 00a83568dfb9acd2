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

// The last row that holds anything; 0 when none does.
int LastFilledRow()
{
    int Last = ImportRows;
    while (Last > 0 && IsEmpty(Last)) --Last;
    return Last;
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

bool IsDigit(char Byte)
{
    return Byte >= '0' && Byte <= '9';
}

// Of the code page, letters with accents among them.
bool IsLetter(char Byte)
{
    const auto Code = static_cast<unsigned char>(Byte);
    const auto Capital = static_cast<unsigned char>(Code & ~0x20U);
    return (Capital >= 'A' && Capital <= 'Z') || (Code >= 0xC0 && Capital != 0xD7);
}

// What spreadsheets show where a formula fails: #N/A, #DIV/0!, Err:502.
bool IsErrorMark(const std::string& Bytes)
{
    return Bytes.starts_with("Err:") || (Bytes.size() > 1 && Bytes[0] == '#' && IsLetter(Bytes[1]));
}

// As over a column: a letter comes before any digit, or nothing but signs of a foreign alphabet.
bool IsWords(const std::string& Bytes)
{
    if (IsErrorMark(Bytes)) return false;
    const auto First =
        std::find_if(Bytes.begin(), Bytes.end(), [](char Each) { return IsDigit(Each) || IsLetter(Each); });
    return First != Bytes.end() ? IsLetter(*First) : Bytes.find("??") != std::string::npos;
}

bool HoldsNumbers(int Row)
{
    for (int Col = 1; Col <= ImportColumnCount; ++Col)
        if (!Converts(Row, Col)) return false;
    return !IsEmpty(Row);
}

// Who takes a node for a heading loses it: a row is one when it holds words only, and with digits in them
// only when a row of numbers follows.
bool IsHeading(int Row)
{
    bool Digits = false;
    for (int Col = 1; Col <= ImportColumnCount; ++Col) {
        const std::string Bytes = ToCodePage(ImportedText(Row, Col));
        if (Bytes.empty()) continue;
        if (!IsWords(Bytes)) return false;
        Digits = Digits || std::any_of(Bytes.begin(), Bytes.end(), IsDigit);
    }
    for (int Other = Row + 1; Digits && Other <= ImportRows; ++Other)
        if (HoldsNumbers(Other)) return true;
    return !Digits;
}

// Without what stands between the digits of a number written in groups; a sign that the code page doesn't
// know, as a narrow blank, has become "?".
std::string WithoutGroups(std::string Bytes)
{
    constexpr std::string_view Separators = " \xA0'\x92?";
    for (std::size_t At = Bytes.size(); At-- > 1;)
        if (Separators.find(Bytes[At]) != std::string_view::npos && At + 1 < Bytes.size() &&
            IsDigit(Bytes[At - 1]) && IsDigit(Bytes[At + 1]))
            Bytes.erase(At, 1);
    return Bytes;
}

// A typographic minus or dash, or the mark of the byte order that some programs put first.
bool BeginsWithForeignSign(const std::string& Bytes)
{
    constexpr std::string_view Signs = "?\x96\x97";
    return Signs.find(Bytes.front()) != std::string_view::npos && IsNumber(WithoutGroups(Bytes.substr(1)));
}

// What keeps the cell from being a number, and what to do in the spreadsheet.
std::string Remedy(const std::string& Text)
{
    if (Text.find('"') != std::string::npos)
        return "has quotation marks. Take line breaks and quotation marks out of the cells";
    if (Text.find(',') != std::string::npos)
        return "has a comma. Show the numbers with a decimal point and without thousands separators";
    const std::string Bytes = ToCodePage(Text);
    if (BeginsWithForeignSign(Bytes))
        return "begins with a sign that is no plain minus. Replace it, or leave it out";
    if (IsNumber(WithoutGroups(Bytes)))
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

// What the parse has refused.
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
    const int Last = LastFilledRow();
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
    if (LastFilledRow() == 0)
        return {"The data has no filled cells. Go back and copy the rows with numbers."};
    if (const auto Cut = FirstCut())
        return {"Row " + std::to_string(Cut->Row) + ", " + ImportHeading(Cut->Col) +
                    ": the cell was cut to 30 characters. Show the number with fewer digits, then copy and "
                    "paste again.",
                Cut->Row, Cut->Col};
    if (const auto Row = RowThatEndsProfile())
        return {"Row " + std::to_string(*Row) +
                    " has elevation 0 and length 0, which ends the profile: from row " +
                    std::to_string(std::max(*Row, LeastNodes + 1)) +
                    " on nothing will show. Give it another elevation, then copy and paste again.",
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
    else if (LastFilledRow() == 0)
        Told.Text += " Finish would empty the profile.";
    else if (Outcome == ParseOutcome::NothingPasted)
        Told.Text += " The table shows what an earlier paste has left.";
    else if (Outcome != ParseOutcome::Taken)
        Told.Text += " The table shows what was read of it, in as many rows as an earlier paste had.";
    return Told;
}

} // namespace velorix
