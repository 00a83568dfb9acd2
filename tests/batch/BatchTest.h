// Runs of the command, and project files to run it on.
#pragma once

#include "batch/ProjectJson.h"
#include "input/ProjectTest.h"

#include <nlohmann/json.hpp>
#include <sys/wait.h>

namespace velorix {

const std::filesystem::path Examples = VELORIX_EXAMPLES;

class BatchTest : public ProjectTest {
protected:
    struct Run {
        int Status = 0;
        std::string Output;
        std::string Errors;
    };

    // Runs the program in the test's folder with the words of a shell line.
    Run Batch(const std::string& Words) const
    {
        const std::string In = "cd '" + Folder.string() + "' && { ";
        const int Status = std::system((In + VELORIX_BATCH " " + Words + "; } >out.txt 2>err.txt").c_str());
        return {WIFEXITED(Status) ? WEXITSTATUS(Status) : -1, ReadFile(Folder / "out.txt"),
                ReadFile(Folder / "err.txt")};
    }

    // Writes the project file of an example with some fields changed.
    void WriteExample(const std::string& Name, const std::string& Example,
                      const nlohmann::json& Changes = nlohmann::json::object()) const
    {
        auto Project = nlohmann::json::parse(ReadFile(Examples / (Example + ".json")));
        Project.update(Changes);
        WriteFile(Name, BytesOf(ProjectFromJson(Project.dump())));
    }
};

} // namespace velorix
