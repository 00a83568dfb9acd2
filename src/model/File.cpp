// Files on POSIX.
#include "model/File.h"

#include "base/Failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velorix {
namespace {

constexpr const char* Reading = "read";
constexpr const char* Writing = "write";
constexpr mode_t NewFileMode = 0666; // less the user's mask

} // namespace

File::File(const std::filesystem::path& Where, int Flags, const char* Purpose)
    : Path(Where)
{
    // Without O_NONBLOCK the opening of a pipe would wait for its other end.
    Handle = ::open(Path.c_str(), Flags | O_CLOEXEC | O_NONBLOCK, NewFileMode);
    if (Handle < 0) Fail(Purpose, errno);
    struct stat Status {};
    const int Asked = ::fstat(Handle, &Status);
    const int Error = Asked != 0                ? errno
                      : S_ISDIR(Status.st_mode) ? EISDIR
                      : S_ISREG(Status.st_mode) ? 0
                                                : EINVAL;
    if (Error == 0) return;
    ::close(Handle);
    Handle = -1;
    Fail(Purpose, Error);
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

File File::OpenToRead(const std::filesystem::path& Path)
{
    return File(Path, O_RDONLY, Reading);
}

File File::OpenToWrite(const std::filesystem::path& Path)
{
    return File(Path, O_RDWR | O_CREAT, Writing);
}

File File::CreateNew(const std::filesystem::path& Path)
{
    return File(Path, O_RDWR | O_CREAT | O_TRUNC, Writing);
}

void File::Fail(const char* Purpose, int Error) const
{
    throw FileFailure("Can't " + std::string(Purpose) + " \"" + Path.string() +
                      "\": " + std::generic_category().message(Error));
}

std::uintmax_t File::Length() const
{
    struct stat Status {};
    if (::fstat(Handle, &Status) != 0) Fail(Reading, errno);
    return static_cast<std::uintmax_t>(Status.st_size);
}

std::size_t File::Read(std::uintmax_t Start, char* Bytes, std::size_t Count) const
{
    std::size_t Done = 0;
    while (Done < Count) {
        const ssize_t Step = ::pread(Handle, Bytes + Done, Count - Done, static_cast<off_t>(Start + Done));
        if (Step < 0 && errno == EINTR) continue;
        if (Step < 0) Fail(Reading, errno);
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
        if (Step < 0) Fail(Writing, errno);
        Done += static_cast<std::size_t>(Step);
    }
}

void File::Truncate(std::uintmax_t Length)
{
    if (::ftruncate(Handle, static_cast<off_t>(Length)) != 0) Fail(Writing, errno);
}

void File::Flush()
{
    if (::fsync(Handle) != 0) Fail(Writing, errno);
}

} // namespace velorix
