// What an analysis leaves behind, by name, ready to be written in any form.
#pragma once

#include "base/Single.h"
#include "platform/Platform.h"

#include <string>
#include <utility>
#include <vector>

namespace velorix {

struct NamedSeries {
    std::string Name;
    std::vector<Single> Values;
};

// One row of values for each operating year.
struct NamedTable {
    std::string Name;
    int FirstColumn = 1; // number of the first value in a row
    std::vector<std::vector<Single>> Years;
};

struct AnalysisResults {
    std::vector<std::pair<std::string, int>> Counts; // flags and counters
    std::vector<std::pair<std::string, Single>> Scalars;
    std::vector<NamedSeries> ByYear;         // operating years 1 to wLife
    std::vector<NamedSeries> ByCalendarYear; // from the base year on
    std::vector<NamedSeries> ByRow;          // profile rows 1 to NodeCount
    std::vector<NamedTable> ByYearAndRow;
    std::vector<Message> Messages; // in the order shown
};

// Takes the results as they stand in the modules.
AnalysisResults CollectResults(const std::vector<Message>& Shown);

} // namespace velorix
