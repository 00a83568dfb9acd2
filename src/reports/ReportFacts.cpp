// Texts of the working set.
#include "reports/ReportFacts.h"

#include "base/Text.h"
#include "input/Session.h"
#include "model/WorkingSet.h"

#include <filesystem>

namespace velorix {

DocumentFacts FactsOfProject()
{
    std::string Title = Trim(wProject);
    if (Title.empty()) Title = std::filesystem::path(FileName).stem().string();
    if (Title.empty()) Title = "Velorix";
    return {.Title = Title, .Subject = Trim(wDescription), .Author = Trim(wDesigner)};
}

} // namespace velorix
