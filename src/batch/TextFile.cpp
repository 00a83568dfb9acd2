// Texts through the C streams, which tell why an operation failed.
#include "batch/TextFile.h"

#include "base/Failure.h"
#include "base/NewFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace velorix {
namespace {

struct Closer {
    void operator()(std::FILE* Stream) const { std::fclose(Stream); }
};
using Stream = std::unique_ptr<std::FILE, Closer>;

[[noreturn]] void Fail(const std::string& Purpose, const std::string& Name, const std::string& Reason)
{
    throw FileFailure("Can't " + Purpose + " " + Name + ": " + Reason);
}

std::string Quoted(const std::filesystem::path& Path)
{
    return "\"" + Path.string() + "\"";
}

Stream Open(const std::filesystem::path& Path, const char* Mode, const std::string& Purpose)
{
    Stream Opened(std::fopen(Path.c_str(), Mode));
    if (!Opened) Fail(Purpose, Quoted(Path), std::strerror(errno));
    return Opened;
}

// A pipe or a device, or an open file by its number, such as /dev/stdout: it takes the bytes as they come.
bool IsStream(const std::filesystem::path& Path)
{
    std::error_code Unknown;
    const std::string Folder = std::filesystem::weakly_canonical(Path.parent_path(), Unknown).string();
    return std::filesystem::is_other(Path, Unknown) || Folder == "/dev" || Folder.starts_with("/proc/");
}

} // namespace

std::string ReadText(const std::filesystem::path& Path, std::size_t Longest)
{
    const Stream Source = Open(Path, "rb", "read");
    std::string Text;
    char Buffer[65536];
    while (const std::size_t Step = std::fread(Buffer, 1, sizeof Buffer, Source.get())) {
        Text.append(Buffer, Step);
        if (Text.size() > Longest) Fail("read", Quoted(Path), "it is too large");
    }
    if (std::ferror(Source.get()) != 0) Fail("read", Quoted(Path), std::strerror(errno));
    return Text;
}

void WriteText(const std::filesystem::path& Path, const std::string& Text)
{
    if (IsStream(Path)) {
        Stream Target = Open(Path, "wb", "write");
        const bool Written = std::fwrite(Text.data(), 1, Text.size(), Target.get()) == Text.size();
        if (!Written) Fail("write", Quoted(Path), std::strerror(errno));
        if (std::fclose(Target.release()) != 0) Fail("write", Quoted(Path), std::strerror(errno));
        return;
    }
    NewFile Target(Path);
    Target.Append(Text);
    Target.Commit(NewFile::Flush::No);
}

void WriteOut(const std::string& Text)
{
    const bool Written = std::fwrite(Text.data(), 1, Text.size(), stdout) == Text.size();
    if (!Written || std::fflush(stdout) != 0) Fail("write", "standard output", std::strerror(errno));
}

} // namespace velorix
