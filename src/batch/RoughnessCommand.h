// The command that works out roughnesses from measured pressures.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <string>

namespace velorix {

struct RoughnessOptions {
    InputFile Project;
    InputFile Readings;
    std::string JsonTarget; // a file, "-" for standard output, empty for a table
    WorkerLimits Limits;
};

// Works as the roughness screen does, on the project's profile. A reading at a length where the profile has
// no node is told on standard error.
Ending CalculateReadings(const RoughnessOptions& Options);

} // namespace velorix
