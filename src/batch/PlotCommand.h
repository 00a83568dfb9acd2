// The command that draws plots of a project.
#pragma once

#include "batch/ExitStatus.h"
#include "batch/InputFiles.h"
#include "batch/Plots.h"
#include "batch/Worker.h"

#include <string>
#include <vector>

namespace velorix {

constexpr const char* EveryPlot = "all";

// What a plot is written as, the first where nothing is said.
extern const std::vector<std::string> PlotFormats;

struct PlotOptions {
    InputFile Project;
    std::string Plot; // its name, or EveryPlot
    PlotView View;
    std::string Out;    // a file or "-" for standard output; of EveryPlot a folder
    std::string Format; // empty for that of the file's name
    WorkerLimits Limits;
};

// Draws the plot into the file, or each that applies to the project into the folder as STEM-PLOT.FORMAT. What
// an analysis or a plot has to say goes to standard error; a plot that can't be drawn leaves no file. Throws
// Failure when the options don't go together or something can't be written.
Ending PlotProject(const PlotOptions& Options);

} // namespace velorix
