// Analyses in worker processes, and the table of their headline figures.
#include "batch/AnalyseCommand.h"

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "base/Failure.h"
#include "base/Format.h"
#include "batch/AnalysisOutput.h"
#include "batch/Worker.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "platform/ScriptedPlatform.h"
#include "project/File.h"
#include "project/InputScreen.h"
#include "project/Session.h"
#include "project/WorkingSet.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <unistd.h>

namespace velorix {
namespace {

using Json = nlohmann::json;

Date TodayByTheClock()
{
    const std::chrono::year_month_day Today{
        std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now())};
    return {static_cast<int>(Today.year()), static_cast<int>(static_cast<unsigned>(Today.month())),
            static_cast<int>(static_cast<unsigned>(Today.day()))};
}

// The row of the table of headline figures.
Json HeadlinesOf(const std::vector<Message>& Shown)
{
    std::vector<std::string> Messages;
    for (const Message& Each : Shown) Messages.push_back(Each.Text);
    return {{"system", wSystemType == 1 ? "pumping" : "gravity"},
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
    Windows.TodaysDate = TodayByTheClock();
    InstallPlatform(&Windows);
    StartSession();
    FileName = File.string();
    LoadProject();
    AnalyseProject();

    const AnalysisResults Results = CollectResults(Windows.Messages);
    Json Report = {
        {"stood", Analysed == 1}, {"headlines", HeadlinesOf(Windows.Messages)}, {"json", ToJson(Results)}};
    if (WantsCsv) Report["csv"] = ToCsv(Results, wBaseYear, wSupplyStart);
    return Report.dump();
}

void ShowProgress(int Done, int Count)
{
    constexpr int Width = 40;
    const std::string Bar(static_cast<std::size_t>(Width * Done / Count), '#');
    std::fprintf(stderr, "\r[%-*s] %d of %d%s", Width, Bar.c_str(), Done, Count, Done == Count ? "\n" : "");
}

void WriteText(const std::filesystem::path& Path, const std::string& Text)
{
    File Target = File::CreateNew(Path);
    Target.Write(0, Text.data(), Text.size());
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

void PrintTable(const std::vector<std::filesystem::path>& Files, const std::vector<Json>& Reports)
{
    std::vector<std::vector<std::string>> Rows = {
        {"File", "System", "Life", "NPV of cost", "NPV of income", "IRR"}};
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
    std::vector<std::size_t> Widths(Rows.front().size());
    for (const auto& Row : Rows)
        for (std::size_t Col = 0; Col < Row.size(); ++Col)
            Widths[Col] = std::max(Widths[Col], Row[Col].size());

    for (std::size_t Index = 0; Index < Rows.size(); ++Index) {
        for (std::size_t Col = 0; Col < Widths.size(); ++Col) {
            const bool Words = Col < 2; // the first columns hold words, the others figures
            std::printf(Words ? "%-*s" : "%*s", static_cast<int>(Widths[Col]), Rows[Index][Col].c_str());
            std::printf(Col + 1 < Widths.size() ? "   " : "\n");
        }
        if (Index == 0 || Reports[Index - 1].is_null()) continue;
        for (const auto& Text : Reports[Index - 1]["headlines"]["messages"])
            std::printf("    %s\n", Text.get<std::string>().c_str());
    }
}

void WriteJson(const AnalyseOptions& Options, const std::vector<Json>& Reports)
{
    // A file that could not be read keeps its place, as null.
    const auto TextOf = [](const Json& Report) {
        return Report.is_null() ? std::string("null") : Report["json"].get<std::string>();
    };
    std::string Text;
    if (Reports.size() == 1) {
        Text = TextOf(Reports.front());
    } else {
        for (const Json& Each : Reports) Text += (Text.empty() ? "[" : ",\n") + TextOf(Each);
        Text += "]";
    }
    Text += "\n";
    if (Options.JsonTarget == "-")
        std::cout << Text << std::flush;
    else
        WriteText(Options.JsonTarget, Text);
}

void WriteCsv(const AnalyseOptions& Options, const std::vector<Json>& Reports)
{
    std::filesystem::create_directories(Options.CsvFolder);
    for (std::size_t Index = 0; Index < Reports.size(); ++Index) {
        if (Reports[Index].is_null()) continue;
        for (const auto& Each : Reports[Index]["csv"]) {
            const std::string Ending = Each[0];
            WriteText(Options.CsvFolder / (Options.Files[Index].stem().string() + Ending), Each[1]);
        }
    }
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
            if (Progress) ShowProgress(Done, Count);
        });

    int Status = AllStood;
    std::vector<Json> Reports;
    for (std::size_t Index = 0; Index < Outcomes.size(); ++Index) {
        if (!Outcomes[Index].Error.empty()) {
            std::cerr << Options.Files[Index].string() << ": " << Outcomes[Index].Error << "\n";
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
        PrintTable(Options.Files, Reports);
    return Status;
}

} // namespace velorix
