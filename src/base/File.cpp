// Files on POSIX.
#include "base/File.h"

#include "base/Failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace velorix {
namespace {

[[noreturn]] void Fail(const char* Purpose, const std::filesystem::path& Path, int Error)
{
    throw FileFailure("Can't " + std::string(Purpose) + " \"" + Path.string() +
                      "\": " + std::generic_category().message(Error));
}

[[noreturn]] void FailToRead(const std::filesystem::path& Path, int Error)
{
    Fail("read", Path, Error);
}

// Locks are on bytes: the content, and one byte behind any content.
constexpr off_t BehindContent = off_t{1} << 62;
constexpr struct flock LockedBytes[] = {
    {F_WRLCK, SEEK_SET, BehindContent, 1, 0}, // Replace
    {F_RDLCK, SEEK_SET, 0, BehindContent, 0}, // Read
    {F_WRLCK, SEEK_SET, 0, BehindContent, 0}, // Overwrite
};

// The access list that goes beyond owner, group and others; the list that the folder gives its new files
// doesn't stay. False when the other file's list can't be had.
bool TakeAccessList(int From, int To)
{
    constexpr const char* Name = "system.posix_acl_access";
    std::vector<char> List(65536); // no list is longer
    const ssize_t Length = ::fgetxattr(From, Name, List.data(), List.size());
    if (Length >= 0) return ::fsetxattr(To, Name, List.data(), static_cast<std::size_t>(Length), 0) == 0;
    const bool NoList = errno == ENODATA || errno == EOPNOTSUPP;
    return NoList && (::fremovexattr(To, Name) == 0 || errno == ENODATA || errno == EOPNOTSUPP);
}

} // namespace

void FailToWrite(const std::filesystem::path& Path, int Error)
{
    Fail("write", Path, Error);
}

File::File(std::filesystem::path Shown, int Opened)
    : Path(std::move(Shown))
    , Handle(Opened)
{
}

File::File(File&& Other) noexcept
    : Path(std::move(Other.Path))
    , Handle(std::exchange(Other.Handle, -1))
{
}

File::~File()
{
    if (Handle >= 0) ::close(Handle);
}

std::optional<File> File::Open(const std::filesystem::path& Path, const std::filesystem::path& Shown,
                               int Flags, unsigned Permissions, int& Error)
{
    // Without O_NONBLOCK the opening of a pipe would wait for its other end.
    const int Opened = ::open(Path.c_str(), Flags | O_CLOEXEC | O_NONBLOCK, Permissions);
    Error = Opened < 0 ? errno : 0;
    if (Opened < 0) return std::nullopt;
    File Result(Shown, Opened);
    if ((Flags & O_CREAT) != 0) return Result;
    struct stat Status {};
    if (::fstat(Opened, &Status) != 0)
        Error = errno;
    else if (!S_ISREG(Status.st_mode))
        Error = S_ISDIR(Status.st_mode) ? EISDIR : EINVAL;
    return Error == 0 ? std::optional(std::move(Result)) : std::nullopt;
}

File File::OpenToRead(const std::filesystem::path& Path)
{
    int Error = 0;
    std::optional<File> Opened = Open(Path, Path, O_RDONLY, 0, Error);
    if (!Opened) FailToRead(Path, Error);
    return std::move(*Opened);
}

std::optional<File> File::TryOpen(const std::filesystem::path& Path, int& Error)
{
    return Open(Path, Path, O_RDWR | O_NOFOLLOW, 0, Error);
}

std::optional<File> File::TryCreate(const std::filesystem::path& Path, const std::filesystem::path& Shown,
                                    unsigned Permissions, int& Error)
{
    return Open(Path, Shown, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, Permissions, Error);
}

std::uintmax_t File::Length() const
{
    struct stat Status {};
    if (::fstat(Handle, &Status) != 0) FailToRead(Path, errno);
    return static_cast<std::uintmax_t>(Status.st_size);
}

bool File::IsAt(const std::filesystem::path& Name) const
{
    struct stat Own {};
    struct stat There {};
    return ::fstat(Handle, &Own) == 0 && ::lstat(Name.c_str(), &There) == 0 && Own.st_dev == There.st_dev &&
           Own.st_ino == There.st_ino;
}

std::size_t File::Read(std::uintmax_t Start, char* Bytes, std::size_t Count) const
{
    std::size_t Done = 0;
    while (Done < Count) {
        const ssize_t Step = ::pread(Handle, Bytes + Done, Count - Done, static_cast<off_t>(Start + Done));
        if (Step < 0 && errno == EINTR) continue;
        if (Step < 0) FailToRead(Path, errno);
        if (Step == 0) break;
        Done += static_cast<std::size_t>(Step);
    }
    return Done;
}

void File::Write(std::uintmax_t Start, const char* Bytes, std::size_t Count)
{
    std::size_t Done = 0;
    while (Done < Count) {
        const ssize_t Step = ::pwrite(Handle, Bytes + Done, Count - Done, static_cast<off_t>(Start + Done));
        if (Step < 0 && errno == EINTR) continue;
        if (Step < 0) FailToWrite(Path, errno);
        Done += static_cast<std::size_t>(Step);
    }
}

void File::Truncate(std::uintmax_t Length)
{
    if (::ftruncate(Handle, static_cast<off_t>(Length)) != 0) FailToWrite(Path, errno);
}

void File::Flush()
{
    const bool Flushed = ::fsync(Handle) == 0 || errno == EINVAL; // some filesystems have nothing to flush
    if (!Flushed) FailToWrite(Path, errno);
}

void File::CopyFrom(const File& Other)
{
    const auto End = static_cast<off_t>(Other.Length());
    Truncate(Other.Length());
    std::array<char, 65536> Block{};
    off_t At = 0;
    while (At < End) {
        const off_t Data = ::lseek(Other.Handle, At, SEEK_DATA);
        if (Data < 0 && errno == ENXIO) break;                                    // only a hole is left
        const bool Untold = Data < 0 && (errno == EINVAL || errno == EOPNOTSUPP); // what is a hole
        if (Data < 0 && !Untold) FailToRead(Other.Path, errno);
        const off_t Hole = Untold ? End : ::lseek(Other.Handle, Data, SEEK_HOLE);
        if (Hole < 0) FailToRead(Other.Path, errno);
        At = Untold ? At : Data;
        while (At < Hole) {
            const auto Wanted = static_cast<std::size_t>(std::min<off_t>(Hole - At, Block.size()));
            const std::size_t Got = Other.Read(static_cast<std::uintmax_t>(At), Block.data(), Wanted);
            if (Got == 0) FailToRead(Other.Path, EIO); // it has been cut meanwhile
            Write(static_cast<std::uintmax_t>(At), Block.data(), Got);
            At += static_cast<off_t>(Got);
        }
    }
}

bool File::TakePermissions(const File& Other)
{
    struct stat Wanted {};
    struct stat Own {};
    if (::fstat(Other.Handle, &Wanted) != 0 || ::fstat(Handle, &Own) != 0) return false;
    const bool Owned = Wanted.st_uid == Own.st_uid && Wanted.st_gid == Own.st_gid;
    if (!Owned && ::fchown(Handle, Wanted.st_uid, Wanted.st_gid) != 0) return false;
    if (!TakeAccessList(Other.Handle, Handle)) return false;
    constexpr mode_t Rights = 0777;
    if (::fchmod(Handle, Wanted.st_mode & Rights) == 0) return true;
    // Where all files have the same rights, none can be set.
    return ::fstat(Handle, &Own) == 0 && ((Own.st_mode ^ Wanted.st_mode) & Rights) == 0;
}

File::Granted File::TryLock(Lock Kind) const
{
    struct flock Bytes = LockedBytes[static_cast<int>(Kind)];
    if (::fcntl(Handle, F_OFD_SETLK, &Bytes) == 0) return Granted::Yes;
    return errno == EAGAIN || errno == EACCES ? Granted::No : Granted::Unsupported;
}

File::Time File::EndOfWait()
{
    return std::chrono::steady_clock::now() + std::chrono::seconds(5);
}

File::Granted File::WaitForLock(Lock Kind, Time GivesUp) const
{
    while (true) {
        const Granted Result = TryLock(Kind);
        if (Result != Granted::No || std::chrono::steady_clock::now() > GivesUp) return Result;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace velorix
