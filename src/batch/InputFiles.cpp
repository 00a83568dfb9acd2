// Inputs by name, and outputs that must not be one of them.
#include "batch/InputFiles.h"

#include "base/Failure.h"
#include "base/File.h"
#include "batch/Interrupt.h"
#include "model/ProjectFile.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velorix {
namespace {

constexpr const char* StandardInput = "-";
constexpr std::size_t LargestStream = 64U << 20U; // more than any project or description of one can need

[[noreturn]] void FailToReadStream(const std::string& Reason)
{
    throw FileFailure("Can't read standard input: " + Reason);
}

// The copy stays open until the program ends, and workers have it by the same path.
std::filesystem::path KeepStandardInput()
{
    const int Kept = ::memfd_create("standard input", 0);
    if (Kept < 0) FailToReadStream(std::strerror(errno));
    char Buffer[65536];
    std::size_t Length = 0;
    while (const ssize_t Step = ::read(STDIN_FILENO, Buffer, sizeof Buffer)) {
        StopIfInterrupted();
        if (Step < 0) FailToReadStream(std::strerror(errno));
        Length += static_cast<std::size_t>(Step);
        if (Length > LargestStream) FailToReadStream("it is too large");
        if (::write(Kept, Buffer, static_cast<std::size_t>(Step)) != Step)
            FailToReadStream(std::strerror(errno));
    }
    return "/proc/self/fd/" + std::to_string(Kept);
}

bool HasProjectName(const std::filesystem::path& Path)
{
    std::string Extension = Path.extension().string();
    std::transform(Extension.begin(), Extension.end(), Extension.begin(),
                   [](unsigned char Each) { return std::tolower(Each); });
    return Extension == ".vlx";
}

bool Exists(const std::filesystem::path& Path)
{
    std::error_code Unknown;
    const auto Type = std::filesystem::symlink_status(Path, Unknown).type();
    return Type != std::filesystem::file_type::not_found;
}

} // namespace

std::string InputFile::Stem() const
{
    return Name == StandardInput ? "stdin" : std::filesystem::path(Name).stem().string();
}

std::vector<InputFile> OpenInputs(const std::vector<std::string>& Names)
{
    if (std::count(Names.begin(), Names.end(), StandardInput) > 1)
        throw Failure("standard input can be read once only");
    std::vector<InputFile> Files;
    for (const std::string& Each : Names)
        Files.push_back({Each, Each == StandardInput ? KeepStandardInput() : std::filesystem::path(Each)});
    return Files;
}

std::string ReadText(const std::filesystem::path& Path, std::size_t Longest)
{
    const auto Refuse = [&](const char* Reason) {
        throw FileFailure("Can't read \"" + Path.string() + "\": " + Reason);
    };
    std::error_code Unknown;
    const auto Type = std::filesystem::status(Path, Unknown).type();
    if (std::filesystem::exists(std::filesystem::file_status(Type)) &&
        Type != std::filesystem::file_type::regular)
        Refuse("it isn't a regular file; a FILE of - is standard input");
    const File Source = File::OpenToRead(Path);
    const std::uintmax_t Length = Source.Length();
    if (Length > Longest) Refuse("it is too large");
    std::string Text(static_cast<std::size_t>(Length), '\0');
    Text.resize(Source.Read(0, Text.data(), Text.size()));
    return Text;
}

void RequireDistinctStems(const std::vector<InputFile>& Files)
{
    std::set<std::string> Stems;
    for (const InputFile& Each : Files)
        if (!Stems.insert(Each.Stem()).second)
            throw Failure("Two of the files are named \"" + Each.Stem() +
                          "\", so their results would overwrite each other");
}

const char* const TooShort = "the file is shorter than 8326 bytes, too short for a project";

bool IsTooShort(const std::filesystem::path& Project)
{
    std::error_code Unknown;
    const std::uintmax_t Length = std::filesystem::file_size(Project, Unknown);
    return !Unknown && RecordNumber(Length) == 0;
}

OutputGuard::OutputGuard(const std::vector<InputFile>& Inputs)
{
    for (const InputFile& Each : Inputs) {
        struct stat Status {};
        const int Asked =
            Each.Name == StandardInput ? ::fstat(STDIN_FILENO, &Status) : ::stat(Each.Path.c_str(), &Status);
        // A device, such as the null device, may be read and written at once.
        if (Asked == 0 && S_ISREG(Status.st_mode)) Read.emplace(Status.st_dev, Status.st_ino);
    }
}

void OutputGuard::RequireNoInput(const std::filesystem::path& Output) const
{
    struct stat Status {};
    if (::stat(Output.c_str(), &Status) == 0 && Read.count({Status.st_dev, Status.st_ino}) != 0)
        throw Failure("\"" + Output.string() + "\" is read by this command and can't be written by it too");
}

void OutputGuard::RequireResult(const std::filesystem::path& Output) const
{
    RequireNoInput(Output);
    std::error_code Unknown;
    const std::filesystem::path Meant = std::filesystem::weakly_canonical(Output, Unknown); // behind links
    if (Exists(Output) && (HasProjectName(Output) || HasProjectName(Meant)))
        throw Failure("\"" + Output.string() + "\" is a project; only import writes over one");
}

void OutputGuard::RequireProject(const std::filesystem::path& Output, bool Forced) const
{
    RequireNoInput(Output);
    if (Forced || !Exists(Output)) return;
    std::error_code Unknown;
    const bool Replaceable =
        HasProjectName(Output) && std::filesystem::is_regular_file(Output, Unknown) && !IsTooShort(Output);
    if (!Replaceable)
        throw Failure("\"" + Output.string() +
                      "\" is there and isn't a project file; --force writes over it all the same");
}

} // namespace velorix
