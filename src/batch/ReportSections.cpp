// Sections by their names.
#include "batch/ReportSections.h"

#include "reports/Sections.h"

#include <algorithm>

namespace velorix {
namespace {

// A page that a button of the desktop prints, and the plot that it shows.
struct ButtonSection {
    const char* Name; // of both the page and the section
    const char* PlotName;
};
constexpr ButtonSection ButtonSections[] = {
    {"duty", "duty"}, {"pump-curve", "pump-curve"}, {"profile-graph", "profile"}};

template <typename Rows>
const auto& Named(const Rows& All, const std::string& Name)
{
    return *std::find_if(All.begin(), All.end(), [&](const auto& Each) { return Each.Name == Name; });
}

ReportSection SectionOf(const PrintSection& Row)
{
    const bool OfResults = Row.Needed == Needs::Analysis;
    return {.Name = Row.Name,
            .Title = Row.Title,
            .FailureText = Row.Failure,
            .Basis = OfResults ? PlotBasis::ResultsWithTables : PlotBasis::Inputs,
            .IsDefault = true,
            .Applies = [OfResults, Needed = Row.Needed] { return OfResults || Stands(Needed); },
            .Print = Row.Print};
}

ReportSection SectionOf(const ButtonSection& Row, const PlotView& View)
{
    const DirectPrint& Button = Named(DirectPrints(), Row.Name);
    const Plot& Shown = Named(AllPlots(), Row.PlotName);
    return {.Name = Row.Name,
            .Title = Button.Title,
            .FailureText = std::string("Could not print the ") + Button.Title + " !",
            .Basis = Shown.Basis,
            .IsDefault = false,
            .Applies = Shown.Applies,
            .Print = [&Button, &Shown, View] {
                Shown.Surface.Clear(); // of what another section has drawn there
                Shown.Draw(View);
                Button.Print();
            }};
}

} // namespace

std::vector<ReportSection> AllReportSections(const PlotView& View)
{
    std::vector<ReportSection> All;
    for (const PrintSection& Each : PrintSections()) All.push_back(SectionOf(Each));
    for (const ButtonSection& Each : ButtonSections) All.push_back(SectionOf(Each, View));
    return All;
}

std::vector<std::string> ReportSectionNames()
{
    std::vector<std::string> Names;
    for (const PrintSection& Each : PrintSections()) Names.emplace_back(Each.Name);
    for (const ButtonSection& Each : ButtonSections) Names.emplace_back(Each.Name);
    return Names;
}

} // namespace velorix
