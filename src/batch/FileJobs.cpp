// From files to workers and back.
#include "batch/FileJobs.h"

#include "batch/OutputFile.h"
#include "batch/Tell.h"

namespace velorix {
namespace {

// A failure of the file itself names it already, if by the path of what was read.
std::string ReasonFor(const InputFile& File, const std::string& Error)
{
    std::string Reason = Error;
    const std::string Path = "\"" + File.Path.string() + "\"";
    const std::size_t Place = Reason.find(Path);
    if (Place == std::string::npos) return File.Name + ": " + Reason;
    return Reason.replace(Place, Path.size(), "\"" + File.Name + "\"");
}

} // namespace

const char* WordFor(WorkerEnd End)
{
    switch (End) {
    case WorkerEnd::Finished: return "finished";
    case WorkerEnd::Crashed: return "crashed";
    case WorkerEnd::TimedOut: return "timed out";
    case WorkerEnd::Failed: break;
    }
    return "not read";
}

void TellOf(const InputFile& File, const std::vector<std::string>& Warnings)
{
    for (const std::string& Each : Warnings) Tell(File.Name + ": " + Each);
}

Ending RunOnFiles(const std::vector<InputFile>& Files, const WorkerLimits& Limits, bool ShowProgress,
                  const std::function<std::string(const InputFile&)>& Work,
                  const std::function<Ending(const InputFile&, const WorkerOutcome&)>& Take)
{
    const int Count = static_cast<int>(Files.size());
    const ProgressLine Progress(Count, ShowProgress && Count > 1 && IsTerminal(stderr));
    const auto FileOf = [&](int Index) -> const InputFile& { return Files[static_cast<std::size_t>(Index)]; };

    Ending Worst = Ending::AllWell;
    RunWorkers(
        Count, Limits, [&](int Index) { return Work(FileOf(Index)); },
        [&](int Index, const WorkerOutcome& Outcome) {
            Progress.Hide();
            const bool Finished = Outcome.End == WorkerEnd::Finished;
            if (!Finished) Tell(ReasonFor(FileOf(Index), Outcome.Text));
            Worst = Worse(Worst, Finished ? Ending::AllWell : Ending::Failed);
            Worst = Worse(Worst, Take(FileOf(Index), Outcome));
            Progress.Show(Index + 1);
        });
    return Worst;
}

} // namespace velorix
