// Work on many files: each in a worker of its own, the outcomes in the order of the files.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Worker.h"

#include <functional>

namespace velorix {

// Runs Work on each file and hands what comes of it to Take, which writes it and says how it ends; a file
// whose work failed, crashed or took too long has been told of by then and counts as failed. Returns the
// worst end. With ShowProgress a bar runs on a terminal.
Ending RunOnFiles(const std::vector<InputFile>& Files, const WorkerLimits& Limits, bool ShowProgress,
                  const std::function<std::string(const InputFile&)>& Work,
                  const std::function<Ending(const InputFile&, const WorkerOutcome&)>& Take);

// What is told of a file whose work came to no end: "not read", "crashed", "timed out".
const char* WordFor(WorkerEnd End);

// Warnings about a file, by its name.
void TellOf(const InputFile& File, const std::vector<std::string>& Warnings);

} // namespace velorix
