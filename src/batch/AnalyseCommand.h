// The command that analyses project files.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <filesystem>
#include <string>
#include <vector>

namespace velorix {

struct AnalyseOptions {
    std::vector<InputFile> Files;
    std::string JsonTarget;          // a file, "-" for standard output, empty for a table
    std::filesystem::path CsvFolder; // empty for none
    WorkerLimits Limits;
};

// Analyses each file as a freshly started program would, in a process of its own, and writes what is asked
// for, file by file. Reasons go to standard error. Throws Failure when something can't be written.
Ending AnalyseFiles(const AnalyseOptions& Options);

} // namespace velorix
