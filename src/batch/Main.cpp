// velorix-batch: analyses project files, and turns them into JSON and back, without a screen.
#include "batch/AnalyseCommand.h"
#include "batch/ProjectCommands.h"
#include "batch/TextFile.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <sstream>
#include <thread>

using namespace velorix;

namespace {

int Run(int ArgumentCount, char** Arguments)
{
    CLI::App Program{
        "Life cycle costing of bulk water pipelines: analysis of project files without a screen.",
        "velorix-batch"};
    Program.set_version_flag("--version", "velorix-batch " VELORIX_VERSION);
    Program.require_subcommand(1);
    Program.footer(
        "Exit status: 0 all analyses stood, 2 an analysis ended with a message and did not stand,\n"
        "1 usage or file error.");

    AnalyseOptions Asked;
    Asked.Jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    CLI::App* Analyse =
        Program.add_subcommand("analyse", "Analyse project files and show their headline figures");
    Analyse->add_option("FILE", Asked.Files, "Project files")->required();
    Analyse
        ->add_option("--json", Asked.JsonTarget,
                     "Write all results as JSON to this file, or to standard output for -")
        ->type_name("OUT");
    Analyse
        ->add_option("--csv", Asked.CsvFolder, "Write the results as comma-separated tables to this folder")
        ->type_name("DIR");
    Analyse->add_option("--jobs", Asked.Jobs, "Analyses at a time")
        ->type_name("N")
        ->check(CLI::Range(1, 1024));

    std::string ProjectFile;
    CLI::App* Export = Program.add_subcommand("export", "Print a project as JSON");
    Export->add_option("FILE", ProjectFile, "Project file")->required();

    std::string JsonFile;
    CLI::App* Import = Program.add_subcommand("import", "Make a project file from JSON");
    Import->add_option("PROJECT.json", JsonFile, "Description of the project")->required();
    Import->add_option("OUT.vlx", ProjectFile, "Project file to write")->required();

    try {
        Program.parse(ArgumentCount, Arguments);
    } catch (const CLI::ParseError& Problem) {
        std::ostringstream Help;
        const int Status = Program.exit(Problem, Help, std::cerr);
        WriteOut(Help.str());
        return Status == 0 ? AllStood : UsageOrFileError;
    }
    if (*Analyse) return AnalyseFiles(Asked);
    if (*Export) ExportProject(ProjectFile);
    if (*Import) ImportProject(JsonFile, ProjectFile);
    return AllStood;
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
    try {
        return Run(ArgumentCount, Arguments);
    } catch (const std::exception& Problem) {
        std::cerr << "velorix-batch: " << Problem.what() << "\n";
        return UsageOrFileError;
    }
}
