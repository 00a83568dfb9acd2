// velorix-batch: analyses, checks, draws and prints project files, and turns them into JSON and back, without
// a screen.
#include "base/Failure.h"
#include "base/Version.h"
#include "batch/AnalyseCommand.h"
#include "batch/CheckCommand.h"
#include "batch/ConvertCommand.h"
#include "batch/Interrupt.h"
#include "batch/OutputFile.h"
#include "batch/PlotCommand.h"
#include "batch/ProjectCommands.h"
#include "batch/ReportCommand.h"
#include "batch/ReportSections.h"
#include "batch/RoughnessCommand.h"
#include "batch/Tell.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <sstream>
#include <thread>

using namespace velorix;

namespace {

// The words of the command line.
struct Arguments {
    std::vector<std::string> Files;
    std::string Project; // of a command that takes one
    std::string JsonTarget;
    std::string CsvFolder;
    std::string OutFolder; // or the file, of a plot
    std::string Plot;
    PlotView View;
    std::string Format;
    std::string Pdf;
    std::vector<std::string> Sections;
    std::optional<int> Year;
    std::string ReadingsFile;
    bool Force = false;
    int Jobs = 0; // 0 for as many as there are cores
    double Seconds = 60;
};

WorkerLimits LimitsOf(const Arguments& Given)
{
    const int Cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    return {.Jobs = Given.Jobs > 0 ? Given.Jobs : Cores,
            .Time = std::chrono::milliseconds(static_cast<long long>(Given.Seconds * 1000))};
}

void AddTimeout(CLI::App& Command, Arguments& Given)
{
    Command.add_option("--timeout", Given.Seconds, "Seconds that one file may take (default: 60)")
        ->type_name("SECONDS")
        ->check(CLI::Range(0.001, 1e6));
}

// What a command on several files has: each is worked on in a process of its own.
CLI::App* AddCommand(CLI::App& Program, Arguments& Given, const std::string& Name,
                     const std::string& Description, const std::string& Files)
{
    CLI::App* Command = Program.add_subcommand(Name, Description);
    Command->add_option("FILE", Given.Files, Files)->required();
    Command->add_option("--jobs", Given.Jobs, "Files at a time (default: the number of cores)")
        ->type_name("N")
        ->check(CLI::Range(1, 1024));
    AddTimeout(*Command, Given);
    return Command;
}

void AddOut(CLI::App& Command, Arguments& Given, const std::string& Description)
{
    Command.add_option("--out", Given.OutFolder, Description)->type_name("FOLDER");
}

CLI::App* AddPlot(CLI::App& Program, Arguments& Given)
{
    CLI::App* Command =
        Program.add_subcommand("plot", "Draw a plot of a project as the desktop program does");
    std::vector<std::string> Names;
    for (const Plot& Each : AllPlots()) Names.emplace_back(Each.Name);
    Names.emplace_back(EveryPlot);
    Command->add_option("FILE", Given.Project, "Project file")->required();
    Command->add_option("PLOT", Given.Plot, "The plot, or all that apply to the system")
        ->required()
        ->check(CLI::IsMember(Names));
    const auto Add = [&](const char* Name, auto& Target, const char* Type, const char* Description) {
        return Command->add_option(Name, Target, Description)->type_name(Type);
    };
    Add("--year", Given.View.Year, "N", "Year of the design life, from 1 (default: 1)");
    Add("--begin", Given.View.Begin, "X",
        "Where a profile begins, as chainage of a node, or irr, in percent");
    Add("--end", Given.View.End, "X", "Where it ends; large amounts of money need a narrow irr");
    Add("--out", Given.OutFolder, "OUT",
        "File, - for standard output; of all, folder of the STEM-PLOT.FORMAT")
        ->required();
    Command->add_option("--format", Given.Format, "Format of the pictures, if not told by the file's name")
        ->check(CLI::IsMember(PlotFormats));
    AddTimeout(*Command, Given);
    return Command;
}

CLI::App* AddReport(CLI::App& Program, Arguments& Given)
{
    CLI::App* Command =
        AddCommand(Program, Given, "report", "Print projects into PDF files as the desktop program does",
                   "Project files");
    Command
        ->add_option("--pdf", Given.Pdf,
                     "File to write, - for standard output; the folder of STEM.pdf for several files")
        ->type_name("OUT")
        ->required();
    Command
        ->add_option("--sections", Given.Sections,
                     "What to print, with commas between (default: all that apply but the last three)")
        ->type_name("NAME,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember(ReportSectionNames()));
    Command
        ->add_option("--year", Given.Year, "Year of the design life, from 1, of what shows one (default: 1)")
        ->type_name("N");
    return Command;
}

ReportOptions ReportOptionsOf(const Arguments& Given)
{
    return {.Files = OpenInputs(Given.Files),
            .Pdf = Given.Pdf,
            .Sections = Given.Sections,
            .Year = Given.Year,
            .Limits = LimitsOf(Given)};
}

PlotOptions PlotOptionsOf(const Arguments& Given)
{
    return {.Project = OpenInputs({Given.Project}).front(),
            .Plot = Given.Plot,
            .View = Given.View,
            .Out = Given.OutFolder,
            .Format = Given.Format,
            .Limits = LimitsOf(Given)};
}

AnalyseOptions AnalyseOptionsOf(const Arguments& Given)
{
    return {.Files = OpenInputs(Given.Files),
            .JsonTarget = Given.JsonTarget,
            .CsvFolder = Given.CsvFolder,
            .Limits = LimitsOf(Given)};
}

Ending Export(const Arguments& Given)
{
    if (Given.OutFolder.empty() && Given.Files.size() > 1)
        throw Failure("export of several files needs --out FOLDER (the second is \"" + Given.Files[1] +
                      "\")");
    const std::vector<InputFile> Projects = OpenInputs(Given.Files);
    if (!Given.OutFolder.empty()) RequireDistinctStems(Projects);
    return ExportProjects(Projects, Given.OutFolder, LimitsOf(Given));
}

Ending Import(const Arguments& Given)
{
    ImportOptions Options;
    Options.Force = Given.Force;
    Options.Limits = LimitsOf(Given);
    if (Given.OutFolder.empty()) {
        if (Given.Files.size() != 2)
            throw Failure("import needs PROJECT.json and OUT.vlx, or any number of files and --out FOLDER");
        Options.Descriptions = OpenInputs({Given.Files.front()});
        Options.Projects = {Given.Files.back()};
    } else {
        Options.Descriptions = OpenInputs(Given.Files);
        RequireDistinctStems(Options.Descriptions);
        MakeFolder(Given.OutFolder);
        for (const InputFile& Each : Options.Descriptions)
            Options.Projects.push_back(std::filesystem::path(Given.OutFolder) / (Each.Stem() + ".vlx"));
    }
    return ImportProjects(Options);
}

CLI::App* AddRoughness(CLI::App& Program, Arguments& Given)
{
    CLI::App* Command = Program.add_subcommand(
        "roughness", "Work out the pipe's roughness from pressures that were measured along it");
    Command->add_option("FILE", Given.Project, "Project file")->required();
    Command->add_option("--readings", Given.ReadingsFile, "The measured flows and pressures, as JSON")
        ->type_name("READINGS")
        ->required();
    Command
        ->add_option("--json", Given.JsonTarget,
                     "Write the results as JSON to this file, or to standard output for -")
        ->type_name("OUT");
    AddTimeout(*Command, Given);
    return Command;
}

CLI::App* AddConvert(CLI::App& Program, Conversion& Asked)
{
    CLI::App* Command = Program.add_subcommand(
        "convert", "Convert a number; group and units as the lists of the unit converter name them");
    Command->add_option("GROUP", Asked.Group, "Group of units, such as Length")->required();
    Command->add_option("SOURCE", Asked.Source, "Unit of the number, such as \"meter (m)\"")->required();
    Command->add_option("TARGET", Asked.Target, "Unit to convert to")->required();
    Command->add_option("VALUE", Asked.Value, "The number")->required();
    return Command;
}

// A value to convert may begin with a minus sign, and is no option then: a mark before it says so.
std::vector<const char*> WithValueMarked(int ArgumentCount, const char* const* Words)
{
    constexpr std::size_t WordsOfConversion = 6;
    std::vector<const char*> Marked(Words, Words + ArgumentCount);
    if (Marked.size() != WordsOfConversion || std::string_view(Marked[1]) != "convert") return Marked;
    const std::string_view Value = Marked.back();
    if (Value.starts_with('-') && Value != "-h" && Value != "--help") Marked.insert(Marked.end() - 1, "--");
    return Marked;
}

RoughnessOptions RoughnessOptionsOf(const Arguments& Given)
{
    const std::vector<InputFile> Inputs = OpenInputs({Given.Project, Given.ReadingsFile});
    return {.Project = Inputs.front(),
            .Readings = Inputs.back(),
            .JsonTarget = Given.JsonTarget,
            .Limits = LimitsOf(Given)};
}

Ending Run(int ArgumentCount, char** Words)
{
    CLI::App Program{"Life cycle costing of bulk water pipelines: work on project files without a screen.\n"
                     "A FILE of - is standard input.",
                     "velorix-batch"};
    Program.set_version_flag("--version", std::string("velorix-batch ") + ProgramVersion());
    Program.require_subcommand(1);
    Program.footer(
        "Exit status: 0 all is well; 2 an analysis or a conversion ended with a message and did not\n"
        "stand, a plot or a section of a report could not be made, or a project would not be saved;\n"
        "1 wrong usage, a file that can't be read or written, a time limit or a crash;\n"
        "130 interrupted. The worst of them counts, 1 above 2.");

    Arguments Given;
    CLI::App* Analyse = AddCommand(Program, Given, "analyse",
                                   "Analyse project files and show their headline figures", "Project files");
    Analyse
        ->add_option("--json", Given.JsonTarget,
                     "Write all results as JSON to this file, or to standard output for -")
        ->type_name("OUT");
    Analyse
        ->add_option("--csv", Given.CsvFolder, "Write the results as comma-separated tables to this folder")
        ->type_name("DIR");

    CLI::App* PlotCommand = AddPlot(Program, Given);
    CLI::App* ReportCommand = AddReport(Program, Given);

    CLI::App* Check =
        AddCommand(Program, Given, "check",
                   "Tell whether the input screen would save the projects, without writing", "Project files");

    CLI::App* ExportCommand =
        AddCommand(Program, Given, "export", "Print a project as JSON, or write several", "Project files");
    AddOut(*ExportCommand, Given, "Write STEM.json for each file to this folder");

    CLI::App* ImportCommand = AddCommand(
        Program, Given, "import",
        "Make project files from JSON: import PROJECT.json OUT.vlx, or import PROJECT.json... --out FOLDER",
        "Descriptions; without --out one of them, and the project file to write");
    AddOut(*ImportCommand, Given, "Write STEM.vlx for each file to this folder");
    ImportCommand->add_flag("--force", Given.Force, "Write over a file that isn't a project too");

    CLI::App* Roughness = AddRoughness(Program, Given);

    Conversion Asked;
    CLI::App* ConvertUnit = AddConvert(Program, Asked);

    try {
        const std::vector<const char*> Marked = WithValueMarked(ArgumentCount, Words);
        Program.parse(static_cast<int>(Marked.size()), Marked.data());
    } catch (const CLI::ParseError& Problem) {
        std::ostringstream Help;
        std::ostringstream Error;
        const int Status = Program.exit(Problem, Help, Error);
        WriteOut(Help.str());
        std::fputs(Readable(Error.str()).c_str(), stderr);
        return Status == 0 ? Ending::AllWell : Ending::Failed;
    }
    if (*Analyse) return AnalyseFiles(AnalyseOptionsOf(Given));
    if (*PlotCommand) return PlotProject(PlotOptionsOf(Given));
    if (*ReportCommand) return ReportFiles(ReportOptionsOf(Given));
    if (*Check) return CheckFiles(OpenInputs(Given.Files), LimitsOf(Given));
    if (*Roughness) return CalculateReadings(RoughnessOptionsOf(Given));
    if (*ConvertUnit) return ConvertValue(Asked);
    return *ExportCommand ? Export(Given) : Import(Given);
}

} // namespace

int main(int ArgumentCount, char** Words)
{
    WatchForInterrupts();
    try {
        return ExitStatus(Run(ArgumentCount, Words));
    } catch (const Interruption&) {
        Tell("interrupted");
        return ExitStatus(Ending::Interrupted);
    } catch (const std::exception& Problem) {
        Tell(Problem.what());
        return ExitStatus(Ending::Failed);
    }
}
