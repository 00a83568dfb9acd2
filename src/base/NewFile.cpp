// The temporary file, its name, and the locks that keep programs from each other's.
#include "base/NewFile.h"

#include "base/Failure.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velorix {
namespace {

std::filesystem::path FolderOf(const std::filesystem::path& Path)
{
    return Path.has_parent_path() ? Path.parent_path() : ".";
}

// Link by link, so that each is looked at.
std::filesystem::path FollowLinks(const std::filesystem::path& Target)
{
    constexpr int MostLinks = 40; // as the system has it
    std::filesystem::path Path = Target;
    for (int Links = 0; Links <= MostLinks; ++Links) {
        struct stat Status {};
        if (::lstat(Path.c_str(), &Status) != 0 || !S_ISLNK(Status.st_mode)) return Path;
        if (Status.st_uid != ::geteuid() && Status.st_uid != 0) // it may lead to one of this user's own files
            throw FileFailure("Can't write \"" + Target.string() + "\": it is another user's link");
        std::error_code Unreadable;
        Path = Path.parent_path() / std::filesystem::read_symlink(Path, Unreadable);
        if (Unreadable) FailToWrite(Target, Unreadable.value());
    }
    FailToWrite(Target, ELOOP);
}

// The file that is there, once it is this program's turn. While it waited the file may have been replaced.
std::optional<File> OpenOld(const std::filesystem::path& Path)
{
    const File::Time GivesUp = File::EndOfWait();
    do {
        int Error = 0;
        std::optional<File> Found = File::TryOpen(Path, Error);
        if (!Found && Error == ENOENT) return std::nullopt;
        if (!Found) FailToWrite(Path, Error);
        if (Found->WaitForLock(File::Lock::Replace, GivesUp) == File::Granted::No) break;
        if (Found->IsAt(Path)) return Found;
    } while (std::chrono::steady_clock::now() < GivesUp);
    throw FileFailure("Can't write \"" + Path.string() + "\": another program is writing it");
}

// Whether the file is mounted by itself, also from the folder's own filesystem. Old kernels don't tell.
bool IsMounted(const std::filesystem::path& Path)
{
    struct statx Status {};
    return ::statx(AT_FDCWD, Path.c_str(), AT_SYMLINK_NOFOLLOW, 0, &Status) == 0 &&
           (Status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}

// In a folder where users may remove only their own files, another's file can't be replaced; nor can one
// that is mounted by itself.
bool MayBeReplaced(const std::filesystem::path& Path)
{
    struct stat Folder {};
    struct stat Old {};
    if (::stat(FolderOf(Path).c_str(), &Folder) != 0 || ::lstat(Path.c_str(), &Old) != 0)
        FailToWrite(Path, errno);
    const uid_t User = ::geteuid();
    const bool Guarded = (Folder.st_mode & S_ISVTX) != 0 && User != 0;
    return Folder.st_dev == Old.st_dev && !IsMounted(Path) &&
           (!Guarded || User == Folder.st_uid || User == Old.st_uid);
}

// A few names will do: each is taken for the length of one write. Should something else stand at all of
// them, a random one is free.
constexpr std::uint64_t NameCount = 16;

std::uint64_t RandomNumber()
{
    std::uint64_t Number = NameCount;
    return ::getentropy(&Number, sizeof Number) == 0 ? Number : NameCount;
}

std::filesystem::path NameBeside(const std::filesystem::path& Path, std::uint64_t Number)
{
    constexpr std::size_t LongestPart = 200; // leaves room in the longest name that a file can have
    return FolderOf(Path) /
           ("." + Path.filename().string().substr(0, LongestPart) + ".saving-" + std::to_string(Number));
}

// The temporary file of a program that is gone. That of one at work is locked.
void RemoveLeftover(const std::filesystem::path& Name)
{
    int Error = 0;
    const std::optional<File> Found = File::TryOpen(Name, Error);
    if (Found && Found->TryLock(File::Lock::Replace) == File::Granted::Yes && Found->IsAt(Name))
        ::unlink(Name.c_str());
}

// Makes the folder's entries last as well.
void FlushFolder(const std::filesystem::path& Folder)
{
    const int Handle = ::open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (Handle < 0) return;
    ::fsync(Handle);
    ::close(Handle);
}

} // namespace

NewFile::TemporaryName::~TemporaryName()
{
    if (!Path.empty()) ::unlink(Path.c_str());
}

NewFile::NewFile(const std::filesystem::path& Target)
    : Path(FollowLinks(Target))
    , Before(OpenOld(Path))
    , LengthBefore(Before ? Before->Length() : 0)
{
    if (!Before || MayBeReplaced(Path)) CreateBeside();
    if (!Content) Before->WaitForLock(File::Lock::Overwrite);
}

NewFile::~NewFile()
{
    if (Undo.empty()) return;
    try {
        PutBack();
    } catch (const FileFailure&) {
        return; // the failure that led here is the one to tell
    }
}

void NewFile::CreateBeside()
{
    for (std::uint64_t Number = 0; Number < NameCount; ++Number) RemoveLeftover(NameBeside(Path, Number));
    const unsigned Permissions = Before ? 0600 : 0666; // nobody else's until it has those of the old one
    for (std::uint64_t Number = 0; Number <= NameCount; ++Number) {
        const std::filesystem::path Free = NameBeside(Path, Number < NameCount ? Number : RandomNumber());
        int Error = 0;
        std::optional<File> Created = File::TryCreate(Free, Path, Permissions, Error);
        if (!Created && Error == EEXIST) continue;
        if (!Created && Before && (Error == EACCES || Error == EPERM)) return;
        if (!Created) FailToWrite(Path, Error);
        // Another program that took it for a leftover, before it was locked, has removed it.
        if (Created->TryLock(File::Lock::Replace) == File::Granted::No || !Created->IsAt(Free)) continue;
        if (Before && !Created->TakePermissions(*Before)) {
            ::unlink(Free.c_str());
            return;
        }
        Content.emplace(std::move(*Created));
        Name.Path = Free;
        return;
    }
    FailToWrite(NameBeside(Path, 0), EEXIST);
}

void NewFile::KeepOldBytes()
{
    End = LengthBefore;
    if (Content && Before) Content->CopyFrom(*Before);
}

void NewFile::Write(std::uintmax_t Start, const char* Bytes, std::size_t Count)
{
    if (!Content) Remember(Start, Count);
    (Content ? *Content : *Before).Write(Start, Bytes, Count);
    End = std::max(End, Start + Count);
}

void NewFile::Append(std::string_view Bytes)
{
    Write(End, Bytes.data(), Bytes.size());
}

void NewFile::Commit(Flush Wanted)
{
    if (!Content && End < LengthBefore) {
        Remember(End, static_cast<std::size_t>(LengthBefore - End));
        Before->Truncate(End);
    }
    if (Wanted == Flush::Yes) (Content ? *Content : *Before).Flush();
    if (Content) {
        if (std::rename(Name.Path.c_str(), Path.c_str()) != 0) FailToWrite(Path, errno);
        Name.Path.clear();
        if (Wanted == Flush::Yes) FlushFolder(FolderOf(Path));
    }
    Undo.clear();
    Content.reset(); // and with them the locks
    Before.reset();
}

void NewFile::Remember(std::uintmax_t Start, std::size_t Count)
{
    std::string Bytes(Count, '\0');
    Bytes.resize(Before->Read(Start, Bytes.data(), Count));
    Undo.push_back({Start, std::move(Bytes)});
}

// The last write first: it may have gone over an earlier one.
void NewFile::PutBack()
{
    for (auto Each = Undo.rbegin(); Each != Undo.rend(); ++Each)
        Before->Write(Each->Start, Each->Bytes.data(), Each->Bytes.size());
    Before->Truncate(LengthBefore);
    Before->Flush();
}

} // namespace velorix
