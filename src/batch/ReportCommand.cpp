// A worker prints the pages and makes the bytes of the PDF; the parent writes them.
#include "batch/ReportCommand.h"

#include "analysis/Program.h"
#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "batch/Clock.h"
#include "batch/DrawingPlatform.h"
#include "batch/FileJobs.h"
#include "batch/OutputFile.h"
#include "batch/PaintLoader.h"
#include "batch/PinnedFields.h"
#include "batch/ReportSections.h"
#include "batch/Tell.h"
#include "input/Session.h"
#include "platform/Printer.h"
#include "reports/ReportFacts.h"
#include "reports/ResultReports.h"
#include "screens/Lcc.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velorix {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

struct Report {
    bool Stood = true;
    std::vector<std::string> Told;
    std::string Pdf; // empty when there is nothing to write
};

// The sections that are asked for. Throws Failure when one of those named doesn't apply.
std::vector<ReportSection> WantedSections(const ReportOptions& Options, const PlotView& View)
{
    std::vector<ReportSection> Wanted;
    for (const ReportSection& Each : AllReportSections(View)) {
        const auto& Names = Options.Sections;
        const bool Named = std::find(Names.begin(), Names.end(), Each.Name) != Names.end();
        if (Named && !Each.Applies())
            throw Failure("the section " + Each.Name + " doesn't apply to this project");
        if (Named || (Names.empty() && Each.IsDefault && Each.Applies())) Wanted.push_back(Each);
    }
    return Wanted;
}

// Works out what the sections stand on, and leaves those of the input when it doesn't stand.
bool WorkOutFor(std::vector<ReportSection>& Wanted)
{
    PlotBasis Basis = PlotBasis::Inputs;
    for (const ReportSection& Each : Wanted) Basis = std::max(Basis, Each.Basis);
    const bool Stands = WorkOut(Basis);
    if (!Stands)
        std::erase_if(Wanted, [](const ReportSection& Each) { return Each.Basis != PlotBasis::Inputs; });
    return Stands;
}

bool HasEmptyGraph(const PrintedPage& Page)
{
    return std::any_of(Page.Drawings.begin(), Page.Drawings.end(),
                       [](const PlacedDrawing& Each) { return Each.Drawn.Items.empty(); });
}

// Throws Failure, in the words of the section that fails; the pages ended before it stand. A graph that
// can't be drawn ends nothing: it tells so itself, or leaves an empty place on its page.
void PrintAll(const std::vector<ReportSection>& Wanted, const ScriptedPlatform& Windows, Report& Result)
{
    ClearArithmeticFlags();
    for (const ReportSection& Each : Wanted) {
        const std::size_t Told = Windows.Messages.size();
        const std::size_t Printed = Windows.Pages.size();
        Printer.BeginSection(Each.Title);
        Printer.Orientation = PaperOrientation::Portrait;
        try {
            Each.Print();
        } catch (const Failure& Problem) {
            throw Failure(Each.FailureText + " " + Problem.what());
        }
        const auto First = Windows.Pages.begin() + static_cast<std::ptrdiff_t>(Printed);
        const bool HasTold = Windows.Messages.size() > Told;
        if (!HasTold && std::none_of(First, Windows.Pages.end(), HasEmptyGraph)) continue;
        if (!HasTold) Result.Told.push_back(Each.Title + ": " + NothingToDraw);
        Result.Stood = false;
    }
}

// What stands on the pages for a project that came by standard input.
void ShowNameOf(const InputFile& File)
{
    if (File.Name != StandardStream) return;
    FileName = "standard input";
    frmLCC.lblFileName.Caption = FileName;
}

void PrintInto(Report& Result, const ReportOptions& Options, const ScriptedPlatform& Windows)
{
    try {
        const PlotView View{.Year = Options.Year, .Begin = {}, .End = {}};
        PrintYear = static_cast<std::int16_t>(YearOf(View));
        std::vector<ReportSection> Wanted = WantedSections(Options, View);
        Result.Stood = WorkOutFor(Wanted);
        PrintAll(Wanted, Windows, Result);
    } catch (const Failure& Problem) {
        Result.Stood = false;
        Result.Told.emplace_back(Problem.what());
    }
}

Json Bytes(const std::string& Text)
{
    return Json::binary({Text.begin(), Text.end()});
}

// Runs in the worker.
std::string ReportOne(const InputFile& File, const ReportOptions& Options)
{
    const PaintServices& Painter = LoadPaintServices();
    DrawingPlatform Windows(&Painter);
    Windows.TodaysDate = TodayByTheClock();
    InstallPlatform(&Windows);
    StartSession();
    Report Result;
    Result.Told = LoadAndTellAll(File.Path);
    ShowNameOf(File);
    PrintInto(Result, Options, Windows);
    for (const Message& Each : Windows.Messages) Result.Told.push_back(Each.Text);
    if (!Windows.Pages.empty()) Result.Pdf = Painter.PdfBytes(Windows.Pages, FactsOfProject());
    std::string Text;
    Json::to_cbor({{"stood", Result.Stood}, {"told", Result.Told}, {"pdf", Bytes(Result.Pdf)}}, Text);
    return Text;
}

bool GoesIntoFolder(const ReportOptions& Options)
{
    std::error_code Unknown;
    return Options.Files.size() > 1 || Options.Pdf.ends_with('/') ||
           (Options.Pdf != StandardStream && fs::is_directory(Options.Pdf, Unknown));
}

fs::path TargetOf(const ReportOptions& Options, const InputFile& File)
{
    if (!GoesIntoFolder(Options)) return Options.Pdf;
    return fs::path(Options.Pdf) / (File.Stem() + ".pdf");
}

void PrepareTargets(const ReportOptions& Options, const OutputGuard& Guard)
{
    if (GoesIntoFolder(Options)) {
        if (Options.Pdf == StandardStream) throw Failure("several files need --pdf FOLDER");
        RequireDistinctStems(Options.Files);
        MakeFolder(Options.Pdf);
    }
    for (const InputFile& Each : Options.Files)
        if (const fs::path Target = TargetOf(Options, Each); Target != StandardStream)
            Guard.RequireResult(Target);
}

// Tells of a target that can't be written, which costs no other file its report.
bool WritePdf(const OutputGuard& Guard, const fs::path& Target, const std::string& Pdf)
{
    try {
        if (Target == StandardStream)
            WriteOut(Pdf);
        else
            WriteResult(Guard, Target, Pdf);
        return true;
    } catch (const Failure& Problem) {
        Tell(Problem.what());
        return false;
    }
}

} // namespace

Ending ReportFiles(const ReportOptions& Options)
{
    const OutputGuard Guard(Options.Files);
    PrepareTargets(Options, Guard);
    return RunOnFiles(
        Options.Files, Options.Limits, true, [&](const InputFile& File) { return ReportOne(File, Options); },
        [&](const InputFile& File, const WorkerOutcome& Outcome) {
            if (Outcome.End != WorkerEnd::Finished) return Ending::Failed;
            const Json Result = Json::from_cbor(Outcome.Text);
            TellOf(File, Result["told"]);
            const auto& Pdf = Result["pdf"].get_binary();
            if (!Pdf.empty() && !WritePdf(Guard, TargetOf(Options, File), {Pdf.begin(), Pdf.end()}))
                return Ending::Failed;
            return Result["stood"] ? Ending::AllWell : Ending::DidNotStand;
        });
}

} // namespace velorix
