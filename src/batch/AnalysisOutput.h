// The results of an analysis as JSON and as comma-separated tables.
#pragma once

#include "batch/AnalysisResults.h"

#include <string>
#include <utility>
#include <vector>

namespace velorix {

// One flat object. Values that aren't finite are null.
std::string ToJson(const AnalysisResults& Results);

// File name endings and contents: "-years.csv", "-money.csv" (calendar years), "-rows.csv", and one table of
// rows by years for each quantity that has both.
std::vector<std::pair<std::string, std::string>> ToCsv(const AnalysisResults& Results, int BaseYear,
                                                       int SupplyStart);

} // namespace velorix
