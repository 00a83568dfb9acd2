// A worker draws and makes the bytes; the parent writes them.
#include "batch/PlotCommand.h"

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "batch/DisplayListJson.h"
#include "batch/DrawingPlatform.h"
#include "batch/FileJobs.h"
#include "batch/OutputFile.h"
#include "batch/PaintLoader.h"
#include "batch/PinnedFields.h"
#include "input/Session.h"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>

namespace velorix {
namespace {

using Json = nlohmann::json;

constexpr const char* JsonFormat = "json"; // the one that needs no painter

bool DrawsAll(const PlotOptions& Options)
{
    return Options.Plot == EveryPlot;
}

// The format that is asked for in either way.
std::string FormatOf(const PlotOptions& Options)
{
    if (!Options.Format.empty()) return Options.Format;
    if (DrawsAll(Options)) return PlotFormats.front();
    std::string Extension = std::filesystem::path(Options.Out).extension().string();
    std::transform(Extension.begin(), Extension.end(), Extension.begin(),
                   [](unsigned char Each) { return std::tolower(Each); });
    for (const std::string& Each : PlotFormats)
        if (Extension == "." + Each) return Each;
    throw Failure("\"" + Options.Out + "\" doesn't end in the name of a format; --format tells one");
}

void RequireOptionsOfPlot(const PlotOptions& Options)
{
    const bool HasRange = Options.View.Begin || Options.View.End;
    if (DrawsAll(Options) && HasRange)
        throw Failure(
            "--begin and --end are chainages in one plot and rates in another, so \"all\" takes none");
    for (const Plot& Each : AllPlots()) {
        if (Options.Plot != Each.Name) continue;
        if (HasRange && Each.Range == PlotRange::None)
            throw Failure(std::string("--begin and --end are for plots of a range, which ") + Each.Name +
                          " isn't");
        if (Options.View.Year && !Each.HasYear)
            throw Failure(std::string("--year is for plots of one year, which ") + Each.Name + " isn't");
    }
}

// What the plots of a request stand on.
PlotBasis BasisOf(const std::vector<const Plot*>& Wanted)
{
    PlotBasis Basis = PlotBasis::Inputs;
    for (const Plot* Each : Wanted)
        if (Each->Applies()) Basis = std::max(Basis, Each->Basis);
    return Basis;
}

// Works it out for the open project. False when it doesn't stand, which the user has been told.
bool WorkOut(PlotBasis Basis)
{
    if (Basis == PlotBasis::Inputs) return true;
    if (Basis >= PlotBasis::Results) {
        AnalyseProject(Basis == PlotBasis::ResultsWithTables ? Tables::Filled : Tables::LeftOut);
        return Analysed == 1;
    }
    ClearArithmeticFlags();
    try {
        return SolveForProfile(Tables::LeftOut);
    } catch (const Failure& Problem) {
        Warn(Problem.what());
        return false;
    }
}

// Of all plots those that apply to the open project.
std::vector<const Plot*> WantedPlots(const PlotOptions& Options)
{
    std::vector<const Plot*> Wanted;
    for (const Plot& Each : AllPlots())
        if (Options.Plot == Each.Name || (DrawsAll(Options) && Each.Applies())) Wanted.push_back(&Each);
    return Wanted;
}

Json Bytes(const std::string& Text)
{
    return Json::binary({Text.begin(), Text.end()});
}

// Runs in the worker. The report has what is to be told, and the bytes of each picture by its plot's name.
std::string DrawOne(const InputFile& Project, const PlotOptions& Options, const std::string& Format)
{
    const PaintServices* const Painter = Format == JsonFormat ? nullptr : &LoadPaintServices();
    DrawingPlatform Windows(Painter);
    InstallPlatform(&Windows);
    StartSession();
    std::vector<std::string> Told = LoadAndTellAll(Project.Path);

    const std::vector<const Plot*> Wanted = WantedPlots(Options);
    const bool HasBasis = WorkOut(BasisOf(Wanted));
    for (const Message& Each : Windows.Messages) Told.push_back(Each.Text);

    Json Pictures = Json::array();
    for (const Plot* Each : Wanted) {
        if (!HasBasis) break;
        try {
            const DisplayList& Image = DrawPlot(*Each, Options.View, Windows);
            Pictures.push_back({Each->Name, Bytes(Painter ? Painter->FileBytes(Image, Format, Each->Title)
                                                          : DisplayListToJson(Image, Each->Name))});
        } catch (const Failure& Problem) { // costs this plot only
            Told.push_back(std::string(Each->Name) + ": " + Problem.what());
        }
    }
    const bool Stood = HasBasis && Pictures.size() == Wanted.size();
    std::string Report;
    Json::to_cbor({{"stood", Stood}, {"told", Told}, {"pictures", Pictures}}, Report);
    return Report;
}

std::string TargetOf(const PlotOptions& Options, const std::string& Plot, const std::string& Format)
{
    if (!DrawsAll(Options)) return Options.Out;
    return std::filesystem::path(Options.Out) / (Options.Project.Stem() + "-" + Plot + "." + Format);
}

void WritePicture(const OutputGuard& Guard, const std::string& Target, const std::string& Picture)
{
    if (Target == StandardStream)
        WriteOut(Picture);
    else
        WriteResult(Guard, Target, Picture);
}

} // namespace

const std::vector<std::string> PlotFormats = {"svg", "png", "pdf", JsonFormat};

Ending PlotProject(const PlotOptions& Options)
{
    RequireOptionsOfPlot(Options);
    const std::string Format = FormatOf(Options);
    const OutputGuard Guard({Options.Project});
    if (DrawsAll(Options))
        MakeFolder(Options.Out);
    else if (Options.Out != StandardStream)
        Guard.RequireResult(Options.Out);

    return RunOnFiles(
        {Options.Project}, Options.Limits, false,
        [&](const InputFile& Project) { return DrawOne(Project, Options, Format); },
        [&](const InputFile& Project, const WorkerOutcome& Outcome) {
            if (Outcome.End != WorkerEnd::Finished) return Ending::Failed;
            const Json Report = Json::from_cbor(Outcome.Text);
            TellOf(Project, Report["told"]);
            for (const Json& Each : Report["pictures"]) {
                const auto& Picture = Each[1].get_binary();
                WritePicture(Guard, TargetOf(Options, Each[0], Format), {Picture.begin(), Picture.end()});
            }
            return Report["stood"] ? Ending::AllWell : Ending::DidNotStand;
        });
}

} // namespace velorix
