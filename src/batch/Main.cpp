// velorix-batch: analyses and checks project files, and turns them into JSON and back, without a screen.
#include "base/Failure.h"
#include "batch/AnalyseCommand.h"
#include "batch/CheckCommand.h"
#include "batch/ConvertCommand.h"
#include "batch/Interrupt.h"
#include "batch/OutputFile.h"
#include "batch/ProjectCommands.h"
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
    std::string JsonTarget;
    std::string CsvFolder;
    std::string OutFolder;
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

// What all commands have: several files, each in a process of its own.
CLI::App* AddCommand(CLI::App& Program, Arguments& Given, const std::string& Name,
                     const std::string& Description, const std::string& Files)
{
    CLI::App* Command = Program.add_subcommand(Name, Description);
    Command->add_option("FILE", Given.Files, Files)->required();
    Command->add_option("--jobs", Given.Jobs, "Files at a time (default: the number of cores)")
        ->type_name("N")
        ->check(CLI::Range(1, 1024));
    Command->add_option("--timeout", Given.Seconds, "Seconds that one file may take (default: 60)")
        ->type_name("SECONDS")
        ->check(CLI::Range(0.001, 1e6));
    return Command;
}

void AddOut(CLI::App& Command, Arguments& Given, const std::string& Description)
{
    Command.add_option("--out", Given.OutFolder, Description)->type_name("FOLDER");
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

RoughnessOptions RoughnessOptionsOf(const Arguments& Given)
{
    const std::vector<InputFile> Inputs = OpenInputs({Given.Files.front(), Given.ReadingsFile});
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
    Program.set_version_flag("--version", "velorix-batch " VELORIX_VERSION);
    Program.require_subcommand(1);
    Program.footer("Exit status: 0 all is well; 2 an analysis or a conversion ended with a message and did\n"
                   "not stand, or a project would not be saved; 1 wrong usage, a file that can't be read or\n"
                   "written, a time limit or a crash; 130 interrupted. The worst of them counts, 1 above 2.");

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

    CLI::App* Roughness = AddCommand(
        Program, Given, "roughness",
        "Work out the pipe's roughness from pressures that were measured along it", "Project file");
    Roughness->get_option("FILE")->expected(1);
    Roughness->remove_option(Roughness->get_option("--jobs"));
    Roughness->add_option("--readings", Given.ReadingsFile, "The measured flows and pressures, as JSON")
        ->type_name("READINGS")
        ->required();
    Roughness
        ->add_option("--json", Given.JsonTarget,
                     "Write the results as JSON to this file, or to standard output for -")
        ->type_name("OUT");

    Conversion Asked;
    CLI::App* ConvertUnit = Program.add_subcommand(
        "convert", "Convert a number; group and units as the lists of the unit converter name them");
    ConvertUnit->add_option("GROUP", Asked.Group, "Group of units, such as Length")->required();
    ConvertUnit->add_option("SOURCE", Asked.Source, "Unit of the number, such as \"meter (m)\"")->required();
    ConvertUnit->add_option("TARGET", Asked.Target, "Unit to convert to")->required();
    ConvertUnit->add_option("VALUE", Asked.Value, "The number")->required();

    try {
        Program.parse(ArgumentCount, Words);
    } catch (const CLI::ParseError& Problem) {
        std::ostringstream Help;
        std::ostringstream Error;
        const int Status = Program.exit(Problem, Help, Error);
        WriteOut(Help.str());
        std::fputs(Readable(Error.str()).c_str(), stderr);
        return Status == 0 ? Ending::AllWell : Ending::Failed;
    }
    if (*Analyse) return AnalyseFiles(AnalyseOptionsOf(Given));
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
