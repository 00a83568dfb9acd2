// Record numbers, and the reads and writes of a record.
#include "model/ProjectFile.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "base/NewFile.h"

#include <algorithm>

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

} // namespace

std::int64_t RecordNumber(std::uintmax_t FileLength)
{
    return static_cast<std::int64_t>(RoundEven(static_cast<double>(FileLength) / RecordLength));
}

ProjectFields ReadProjectFile(const std::filesystem::path& Path)
{
    const File Source = File::OpenToRead(Path);
    Source.WaitForLock(File::Lock::Read); // given up on a program that stopped in the middle of its write
    return FromImage(ReadImage(Source, StartOf(std::max<std::int64_t>(1, RecordNumber(Source.Length())))));
}

void WriteProjectFile(const std::filesystem::path& Path, const ProjectFields& Record, ShortFile Rule)
{
    NewFile Target(Path);
    const std::int64_t Number = Target.Old() != nullptr ? RecordNumber(Target.Old()->Length()) : 0;
    if (Number == 0 && Rule == ShortFile::Fails) {
        if (Target.Old() == nullptr) Target.Commit(); // a file that has vanished comes back empty
        throw FileFailure("Can't write \"" + Path.string() + "\": the file holds no project to replace");
    }
    const RecordImage Image = ToImage(Record);
    Target.KeepOldBytes();
    Target.Write(StartOf(std::max<std::int64_t>(1, Number)), Image.data(), Image.size());
    Target.Commit();
}

} // namespace velorix
