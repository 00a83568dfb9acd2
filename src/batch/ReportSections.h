// The sections of a report: those that the desktop's print selection has, and some that only a button prints.
#pragma once

#include "batch/Plots.h"

#include <functional>
#include <string>
#include <vector>

namespace velorix {

struct ReportSection {
    std::string Name;  // on the command line
    std::string Title; // in the table of contents
    std::string FailureText;
    PlotBasis Basis;
    bool IsDefault;                // printed unless others are named
    std::function<bool()> Applies; // to the open project
    std::function<void()> Print;
};

// In the order in which they are printed. What shows one year shows that of the view.
std::vector<ReportSection> AllReportSections(const PlotView& View);

std::vector<std::string> ReportSectionNames();

} // namespace velorix
