// Runs of the command, and project files to run it on.
#pragma once

#include "batch/ProjectJson.h"
#include "input/ProjectTest.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

namespace velorix {

const std::filesystem::path Examples = VELORIX_EXAMPLES;

// The stems of the examples' files with that extension, in their order.
inline std::vector<std::string> ExampleNames(const std::string& Extension = ".vlx")
{
    std::vector<std::string> Names;
    for (const auto& Each : std::filesystem::directory_iterator(Examples))
        if (Each.path().extension() == Extension) Names.push_back(Each.path().stem());
    std::sort(Names.begin(), Names.end());
    return Names;
}

inline nlohmann::json DescriptionOf(const std::string& Example)
{
    std::ifstream Source(Examples / (Example + ".json"));
    return nlohmann::json::parse(Source);
}

class BatchTest : public ProjectTest {
protected:
    struct Run {
        int Status = 0;
        std::string Output;
        std::string Errors;
    };

    // Runs a shell line in the test's folder; velorix-batch is the program.
    Run Shell(const std::string& Line) const
    {
        const std::string Programs = std::filesystem::path(VELORIX_BATCH).parent_path();
        const std::string In = "cd '" + Folder.string() + "' && PATH='" + Programs + "':\"$PATH\" && { ";
        const int Status = std::system((In + Line + "; } >out.txt 2>err.txt").c_str());
        return {WIFEXITED(Status) ? WEXITSTATUS(Status) : -1, ReadFile(Folder / "out.txt"),
                ReadFile(Folder / "err.txt")};
    }
    Run Batch(const std::string& Words) const { return Shell("velorix-batch " + Words); }

    // What can't be done ends with its status, tells its reason, prints nothing and leaves every file as it
    // was.
    struct Refusal {
        std::string Words;
        std::string Reason;
        int Status = 1;
    };
    void ExpectRefused(const std::string& Command, const std::vector<Refusal>& All) const
    {
        const auto Before = Contents();
        for (const auto& [Words, Reason, Status] : All) {
            const Run Refused = Batch(Command + " " + Words);
            EXPECT_EQ(Refused.Status, Status) << Words;
            EXPECT_EQ(Refused.Output, "") << Words;
            EXPECT_THAT(Refused.Errors, testing::HasSubstr(Reason)) << Words;
            EXPECT_TRUE(Contents() == Before) << Words;
        }
    }

    // Writes the project file of an example with some fields changed.
    void WriteExample(const std::string& Name, const std::string& Example,
                      const nlohmann::json& Changes = nlohmann::json::object()) const
    {
        auto Project = DescriptionOf(Example);
        Project.update(Changes);
        WriteFile(Name, BytesOf(ProjectFromJson(Project.dump())));
    }

private:
    // Every file below the folder but those of the output.
    std::map<std::string, std::string> Contents() const
    {
        std::map<std::string, std::string> Files;
        for (const auto& Each : std::filesystem::recursive_directory_iterator(Folder))
            Files[Each.path()] = Each.is_regular_file() ? ReadFile(Each) : "";
        for (const char* Name : {"out.txt", "err.txt"}) Files.erase(Folder / Name);
        return Files;
    }
};

// Turns a fixture into that of tests which go over every example.
template <typename Fixture>
class OfEachExample : public Fixture, public testing::WithParamInterface<std::string> {
protected:
    const std::string Example = this->GetParam();
    const std::string File = Examples / (Example + ".vlx");
    const nlohmann::json Project = DescriptionOf(Example);
    const bool Pumping = Project["SystemType"] == "Pumping system";
};

} // namespace velorix
