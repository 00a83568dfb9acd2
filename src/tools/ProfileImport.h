// A pipeline profile out of clipboard text: the parsed table, and the commit to the working set.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"
#include "model/ProjectRecord.h"

#include <cstdint>
#include <string>

namespace velorix {

constexpr int ImportRowLimit = 100;
constexpr int ImportColumnCount = 6;
constexpr int ImportCellWidth = 30; // characters

// What a column is called. Its meaning goes by position alone.
const char* ImportHeading(int Col);

extern std::string ClipText; // what the last paste took, a byte a character
extern Array1<Array1<FixedText<ImportCellWidth>, ImportColumnCount>, ImportRowLimit> ImportCells;
extern std::int16_t
    ImportRows; // rows of the last parse that went through; the next run of the wizard finds it

// Keeps the text of the clipboard for the parse. False when it is empty.
bool TakeClipText(const std::string& Utf8);

enum class ParseOutcome {
    Taken,
    NothingPasted,
    TooManyColumns,
    TooManyRows,
    BrokenLines, // a carriage return right behind another, or a tab there
};

// ClipText to ImportCells and ImportRows: cells end by a tab, rows by a carriage return, and whatever follows
// that is passed over unseen. What comes behind the last carriage return doesn't count. An outcome other than
// Taken leaves ImportRows as it was, and in the cells what was read so far.
ParseOutcome ParseClipText();

// A cell without the blanks around it, in UTF-8.
std::string ImportedText(int Row, int Col);

// The number of a cell, 0 of an empty one. Throws ConversionFailure or ArithmeticFailure for any other text.
Single ImportedNumber(int Row, int Col);

// The cells replace the profile arrays, and the profile table shows them. Elevations and lengths behind them
// become 0, what else was there stays. Throws FatalFailure at a cell without a number.
void CommitImport();

void ResetImport();

} // namespace velorix
