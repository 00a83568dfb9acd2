// The note of a write in progress, which keeps a project whole when the program or the machine stops in the
// middle of a save.
#pragma once

#include "model/File.h"
#include "model/ProjectRecord.h"

#include <optional>

namespace velorix {

// A record that is about to be replaced.
struct PendingWrite {
    std::uintmax_t Start = 0;  // first byte of the record in the file
    std::uintmax_t Length = 0; // bytes of the file before the write
    RecordImage Old{};
    RecordImage New{};
};

// The note of a project file stands beside it, hidden, under a name of its own.
std::filesystem::path NotePath(const std::filesystem::path& Project);

// Writes the note, on the disk when it returns. Where no such file can be made, the write goes on without
// one. Throws FileFailure when an older note can't be replaced, and when there is no room for the new one's
// bytes: nothing is written to a full disk.
void NoteWrite(const std::filesystem::path& Project, const PendingWrite& Change);

// Finishes the write that a note tells of, if the file holds nothing but old and new bytes in the record's
// place; a note that is torn itself, or that no longer fits its file, is dropped. Called ahead of every use
// of a project file. Where the file can't be written now, the unfinished write is the answer: its new record
// is the one to read.
std::optional<PendingWrite> CompleteInterruptedWrite(const std::filesystem::path& Project);

// Puts the old bytes and the old length back after a write that failed.
void UndoWrite(File& Target, const PendingWrite& Change);

void ForgetNote(const std::filesystem::path& Project);

} // namespace velorix
