// JSON and comma-separated forms of the results.
#include "batch/AnalysisOutput.h"

#include "base/NumberText.h"
#include "batch/JsonText.h"

#include <algorithm>

namespace velorix {
namespace {

std::string ListOf(const std::vector<Single>& Values)
{
    std::vector<std::string> Texts;
    for (const Single Each : Values) Texts.push_back(JsonNumber(Each));
    return JsonList(Texts);
}

std::string MessagesOf(const AnalysisResults& Results)
{
    std::vector<std::string> Texts;
    for (const Message& Each : Results.Messages)
        Texts.push_back("{\"title\": " + JsonString(Each.Title) + ", \"text\": " + JsonString(Each.Text) +
                        "}");
    return JsonList(Texts);
}

// One line for each entry, led by its number; a series that has ended leaves its cell empty.
std::string SeriesCsv(const std::string& NumberName, int FirstNumber, const std::vector<NamedSeries>& Series)
{
    std::string Text = NumberName;
    std::size_t Longest = 0;
    for (const NamedSeries& Each : Series) {
        Text += "," + Each.Name;
        Longest = std::max(Longest, Each.Values.size());
    }
    for (std::size_t Index = 0; Index < Longest; ++Index) {
        Text += "\n" + std::to_string(FirstNumber + static_cast<int>(Index));
        for (const NamedSeries& Each : Series)
            Text += "," + (Index < Each.Values.size() ? GeneralText(Each.Values[Index]) : "");
    }
    return Text + "\n";
}

// One line for each year, one column for each row of the profile.
std::string TableCsv(const NamedTable& Table, int FirstYear)
{
    std::string Text = "Year";
    const std::size_t Columns = Table.Years.empty() ? 0 : Table.Years.front().size();
    for (std::size_t Column = 0; Column < Columns; ++Column)
        Text += "," + std::to_string(Table.FirstColumn + static_cast<int>(Column));
    int Year = FirstYear;
    for (const std::vector<Single>& Values : Table.Years) {
        Text += "\n" + std::to_string(Year++);
        for (const Single Each : Values) Text += "," + GeneralText(Each);
    }
    return Text + "\n";
}

} // namespace

std::string ToJson(const AnalysisResults& Results)
{
    JsonObject Object;
    for (const auto& [Name, Value] : Results.Counts) Object.Add(Name, std::to_string(Value));
    for (const auto& [Name, Value] : Results.Scalars) Object.Add(Name, JsonNumber(Value));
    for (const auto* Series : {&Results.ByYear, &Results.ByCalendarYear, &Results.ByRow})
        for (const NamedSeries& Each : *Series) Object.Add(Each.Name, ListOf(Each.Values));
    for (const NamedTable& Each : Results.ByYearAndRow) {
        std::vector<std::string> Years;
        for (const std::vector<Single>& Values : Each.Years) Years.push_back(ListOf(Values));
        Object.Add(Each.Name, JsonList(Years));
    }
    Object.Add("messages", MessagesOf(Results));
    return Object.Text();
}

std::vector<std::pair<std::string, std::string>> ToCsv(const AnalysisResults& Results, int BaseYear,
                                                       int SupplyStart)
{
    std::vector<std::pair<std::string, std::string>> Files = {
        {"-years.csv", SeriesCsv("Year", SupplyStart, Results.ByYear)},
        {"-money.csv", SeriesCsv("Year", BaseYear, Results.ByCalendarYear)},
        {"-rows.csv", SeriesCsv("Row", 1, Results.ByRow)}};
    for (const NamedTable& Each : Results.ByYearAndRow)
        Files.emplace_back("-" + Each.Name + ".csv", TableCsv(Each, SupplyStart));
    return Files;
}

} // namespace velorix
