// The command that tells whether projects would be saved.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <vector>

namespace velorix {

// Fills the input screen from each file and checks it as a save does, without writing. Prints a line for
// each: "FILE: ok", or what the user would be told.
Ending CheckFiles(const std::vector<InputFile>& Files, const WorkerLimits& Limits);

} // namespace velorix
