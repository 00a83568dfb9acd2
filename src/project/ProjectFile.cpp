// Record numbers, and the reads and writes of a record.
#include "project/ProjectFile.h"

#include "base/Arithmetic.h"
#include "project/File.h"
#include "project/Session.h"
#include "project/WriteNote.h"

namespace velorix {
namespace {

// The bytes of the record from Start on; zero bytes for what the file hasn't got.
RecordImage ReadImage(const File& Source, std::uintmax_t Start)
{
    RecordImage Image{};
    Source.Read(Start, Image.data(), Image.size());
    return Image;
}

std::uintmax_t StartOf(std::int64_t Record)
{
    return static_cast<std::uintmax_t>(Record - 1) * RecordLength;
}

} // namespace

std::int64_t RecordNumber(std::uintmax_t FileLength)
{
    return static_cast<std::int64_t>(RoundEven(static_cast<double>(FileLength) / RecordLength));
}

ProjectFields ReadProjectFile(const std::filesystem::path& Path)
{
    CompleteInterruptedWrite(Path);
    const File Source = File::OpenToRead(Path);
    const std::int64_t Record = std::max<std::int64_t>(1, RecordNumber(Source.Length()));
    return FromImage(ReadImage(Source, StartOf(Record)));
}

void ReadProjectRecord()
{
    ProjectRecord = ReadProjectFile(FileName);
}

void WriteProjectFile(const std::filesystem::path& Path, const ProjectFields& Record, ShortFile Rule)
{
    CompleteInterruptedWrite(Path);
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
        UndoWrite(Target, Change);
        ForgetNote(Path);
        throw;
    }
    ForgetNote(Path);
}

} // namespace velorix
