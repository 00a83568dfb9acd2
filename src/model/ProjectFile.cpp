// Record numbers, and the reads and writes of a record.
#include "model/ProjectFile.h"

#include "base/Arithmetic.h"
#include "model/File.h"
#include "model/WriteNote.h"

namespace velorix {
namespace {

// The bytes of the record from Start on; zero bytes for what the file hasn't got.
RecordImage ReadImage(const File& Source, std::uintmax_t Start)
{
    RecordImage Image{};
    const std::uintmax_t Length = Source.Length();
    const std::uintmax_t Held = std::min<std::uintmax_t>(Length > Start ? Length - Start : 0, Image.size());
    if (Source.Read(Start, Image.data(), Image.size()) < Held)
        throw FileFailure("Can't read the project: the file ends before its end");
    return Image;
}

std::uintmax_t StartOf(std::int64_t Record)
{
    return static_cast<std::uintmax_t>(Record - 1) * RecordLength;
}

// After a failed write. Where even the old bytes can't be put back, the note stays for the next use of the
// file; the failure that the user is told of is the first one.
void PutBack(const std::filesystem::path& Path, File& Target, const PendingWrite& Change)
{
    try {
        UndoWrite(Target, Change);
        ForgetNote(Path);
    } catch (const FileFailure&) {
        return;
    }
}

} // namespace

std::int64_t RecordNumber(std::uintmax_t FileLength)
{
    return static_cast<std::int64_t>(RoundEven(static_cast<double>(FileLength) / RecordLength));
}

ProjectFields ReadProjectFile(const std::filesystem::path& Path)
{
    const std::optional<PendingWrite> Unfinished = CompleteInterruptedWrite(Path);
    const File Source = File::OpenToRead(Path);
    const std::uintmax_t Start = StartOf(std::max<std::int64_t>(1, RecordNumber(Source.Length())));
    if (Unfinished && Unfinished->Start == Start) return FromImage(Unfinished->New);
    return FromImage(ReadImage(Source, Start));
}

void WriteProjectFile(const std::filesystem::path& Path, const ProjectFields& Record, ShortFile Rule)
{
    CompleteInterruptedWrite(Path);
    std::error_code Unknown;
    const bool New =
        std::filesystem::symlink_status(Path, Unknown).type() == std::filesystem::file_type::not_found;
    File Target = File::OpenToWrite(Path);
    const std::uintmax_t Length = Target.Length();
    std::int64_t Number = RecordNumber(Length);
    if (Number == 0 && Rule == ShortFile::Fails)
        throw FileFailure("Can't write \"" + Path.string() + "\": the file holds no project to replace");
    if (Number == 0) Number = 1;

    const std::uintmax_t Start = StartOf(Number);
    const PendingWrite Change = {Start, Length, ReadImage(Target, Start), ToImage(Record)};
    if (Length > Start) NoteWrite(Path, Change);
    try {
        Target.Write(Start, Change.New.data(), Change.New.size());
        Target.Flush();
    } catch (const FileFailure&) {
        PutBack(Path, Target, Change);
        if (New) std::filesystem::remove(Path, Unknown); // opened, an empty file would pass for a project
        throw;
    }
    ForgetNote(Path);
}

} // namespace velorix
