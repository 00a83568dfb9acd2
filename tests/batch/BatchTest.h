// Runs of the command, and project files to run it on.
#pragma once

#include "batch/ProjectJson.h"
#include "project/ProjectTest.h"

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

    // An example as JSON, to be changed.
    static nlohmann::json Example(const std::string& Name)
    {
        return nlohmann::json::parse(ReadFile(Examples / (Name + ".json")));
    }

    // Writes the project file that the JSON describes.
    void WriteProject(const std::string& Name, const nlohmann::json& Project) const
    {
        WriteFile(Name, BytesOf(ProjectFromJson(Project.dump())));
    }
};

} // namespace velorix
