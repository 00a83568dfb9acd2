// Export and import.
#include "batch/ProjectCommands.h"

#include "base/Failure.h"
#include "batch/Clock.h"
#include "batch/FileJobs.h"
#include "batch/OutputFile.h"
#include "batch/ProjectJson.h"
#include "model/ProjectFile.h"
#include "platform/ScriptedPlatform.h"

#include <algorithm>

namespace velorix {
namespace {

// More than any description of a project can need.
constexpr std::size_t LargestJson = 16U << 20U;

std::string ExportOne(const InputFile& Project)
{
    const ProjectFields Record = ReadProjectFile(Project.Path);
    if (IsTooShort(Project.Path)) throw Failure(TooShort);
    return ProjectToJson(Record);
}

// The bytes of the record; the parent writes them.
std::string ImportOne(const InputFile& Description)
{
    ScriptedPlatform Windows;
    Windows.TodaysDate = TodayByTheClock();
    InstallPlatform(&Windows);
    const std::string Text = ReadText(Description.Path, LargestJson);
    try {
        const RecordImage Image = ToImage(ProjectFromJson(Text));
        return {Image.begin(), Image.end()};
    } catch (const Failure& Problem) {
        throw Failure("Can't import \"" + Description.Path.string() + "\": " + Problem.what());
    }
}

ProjectFields RecordOf(const std::string& Bytes)
{
    RecordImage Image{};
    std::copy(Bytes.begin(), Bytes.end(), Image.begin());
    return FromImage(Image);
}

} // namespace

Ending ExportProjects(const std::vector<InputFile>& Projects, const std::filesystem::path& Folder,
                      const WorkerLimits& Limits)
{
    const OutputGuard Guard(Projects);
    if (!Folder.empty()) MakeFolder(Folder);
    return RunOnFiles(Projects, Limits, true, ExportOne,
                      [&](const InputFile& Project, const WorkerOutcome& Outcome) {
                          if (Outcome.End != WorkerEnd::Finished) return Ending::Failed;
                          if (Folder.empty())
                              WriteOut(Outcome.Text);
                          else
                              WriteResult(Guard, Folder / (Project.Stem() + ".json"), Outcome.Text);
                          return Ending::AllWell;
                      });
}

Ending ImportProjects(const ImportOptions& Options)
{
    const OutputGuard Guard(Options.Descriptions);
    for (const auto& Each : Options.Projects) Guard.RequireProject(Each, Options.Force);
    std::size_t Next = 0;
    return RunOnFiles(Options.Descriptions, Options.Limits, true, ImportOne,
                      [&](const InputFile&, const WorkerOutcome& Outcome) {
                          const std::filesystem::path& Target = Options.Projects[Next++];
                          if (Outcome.End != WorkerEnd::Finished) return Ending::Failed;
                          WriteProjectFile(Target, RecordOf(Outcome.Text), ShortFile::TakesRecordOne);
                          return Ending::AllWell;
                      });
}

} // namespace velorix
