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
// section that fails is the last, and isn't printed itself. All three count as not standing, and are told on
// standard error. Throws Failure when the options don't go together or something can't be written.
Ending ReportFiles(const ReportOptions& Options);

} // namespace velorix
