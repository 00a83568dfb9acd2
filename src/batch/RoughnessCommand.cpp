// Readings and profile to a table or JSON, in a worker.
#include "batch/RoughnessCommand.h"

#include "analysis/Program.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "batch/FileJobs.h"
#include "batch/JsonText.h"
#include "batch/OutputFile.h"
#include "batch/PinnedFields.h"
#include "batch/ReadingsJson.h"
#include "hydraulics/Normalise.h"
#include "platform/ScriptedPlatform.h"
#include "results/PlotState.h"
#include "roughness/ResultRows.h"
#include "roughness/RoughnessCalculation.h"
#include "screens/RoughnessScreen.h"

#include <nlohmann/json.hpp>

namespace velorix {
namespace {

using Report = nlohmann::json;

template <typename Store, typename NumberText>
std::string StretchLists(const Store& Values, NumberText TextOf)
{
    std::vector<std::string> Scenarios;
    for (const auto& Scenario : Values) {
        std::vector<std::string> Stretches;
        for (const auto& Each : Scenario) Stretches.push_back(TextOf(Each));
        Scenarios.push_back(JsonList(Stretches));
    }
    return JsonList(Scenarios);
}

std::string ResultsAsJson()
{
    JsonObject Object;
    ForEachRoughnessResult([&](const char* Name, const ByStretch<Single>& Values) {
        Object.Add(Name, StretchLists(Values, [](Single Each) { return JsonNumber(Each); }));
    });
    Object.Add("StretchValid", StretchLists(StretchValid, [](int Each) { return std::to_string(Each); }));
    return Object.Text() + "\n";
}

std::string TableLine(const std::string& Name, const std::vector<std::string>& Cells)
{
    constexpr int NameWidth = 26;
    constexpr int CellWidth = 12;
    const auto Blanks = [](int Count) {
        return std::string(static_cast<std::size_t>(std::max(0, Count)), ' ');
    };
    std::string Line = Name + Blanks(NameWidth - CharacterCount(Name));
    for (const std::string& Each : Cells) Line += Blanks(CellWidth - CharacterCount(Each)) + Each;
    Line.erase(Line.find_last_not_of(' ') + 1);
    return Line + "\n";
}

std::string TableOf(int s)
{
    std::string Text = "Scenario " + std::to_string(s) + ": " + GeneralText(ScenarioFlowM3[s]) + " m³/s\n";
    std::vector<std::string> Headings;
    for (int j = 1; j <= MaxStretches; ++j) Headings.push_back(frmRoughness.msgRoughnessResults.Text(0, j));
    Text += TableLine(RoughnessResultNames.front(), Headings);
    for (const RoughnessRow& Row : RoughnessRows) {
        std::vector<std::string> Cells;
        for (int j = 1; j <= MaxStretches; ++j) Cells.push_back(Row.Text(s, j));
        Text += TableLine(Row.Name, Cells);
    }
    return Text;
}

std::string ResultsAsTables(int Scenarios)
{
    std::string Text;
    for (int s = 1; s <= Scenarios; ++s) Text += (s > 1 ? "\n" : "") + TableOf(s);
    return Text;
}

// What the averages of a stretch can't rest on.
std::vector<std::string> PointsBesideTheProfile()
{
    std::vector<std::string> Told;
    const auto Tell = [&](int s, int Point, int Row) {
        const std::string Length = GeneralText(Readings[s][AtLength][Point]);
        const std::string Text = "scenario " + std::to_string(s) + ", point " + std::to_string(Point) +
                                 ": the profile has no node at length " + Length;
        if (Row == 0 && (Told.empty() || Told.back() != Text)) Told.push_back(Text);
    };
    for (int s = 1; s <= MaxScenarios; ++s)
        for (int j = 1; j <= MaxStretches; ++j) {
            if (StretchValid[s][j] == 0) continue;
            Tell(s, j, StretchStart[s][j]);
            Tell(s, j + 1, StretchEnd[s][j]);
        }
    return Told;
}

int ReadingsIn(const InputFile& File)
{
    constexpr std::size_t Largest = 1U << 20U; // more than any readings can need
    const std::string Text = ReadText(File.Path, Largest);
    try {
        return TakeReadings(Text);
    } catch (const Failure& Problem) {
        throw Failure("Can't read \"" + File.Name + "\": " + Problem.what());
    }
}

// Runs in the worker, which has the readings from its parent.
std::string CalculateOne(const InputFile& Project, const RoughnessOptions& Options, int Scenarios)
{
    ScriptedPlatform Windows;
    InstallPlatform(&Windows);
    StartSession();
    std::vector<std::string> Warnings = LoadAndTellPinned(Project.Path);
    if (IsTooShort(Project.Path)) Warnings.insert(Warnings.begin(), TooShort);
    TakeProfileForPlot();
    bool Stood = true;
    try {
        NormaliseInputs();
        CalculateRoughness();
    } catch (const Failure& Problem) { // of a profile beyond all numbers
        Stood = false;
        Warnings.emplace_back(Problem.what());
    }
    for (std::string& Each : PointsBesideTheProfile()) Warnings.push_back(std::move(Each));
    std::string Bytes;
    Report::to_cbor({{"stood", Stood},
                     {"warnings", Warnings},
                     {"text", Options.JsonTarget.empty() ? ResultsAsTables(Scenarios) : ResultsAsJson()}},
                    Bytes);
    return Bytes;
}

} // namespace

Ending CalculateReadings(const RoughnessOptions& Options)
{
    const OutputGuard Guard({Options.Project, Options.Readings});
    const bool ToFile = !Options.JsonTarget.empty() && Options.JsonTarget != StandardStream;
    if (ToFile) Guard.RequireResult(Options.JsonTarget);
    const int Scenarios = ReadingsIn(Options.Readings);
    return RunOnFiles(
        {Options.Project}, Options.Limits, false,
        [&](const InputFile& Project) { return CalculateOne(Project, Options, Scenarios); },
        [&](const InputFile& Project, const WorkerOutcome& Outcome) {
            if (Outcome.End != WorkerEnd::Finished) return Ending::Failed;
            const Report Told = Report::from_cbor(Outcome.Text);
            TellOf(Project, Told["warnings"]);
            if (!Told["stood"]) return Ending::DidNotStand;
            const std::string Text = Told["text"];
            if (ToFile)
                WriteResult(Guard, Options.JsonTarget, Text);
            else
                WriteOut(Text);
            return Ending::AllWell;
        });
}

} // namespace velorix
