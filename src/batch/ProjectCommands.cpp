// Export and import of one project.
#include "batch/ProjectCommands.h"

#include "base/Failure.h"
#include "batch/ProjectJson.h"
#include "platform/ScriptedPlatform.h"
#include "project/File.h"
#include "project/ProjectFile.h"

#include <iostream>

namespace velorix {
namespace {

// More than any description of a project can need.
constexpr std::uintmax_t LargestJson = 16U << 20U;

std::string ReadText(const std::filesystem::path& Path)
{
    const File Source = File::OpenToRead(Path);
    if (Source.Length() > LargestJson)
        throw FileFailure("Can't read \"" + Path.string() + "\": it is too large");
    std::string Text(static_cast<std::size_t>(Source.Length()), '\0');
    Text.resize(Source.Read(0, Text.data(), Text.size()));
    return Text;
}

} // namespace

void ExportProject(const std::filesystem::path& ProjectFile)
{
    std::cout << ProjectToJson(ReadProjectFile(ProjectFile)) << std::flush;
}

void ImportProject(const std::filesystem::path& JsonFile, const std::filesystem::path& ProjectFile)
{
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    const std::string Text = ReadText(JsonFile);
    try {
        const ProjectFields Record = ProjectFromJson(Text);
        WriteProjectFile(ProjectFile, Record, ShortFile::TakesRecordOne);
    } catch (const FileFailure&) {
        throw;
    } catch (const Failure& Problem) {
        throw Failure("Can't import \"" + JsonFile.string() + "\": " + Problem.what());
    }
}

} // namespace velorix
