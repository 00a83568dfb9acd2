// Reading and writing of project files, one whole record at a time.
#pragma once

#include "model/ProjectRecord.h"

#include <cstdint>
#include <filesystem>

namespace velorix {

// Number of the record that a file of that many bytes holds, from 1: its length in records rounded to the
// nearest, halves to even. 0 for half a record or less.
std::int64_t RecordNumber(std::uintmax_t FileLength);

// The last whole record of the file; record 1 where RecordNumber gives 0. What the file doesn't hold of it is
// zero bytes. Throws FileFailure when the file can't be read.
ProjectFields ReadProjectFile(const std::filesystem::path& Path);

// Which record a write replaces in a file of half a record or less: a save in place has none to replace and
// fails, Save As writes record 1.
enum class ShortFile { Fails, TakesRecordOne };

// Writes the record over the one that RecordNumber selects, and creates the file where there is none; all
// other bytes of the file stay. Either the old or the new file stands afterwards, also when the write is cut
// short, and programs that write one file take turns: as NewFile has it. Throws FileFailure, with the file as
// it was, when the record can't be written; only a file that has vanished is empty after a save in place.
void WriteProjectFile(const std::filesystem::path& Path, const ProjectFields& Record, ShortFile Rule);

} // namespace velorix
