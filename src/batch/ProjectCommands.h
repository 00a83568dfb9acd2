// The commands that turn project files into JSON and back.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <filesystem>
#include <string>
#include <vector>

namespace velorix {

// Writes each project as JSON to the folder, under its stem; without a folder to standard output.
Ending ExportProjects(const std::vector<InputFile>& Projects, const std::filesystem::path& Folder,
                      const WorkerLimits& Limits);

struct ImportOptions {
    std::vector<InputFile> Descriptions;
    std::vector<std::filesystem::path> Projects; // to be written, one for each
    bool Force = false;                          // over files that aren't projects too
    WorkerLimits Limits;
};

// Writes the projects that the JSON files describe. A description with anything wrong is told with file, key
// and reason, and its project isn't touched.
Ending ImportProjects(const ImportOptions& Options);

} // namespace velorix
