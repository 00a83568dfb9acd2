// Any bytes as a project file.
#include "AnyFile.h"

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace velorix {
namespace {

void Require(bool Holds, const char* What)
{
    if (Holds) return;
    std::fprintf(stderr, "broken: %s\n", What);
    std::abort();
}

} // namespace

void AnalyseAnyFile(const std::string& Bytes)
{
    const std::filesystem::path Path =
        std::filesystem::temp_directory_path() / ("velorix-any-" + std::to_string(::getpid()) + ".vlx");
    std::ofstream(Path, std::ios::binary) << Bytes;

    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    ResetProgram();
    StartSession();
    FileName = Path.string();
    LoadProject();
    std::filesystem::remove(Path);
    Require(ProjectOpen == 1, "every file of bytes is a project");
    Require(wLife >= 2 && wLife <= 100, "the life is one that its control holds");
    Require(NodeCount >= 2 && NodeCount <= 499, "the profile has 2 to 499 nodes");

    AnalyseProject(Tables::LeftOut);
    Require(Analysed == 1 || !Windows.Messages.empty(), "an analysis that doesn't stand says why");
    Require(Analysed == 0 || Windows.Messages.size() <= 2,
            "an analysis that stands has at most two things to say");
    InstallPlatform(nullptr); // it ends here
}

} // namespace velorix
