// The command that prints projects into PDF files.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <optional>
#include <string>
#include <vector>

namespace velorix {

struct ReportOptions {
    std::vector<InputFile> Files;
    std::string Pdf;                   // a file or "-"; the folder of STEM.pdf for several files
    std::vector<std::string> Sections; // by name; all that the project and its results allow when empty
    std::optional<int> Year;           // of what shows one year, from 1
    WorkerLimits Limits;
};

// Prints each project as the desktop does, into a file of its own. A named section that doesn't apply, or a
// year beyond the design life, leaves no file; an analysis that doesn't stand leaves out the results; a
// section that fails is the last, and isn't printed itself; a graph that can't be drawn leaves its place
// empty. All of these count as not standing, and are told on standard error, as is a file that can't be
// written. Throws Failure when the options don't go together.
Ending ReportFiles(const ReportOptions& Options);

} // namespace velorix
