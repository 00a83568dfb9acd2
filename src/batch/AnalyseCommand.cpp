// Analyses in worker processes, and what is written of each.
#include "batch/AnalyseCommand.h"

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "base/Failure.h"
#include "base/Format.h"
#include "batch/AnalysisOutput.h"
#include "batch/FileJobs.h"
#include "batch/HeadlineTable.h"
#include "batch/OutputFile.h"
#include "batch/PinnedFields.h"
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"

#include <nlohmann/json.hpp>
#include <optional>

namespace velorix {
namespace {

using Json = nlohmann::json;

// The row of the table of headline figures behind the file's name.
Json HeadlinesOf(bool Stood)
{
    const auto Amount = [](Single Value) { return CurrencySign() + Format(Value, "#,###,###,###,###,000"); };
    return {IsPumping() ? "pumping" : "gravity", std::to_string(wLife), Stood ? Amount(NpvCost) : "",
            Stood ? Amount(NpvIncome) : "", Stood ? Format(Irr, "#0.000") + " %" : "did not stand"};
}

// Runs in the worker: the whole session of one file. The report crosses the pipe as binary JSON.
std::string AnalyseOne(const InputFile& File, const AnalyseOptions& Options)
{
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    StartSession();
    const std::vector<std::string> Warnings = LoadAndTellAll(File.Path);
    AnalyseProject(Tables::LeftOut);

    const AnalysisResults Results = CollectResults(Windows.Messages);
    const bool Stood = Analysed == 1;
    std::vector<std::string> Messages;
    for (const Message& Each : Windows.Messages) Messages.push_back(Each.Text);
    Json Report = {
        {"stood", Stood}, {"headlines", HeadlinesOf(Stood)}, {"messages", Messages}, {"warnings", Warnings}};
    if (!Options.JsonTarget.empty()) Report["json"] = ToJson(Results);
    if (!Options.CsvFolder.empty()) Report["csv"] = ToCsv(Results, wBaseYear, wSupplyStart);
    std::string Bytes;
    Json::to_cbor(Report, Bytes);
    return Bytes;
}

// What one run writes.
class AnalysisWriter {
public:
    explicit AnalysisWriter(const AnalyseOptions& Asked);

    Ending Take(const InputFile& File, const WorkerOutcome& Outcome);
    void Finish();

private:
    void TakeJson(const Json& Report);
    void TakeRow(const InputFile& File, const Json& Report, WorkerEnd End);

    const AnalyseOptions& Options;
    const OutputGuard Guard;
    const HeadlineTable Table;
    std::optional<OutputFile> JsonOut;
    bool HasJson = false;
    int Taken = 0;
};

AnalysisWriter::AnalysisWriter(const AnalyseOptions& Asked)
    : Options(Asked)
    , Guard(Asked.Files)
    , Table(Asked.Files)
{
    if (!Options.CsvFolder.empty()) {
        RequireDistinctStems(Options.Files);
        MakeFolder(Options.CsvFolder);
    }
    if (Options.JsonTarget.empty()) return;
    if (Options.JsonTarget != StandardStream) Guard.RequireResult(Options.JsonTarget);
    JsonOut.emplace(Options.JsonTarget);
}

// One file gives an object; a file without results gives nothing then, and keeps its place among several.
void AnalysisWriter::TakeJson(const Json& Report)
{
    const bool Several = Options.Files.size() > 1;
    HasJson = Several || !Report.is_null();
    if (Several) JsonOut->Write(Taken == 0 ? "[" : ",\n");
    if (!Report.is_null())
        JsonOut->Write(Report["json"].get_ref<const std::string&>());
    else if (Several)
        JsonOut->Write("null");
}

void AnalysisWriter::TakeRow(const InputFile& File, const Json& Report, WorkerEnd End)
{
    std::string Text = Taken == 0 ? Table.Header() : "";
    HeadlineRow Row = {File.Name};
    if (Report.is_null()) {
        Row[1] = WordFor(End);
        Text += Table.Line(Row);
    } else {
        for (std::size_t Column = 1; Column < Row.size(); ++Column)
            Row[Column] = Report["headlines"][Column - 1];
        Text += Table.Line(Row);
        for (const auto& Each : Report["messages"]) Text += "    " + Each.get<std::string>() + "\n";
    }
    WriteOut(Text);
}

Ending AnalysisWriter::Take(const InputFile& File, const WorkerOutcome& Outcome)
{
    Json Report;
    if (Outcome.End == WorkerEnd::Finished) {
        Report = Json::from_cbor(Outcome.Text);
        TellOf(File, Report["warnings"]);
        for (const auto& Each : Report.value("csv", Json::array()))
            WriteResult(Guard, Options.CsvFolder / (File.Stem() + Each[0].get<std::string>()), Each[1]);
    }
    if (JsonOut)
        TakeJson(Report);
    else
        TakeRow(File, Report, Outcome.End);
    ++Taken;
    return Report.is_null() || Report["stood"] ? Ending::AllWell : Ending::DidNotStand;
}

void AnalysisWriter::Finish()
{
    if (!JsonOut || !HasJson) return;
    JsonOut->Write(Options.Files.size() > 1 ? "]\n" : "\n");
    JsonOut->Finish();
}

} // namespace

Ending AnalyseFiles(const AnalyseOptions& Options)
{
    AnalysisWriter Writer(Options);
    const bool RowsShowProgress = Options.JsonTarget.empty() && IsTerminal(stdout);
    const Ending Worst = RunOnFiles(
        Options.Files, Options.Limits, !RowsShowProgress,
        [&](const InputFile& File) { return AnalyseOne(File, Options); },
        [&](const InputFile& File, const WorkerOutcome& Outcome) { return Writer.Take(File, Outcome); });
    Writer.Finish();
    return Worst;
}

} // namespace velorix
