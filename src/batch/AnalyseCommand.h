// The command that analyses project files.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velorix {

// Exit statuses of the program.
constexpr int AllStood = 0;
constexpr int UsageOrFileError = 1;
constexpr int AnalysisDidNotStand = 2;

struct AnalyseOptions {
    std::vector<std::filesystem::path> Files;
    std::string JsonTarget;          // a file, "-" for standard output, empty for a table
    std::filesystem::path CsvFolder; // empty for none
    int Jobs = 1;                    // analyses at a time
};

// Analyses each file as a freshly started program would, in a process of its own, and writes what is asked
// for. Returns the exit status; reasons go to standard error.
int AnalyseFiles(const AnalyseOptions& Options);

} // namespace velorix
