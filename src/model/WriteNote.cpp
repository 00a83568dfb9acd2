// The note's form: a mark, where the record stands, its old and new bytes, and a checksum over all of it.
#include "model/WriteNote.h"

#include "base/Failure.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace velorix {
namespace {

constexpr std::size_t MarkLength = 8;
constexpr char Mark[MarkLength + 1] = "VLXNOTE1";
constexpr std::size_t NoteLength = MarkLength + 3 * sizeof(std::uint64_t) + 2 * RecordLength;

// FNV-1a, 64 bits: enough to tell a torn note from a whole one.
std::uint64_t Checksum(const char* Bytes, std::size_t Count)
{
    std::uint64_t Sum = 14695981039346656037U;
    for (std::size_t Index = 0; Index < Count; ++Index)
        Sum = (Sum ^ static_cast<unsigned char>(Bytes[Index])) * 1099511628211U;
    return Sum;
}

std::string ToBytes(const PendingWrite& Change)
{
    std::string Bytes(Mark, MarkLength);
    const auto PutNumber = [&Bytes](std::uint64_t Value) {
        char Word[sizeof Value];
        std::memcpy(Word, &Value, sizeof Value);
        Bytes.append(Word, sizeof Word);
    };
    PutNumber(Change.Start);
    PutNumber(Change.Length);
    Bytes.append(Change.Old.data(), Change.Old.size());
    Bytes.append(Change.New.data(), Change.New.size());
    PutNumber(Checksum(Bytes.data(), Bytes.size()));
    return Bytes;
}

std::optional<PendingWrite> FromBytes(const std::string& Bytes)
{
    if (Bytes.size() != NoteLength || Bytes.compare(0, MarkLength, Mark) != 0) return std::nullopt;
    const char* At = Bytes.data() + MarkLength;
    const auto TakeNumber = [&At] {
        std::uint64_t Value = 0;
        std::memcpy(&Value, At, sizeof Value);
        At += sizeof Value;
        return Value;
    };
    PendingWrite Change;
    Change.Start = TakeNumber();
    Change.Length = TakeNumber();
    for (RecordImage* Each : {&Change.Old, &Change.New}) {
        std::copy(At, At + RecordLength, Each->begin());
        At += RecordLength;
    }
    const std::size_t Summed = NoteLength - sizeof(std::uint64_t);
    return TakeNumber() == Checksum(Bytes.data(), Summed) ? std::optional(Change) : std::nullopt;
}

std::optional<PendingWrite> ReadNote(const std::filesystem::path& Project)
{
    const File Note = File::OpenToRead(NotePath(Project));
    std::string Bytes(NoteLength, '\0');
    if (Note.Length() != NoteLength || Note.Read(0, Bytes.data(), NoteLength) != NoteLength)
        return std::nullopt;
    return FromBytes(Bytes);
}

// A write cut short leaves every byte of the record either old or new, and the file no longer than complete.
bool IsHalfWritten(const File& Target, const PendingWrite& Change)
{
    const std::uintmax_t Length = Target.Length();
    if (Length < Change.Length || Length > std::max(Change.Length, Change.Start + RecordLength)) return false;
    RecordImage Found{};
    const std::size_t Held = Target.Read(Change.Start, Found.data(), Found.size());
    for (std::size_t Index = 0; Index < Held; ++Index)
        if (Found[Index] != Change.Old[Index] && Found[Index] != Change.New[Index]) return false;
    return true;
}

// Makes the folder's entries last as well.
void FlushFolder(const std::filesystem::path& Entry)
{
    const std::filesystem::path Folder = Entry.has_parent_path() ? Entry.parent_path() : ".";
    const int Handle = ::open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (Handle < 0) return;
    ::fsync(Handle);
    ::close(Handle);
}

// Nothing where there can't be such a file: a folder closed to the user, a name that is taken. An older note
// that can't be replaced is a failure: it would be taken for this write's, and undo it.
std::optional<File> CreateNote(const std::filesystem::path& Path)
{
    try {
        return File::CreateNew(Path);
    } catch (const FileFailure&) {
        std::error_code Unknown;
        if (std::filesystem::is_regular_file(Path, Unknown)) throw;
        return std::nullopt;
    }
}

// Leaves room in the longest name that a file can have for what the note's name adds.
std::string ShortName(const std::string& Name)
{
    constexpr std::size_t Longest = 200;
    if (Name.size() <= Longest) return Name;
    return Name.substr(0, Longest) + "-" + std::to_string(Checksum(Name.data(), Name.size()));
}

void Finish(const std::filesystem::path& Project, const PendingWrite& Change)
{
    File Target = File::OpenToWrite(Project);
    Target.Write(Change.Start, Change.New.data(), Change.New.size());
    Target.Flush();
}

} // namespace

std::filesystem::path NotePath(const std::filesystem::path& Project)
{
    // Beside the file itself, not beside a link to it: all names of the file must find the same note.
    std::error_code Unresolved;
    const std::filesystem::path Real = std::filesystem::canonical(Project, Unresolved);
    const std::filesystem::path& Path = Unresolved ? Project : Real;
    return Path.parent_path() / ("." + ShortName(Path.filename().string()) + ".saving");
}

void NoteWrite(const std::filesystem::path& Project, const PendingWrite& Change)
{
    const std::filesystem::path Path = NotePath(Project);
    std::optional<File> Note = CreateNote(Path);
    if (!Note) return;
    const std::string Bytes = ToBytes(Change);
    try {
        Note->Write(0, Bytes.data(), Bytes.size());
        Note->Flush();
    } catch (const FileFailure&) {
        ForgetNote(Project);
        throw;
    }
    FlushFolder(Path);
}

std::optional<PendingWrite> CompleteInterruptedWrite(const std::filesystem::path& Project)
{
    std::error_code Missing;
    if (!std::filesystem::exists(NotePath(Project), Missing)) return std::nullopt;
    std::optional<PendingWrite> Change;
    try {
        Change = ReadNote(Project);
        if (Change && !IsHalfWritten(File::OpenToRead(Project), *Change)) Change.reset();
        if (Change) Finish(Project, *Change);
    } catch (const FileFailure&) {
        return Change; // a file, or a note, that can't be opened or written now
    }
    ForgetNote(Project);
    return std::nullopt;
}

void UndoWrite(File& Target, const PendingWrite& Change)
{
    const std::uintmax_t Behind = Change.Length > Change.Start ? Change.Length - Change.Start : 0;
    const auto Held = static_cast<std::size_t>(std::min<std::uintmax_t>(RecordLength, Behind));
    Target.Write(Change.Start, Change.Old.data(), Held);
    Target.Truncate(Change.Length);
    Target.Flush();
}

void ForgetNote(const std::filesystem::path& Project)
{
    std::error_code Missing;
    std::filesystem::remove(NotePath(Project), Missing);
}

} // namespace velorix
