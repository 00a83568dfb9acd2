// Analyses in worker processes, and the table of their headline figures.
#include "batch/AnalyseCommand.h"

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "base/Failure.h"
#include "base/Format.h"
#include "base/Text.h"
#include "batch/AnalysisOutput.h"
#include "batch/TextFile.h"
#include "batch/Worker.h"
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <unistd.h>

namespace velorix {
namespace {

using Json = nlohmann::json;

// The row of the table of headline figures.
Json HeadlinesOf(const std::vector<Message>& Shown)
{
    std::vector<std::string> Messages;
    for (const Message& Each : Shown) Messages.push_back(Each.Text);
    return {{"system", IsPumping() ? "pumping" : "gravity"},
            {"life", std::to_string(wLife)},
            {"cost", CurrencySign() + Format(NpvCost, "#,###,###,###,###,000")},
            {"income", CurrencySign() + Format(NpvIncome, "#,###,###,###,###,000")},
            {"irr", Format(Irr, "#0.000") + " %"},
            {"messages", Messages}};
}

// Runs in the worker: the whole session of one file. The report crosses the pipe as JSON.
std::string AnalyseOne(const std::filesystem::path& File, bool WantsCsv)
{
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    StartSession();
    FileName = File.string();
    LoadProject();
    AnalyseProject(Tables::LeftOut);

    const AnalysisResults Results = CollectResults(Windows.Messages);
    Json Report = {
        {"stood", Analysed == 1}, {"headlines", HeadlinesOf(Windows.Messages)}, {"json", ToJson(Results)}};
    if (WantsCsv) Report["csv"] = ToCsv(Results, wBaseYear, wSupplyStart);
    return Report.dump();
}

void ShowCount(int Done, int Count)
{
    constexpr int Width = 40;
    const std::string Bar(static_cast<std::size_t>(Width * Done / Count), '#');
    std::fprintf(stderr, "\r[%-*s] %d of %d%s", Width, Bar.c_str(), Done, Count, Done == Count ? "\n" : "");
}

// Two files of one name in different folders would write the same tables.
void RequireDistinctNames(const std::vector<std::filesystem::path>& Files)
{
    std::set<std::string> Names;
    for (const auto& Each : Files)
        if (!Names.insert(Each.stem().string()).second)
            throw FileFailure("Two of the files are named \"" + Each.stem().string() +
                              "\", so their tables would overwrite each other");
}

using TableRows = std::vector<std::vector<std::string>>;

TableRows RowsOf(const std::vector<std::filesystem::path>& Files, const std::vector<Json>& Reports)
{
    TableRows Rows = {{"File", "System", "Life", "NPV of cost", "NPV of income", "IRR"}};
    for (std::size_t Index = 0; Index < Files.size(); ++Index) {
        const Json& Report = Reports[Index];
        if (Report.is_null()) {
            Rows.push_back({Files[Index].string(), "not read", "", "", "", ""});
            continue;
        }
        const Json& Figures = Report["headlines"];
        const bool Stood = Report["stood"];
        Rows.push_back({Files[Index].string(), Figures["system"], Figures["life"],
                        Stood ? Figures["cost"] : Json(""), Stood ? Figures["income"] : Json(""),
                        Stood ? Figures["irr"] : Json("did not stand")});
    }
    return Rows;
}

std::string TableText(const std::vector<std::filesystem::path>& Files, const std::vector<Json>& Reports)
{
    const TableRows Rows = RowsOf(Files, Reports);
    std::vector<int> Widths(Rows.front().size());
    for (const auto& Row : Rows)
        for (std::size_t Col = 0; Col < Row.size(); ++Col)
            Widths[Col] = std::max(Widths[Col], CharacterCount(Row[Col]));

    std::string Table;
    for (std::size_t Index = 0; Index < Rows.size(); ++Index) {
        for (std::size_t Col = 0; Col < Widths.size(); ++Col) {
            const std::string& Cell = Rows[Index][Col];
            const std::string Blanks(static_cast<std::size_t>(Widths[Col] - CharacterCount(Cell)), ' ');
            const bool Words = Col < 2; // the first columns hold words, the others figures
            Table += (Words ? Cell + Blanks : Blanks + Cell) + (Col + 1 < Widths.size() ? "   " : "\n");
        }
        if (Index == 0 || Reports[Index - 1].is_null()) continue;
        for (const auto& Text : Reports[Index - 1]["headlines"]["messages"])
            Table += "    " + Text.get<std::string>() + "\n";
    }
    return Table;
}

void WriteJson(const AnalyseOptions& Options, const std::vector<Json>& Reports)
{
    // A file that could not be read keeps its place among several, as null.
    const auto TextOf = [](const Json& Report) {
        return Report.is_null() ? std::string("null") : Report["json"].get<std::string>();
    };
    std::string Text;
    if (Reports.size() == 1) {
        if (Reports.front().is_null()) return;
        Text = TextOf(Reports.front());
    } else {
        for (const Json& Each : Reports) Text += (Text.empty() ? "[" : ",\n") + TextOf(Each);
        Text += "]";
    }
    Text += "\n";
    if (Options.JsonTarget == "-")
        WriteOut(Text);
    else
        WriteText(Options.JsonTarget, Text);
}

void WriteCsv(const AnalyseOptions& Options, const std::vector<Json>& Reports)
{
    std::error_code Problem;
    std::filesystem::create_directories(Options.CsvFolder, Problem);
    if (Problem)
        throw FileFailure("Can't make the folder \"" + Options.CsvFolder.string() +
                          "\": " + Problem.message());
    for (std::size_t Index = 0; Index < Reports.size(); ++Index) {
        if (Reports[Index].is_null()) continue;
        for (const auto& Each : Reports[Index]["csv"]) {
            const std::string Ending = Each[0];
            WriteText(Options.CsvFolder / (Options.Files[Index].stem().string() + Ending), Each[1]);
        }
    }
}

// A failure of the file itself names it already.
std::string ReasonFor(const std::filesystem::path& File, const std::string& Error)
{
    const bool Named = Error.find(File.string()) != std::string::npos;
    return Named ? Error : File.string() + ": " + Error;
}

} // namespace

int AnalyseFiles(const AnalyseOptions& Options)
{
    const bool WantsCsv = !Options.CsvFolder.empty();
    if (WantsCsv) RequireDistinctNames(Options.Files);

    const int Count = static_cast<int>(Options.Files.size());
    const bool Progress = Count > 1 && ::isatty(STDERR_FILENO) == 1;
    const auto Outcomes = RunWorkers(
        Count, Options.Jobs,
        [&](int Index) { return AnalyseOne(Options.Files[static_cast<std::size_t>(Index)], WantsCsv); },
        [&](int Done) {
            if (Progress) ShowCount(Done, Count);
        });

    int Status = AllStood;
    std::vector<Json> Reports;
    for (std::size_t Index = 0; Index < Outcomes.size(); ++Index) {
        if (!Outcomes[Index].Error.empty()) {
            std::cerr << "velorix-batch: " << ReasonFor(Options.Files[Index], Outcomes[Index].Error) << "\n";
            Status = UsageOrFileError;
            Reports.emplace_back(nullptr);
            continue;
        }
        Reports.push_back(Json::parse(Outcomes[Index].Output));
        if (!Reports.back()["stood"].get<bool>() && Status == AllStood) Status = AnalysisDidNotStand;
    }

    if (WantsCsv) WriteCsv(Options, Reports);
    if (!Options.JsonTarget.empty())
        WriteJson(Options, Reports);
    else
        WriteOut(TableText(Options.Files, Reports));
    return Status;
}

} // namespace velorix
