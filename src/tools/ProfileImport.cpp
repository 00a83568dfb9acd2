// Parsing and committing of pasted profiles.
#include "tools/ProfileImport.h"

#include "base/CodePage.h"
#include "base/NumberText.h"
#include "input/ProfileTable.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <array>

namespace velorix {

std::string ClipText;
Array1<Array1<FixedText<ImportCellWidth>, ImportColumnCount>, ImportRowLimit> ImportCells;
std::int16_t ImportRows = 0;

namespace {

constexpr char Tab = 9;
constexpr char CarriageReturn = 13;

void BlankCells()
{
    for (auto& Row : ImportCells)
        for (auto& Cell : Row) Cell.Bytes.fill(' ');
}

// The scan position in the table and in the text.
struct Scan {
    int ImportRow = 1;
    int ImportCol = 1;
    std::size_t CellStart = 0;

    // The text from CellStart up to the position becomes the cell.
    ParseOutcome Store(std::size_t ScanPos) const
    {
        if (ImportRow > ImportRowLimit) return ParseOutcome::TooManyRows;
        if (ScanPos < CellStart) return ParseOutcome::BrokenLines; // the row's end was passed over unseen
        const std::size_t Length = std::min<std::size_t>(ScanPos - CellStart, ImportCellWidth);
        std::copy_n(ClipText.begin() + static_cast<std::ptrdiff_t>(CellStart), Length,
                    ImportCells[ImportRow][ImportCol].Bytes.begin());
        return ParseOutcome::Taken;
    }

    ParseOutcome EndCell(std::size_t ScanPos)
    {
        const ParseOutcome Outcome = Store(ScanPos);
        ++ImportCol;
        CellStart = ScanPos + 1;
        if (Outcome == ParseOutcome::Taken && ImportCol > ImportColumnCount)
            return ParseOutcome::TooManyColumns;
        return Outcome;
    }

    ParseOutcome EndRow(std::size_t ScanPos)
    {
        const ParseOutcome Outcome = Store(ScanPos);
        ImportCol = 1;
        ++ImportRow;
        CellStart = ScanPos + 2; // a line feed is taken to follow
        return Outcome;
    }
};

std::string CellName(int Row, int Col)
{
    return "Row " + std::to_string(Row) + ", column \"" + ImportHeading(Col) + "\"";
}

// The failure names the cell.
Single NumberToCommit(int Row, int Col)
{
    try {
        return ImportedNumber(Row, Col);
    } catch (const Failure& Problem) {
        throw FatalFailure(CellName(Row, Col) + ": " + Problem.what());
    }
}

} // namespace

const char* ImportHeading(int Col)
{
    constexpr std::array<const char*, ImportColumnCount> Headings = {"Elevation",       "Accumulated length",
                                                                     "Pipe diameter",   "Pipe wall thickness",
                                                                     "Pipe cost/metre", "Secondary loss"};
    return Headings.at(static_cast<std::size_t>(Col - 1));
}

bool TakeClipText(const std::string& Utf8)
{
    ClipText = ToCodePage(Utf8);
    return !ClipText.empty();
}

ParseOutcome ParseClipText()
{
    BlankCells();
    Scan At;
    for (std::size_t ScanPos = 0; ScanPos < ClipText.size(); ++ScanPos) {
        ParseOutcome Outcome = ParseOutcome::Taken;
        if (ClipText[ScanPos] == Tab) Outcome = At.EndCell(ScanPos);
        if (ClipText[ScanPos] == CarriageReturn) Outcome = At.EndRow(ScanPos);
        if (Outcome != ParseOutcome::Taken) return Outcome;
    }
    ImportRows = static_cast<std::int16_t>(At.ImportRow - 1);
    return ParseOutcome::Taken;
}

std::string ImportedText(int Row, int Col)
{
    return TextOf(ImportCells[Row][Col]);
}

Single ImportedNumber(int Row, int Col)
{
    const std::string Text = ImportedText(Row, Col);
    return Text.empty() ? Single(0.0) : ParseSingle(Text);
}

void CommitImport()
{
    wElevation.Fill(0.0);
    wAccLength.Fill(0.0);
    NodeCount = ImportRows;
    for (int Row = 1; Row <= NodeCount; ++Row) {
        for (int Col = 1; Col <= ImportColumnCount; ++Col) ProfileColumn(Col)[Row] = NumberToCommit(Row, Col);
    }
    for (int Row = 1; Row <= NodeCount; ++Row) wNodeDesc[Row] = 0;
    FillProfileGrid();
}

void ResetImport()
{
    ClipText.clear();
    BlankCells();
    ImportRows = 0;
}

} // namespace velorix
