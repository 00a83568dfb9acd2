// The commit of the input screen, stopped ahead of its writing.
#include "batch/CheckCommand.h"

#include "analysis/Program.h"
#include "base/Failure.h"
#include "batch/FileJobs.h"
#include "batch/OutputFile.h"
#include "batch/PinnedFields.h"
#include "batch/Tell.h"
#include "input/Commit.h"
#include "input/Session.h"
#include "platform/ScriptedPlatform.h"

#include <nlohmann/json.hpp>

namespace velorix {
namespace {

using Json = nlohmann::json;

constexpr const char* WouldBeSaved = "ok";

// What the user would be told of a save.
std::string AnswerToSave(const ScriptedPlatform& Windows)
{
    SaveAs = 1; // the commit ends ahead of the writing
    try {
        CommitProject();
    } catch (const Failure& Problem) {
        return Problem.what();
    }
    return Committing == 0 ? WouldBeSaved : Windows.Messages.back().Text;
}

std::string CheckOne(const InputFile& File)
{
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    StartSession();
    const std::vector<std::string> Warnings = LoadAndTellPinned(File.Path);
    const std::string Answer = IsTooShort(File.Path) ? TooShort : AnswerToSave(Windows);
    std::string Bytes;
    Json::to_cbor({{"answer", Answer}, {"warnings", Warnings}}, Bytes);
    return Bytes;
}

Ending TakeCheck(const InputFile& File, const WorkerOutcome& Outcome)
{
    std::string Answer = WordFor(Outcome.End);
    if (Outcome.End == WorkerEnd::Finished) {
        const Json Report = Json::from_cbor(Outcome.Text);
        TellOf(File, Report["warnings"]);
        Answer = Report["answer"];
    }
    WriteOut(Readable(File.Name + ": " + Answer) + "\n");
    return Answer == WouldBeSaved ? Ending::AllWell : Ending::DidNotStand;
}

} // namespace

Ending CheckFiles(const std::vector<InputFile>& Files, const WorkerLimits& Limits)
{
    const bool Progress = !IsTerminal(stdout);
    return RunOnFiles(Files, Limits, Progress, CheckOne, TakeCheck);
}

} // namespace velorix
