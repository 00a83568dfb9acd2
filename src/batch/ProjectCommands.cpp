// Export and import of one project.
#include "batch/ProjectCommands.h"

#include "base/Failure.h"
#include "batch/ProjectJson.h"
#include "batch/TextFile.h"
#include "model/ProjectFile.h"
#include "platform/ScriptedPlatform.h"

#include <ctime>

namespace velorix {
namespace {

// More than any description of a project can need.
constexpr std::size_t LargestJson = 16U << 20U;

// The date by the machine's clock, in local time.
Date TodayByTheClock()
{
    const std::time_t Now = std::time(nullptr);
    std::tm Parts{};
    ::localtime_r(&Now, &Parts);
    return {Parts.tm_year + 1900, Parts.tm_mon + 1, Parts.tm_mday};
}

} // namespace

void ExportProject(const std::filesystem::path& ProjectFile)
{
    WriteOut(ProjectToJson(ReadProjectFile(ProjectFile)));
}

void ImportProject(const std::filesystem::path& JsonFile, const std::filesystem::path& ProjectFile)
{
    ScriptedPlatform Windows;
    Windows.TodaysDate = TodayByTheClock();
    InstallPlatform(&Windows);
    const std::string Text = ReadText(JsonFile, LargestJson);
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
