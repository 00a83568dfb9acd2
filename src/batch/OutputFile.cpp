// New files, and streams that can't be taken back.
#include "batch/OutputFile.h"

#include "base/Failure.h"
#include "batch/Interrupt.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace velorix {
namespace {

[[noreturn]] void Fail(const std::string& Name, int Error)
{
    StopIfInterrupted();
    throw FileFailure("Can't write " + Name + ": " + std::strerror(Error));
}

void WriteTo(std::FILE* Stream, const std::string& Name, const std::string& Text)
{
    const bool Written = std::fwrite(Text.data(), 1, Text.size(), Stream) == Text.size();
    if (!Written || std::fflush(Stream) != 0) Fail(Name, errno);
}

// What isn't a file has no earlier content to keep. A link is followed if the user or the system has made it.
bool IsPipeOrDevice(const std::string& Target)
{
    struct stat Link {};
    struct stat Status {};
    if (::lstat(Target.c_str(), &Link) != 0 || ::stat(Target.c_str(), &Status) != 0) return false;
    const bool Trusted = !S_ISLNK(Link.st_mode) || Link.st_uid == 0 || Link.st_uid == ::geteuid();
    return Trusted && !S_ISREG(Status.st_mode) && !S_ISDIR(Status.st_mode);
}

} // namespace

OutputFile::OutputFile(const std::string& Target)
    : Name(Target == StandardStream ? "standard output" : "\"" + Target + "\"")
{
    if (Target == StandardStream) return;
    if (!IsPipeOrDevice(Target)) {
        Whole.emplace(Target);
        return;
    }
    Stream.reset(std::fopen(Target.c_str(), "wb"));
    if (!Stream) Fail(Name, errno);
}

void OutputFile::Write(const std::string& Text)
{
    if (Whole)
        Whole->Append(Text);
    else
        WriteTo(Stream ? Stream.get() : stdout, Name, Text);
}

void OutputFile::Finish()
{
    if (Whole) Whole->Commit(NewFile::Flush::No); // results can be made again, and are many
    if (Stream && std::fclose(Stream.release()) != 0) Fail(Name, errno);
}

void WriteResult(const OutputGuard& Guard, const std::filesystem::path& Target, const std::string& Text)
{
    Guard.RequireResult(Target);
    OutputFile Result(Target.string());
    Result.Write(Text);
    Result.Finish();
}

void WriteOut(const std::string& Text)
{
    WriteTo(stdout, "standard output", Text);
}

bool IsTerminal(std::FILE* Stream)
{
    return ::isatty(::fileno(Stream)) == 1;
}

void MakeFolder(const std::filesystem::path& Folder)
{
    std::error_code Problem;
    std::filesystem::create_directories(Folder, Problem);
    if (Problem) throw FileFailure("Can't make the folder \"" + Folder.string() + "\": " + Problem.message());
}

} // namespace velorix
