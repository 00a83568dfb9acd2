// All pages go out as PDF, or through the same painter into the preview.
#include "desktop/PrintJobs.h"

#include "base/Failure.h"
#include "base/NewFile.h"
#include "desktop/PreviewWindow.h"
#include "desktop/SystemPrinter.h"
#include "input/FileCommands.h"
#include "input/Session.h"
#include "paint/PagesFile.h"
#include "reports/ReportFacts.h"

#include <utility>

namespace velorix {
namespace {

namespace fs = std::filesystem;

// Beside the project's file and under its name, as a first suggestion.
std::optional<fs::path> AskPdfFile()
{
    const fs::path Project = FileName;
    const bool Named = HasFile();
    return System().AskFileToSave({.Title = "Print to PDF File",
                                   .Folder = Named ? Project.parent_path() : ProjectsFolder(),
                                   .Filter = "PDF files|*.pdf|All files|*.*",
                                   .OverwritePrompt = true,
                                   .Name = (Named ? Project.stem().string() : "Velorix") + ".pdf"});
}

void WritePdf(const fs::path& Target, const std::vector<PrintedPage>& Pages)
{
    const std::string Bytes = ToPdfBytes(Pages, FactsOfProject());
    NewFile File(Target);
    File.Append(Bytes);
    File.Commit();
}

// Asks for the file behind the preview. A failure there is the user's to mend: the pages still stand.
void SavePreviewed(const std::vector<PrintedPage>& Pages)
{
    const std::optional<fs::path> Target = AskPdfFile();
    if (!Target) return;
    try {
        WritePdf(*Target, Pages);
    } catch (const Failure& Problem) {
        Warn("Could not write the PDF file !", "Velorix", Problem.what());
    }
}

} // namespace

std::optional<PrintChoice> PrintJobs::Ask(const PrintDialog& Dialog, QWidget* Owner)
{
    Gathered.clear();
    const auto Why = Dialog.Setup ? PrinterQuestion::Setup : PrinterQuestion::Print;
    const auto Chosen = AskForPrinter(Owner, Settings ? *Settings : FirstSettings(), Why);
    if (!Chosen) return std::nullopt;
    Settings = *Chosen;
    Settings->Copies = 1;
    if (!Dialog.Setup && Chosen->Target == PrintTarget::PdfFile) {
        const std::optional<fs::path> Target = AskPdfFile();
        if (!Target) return std::nullopt;
        PdfFile = *Target;
    }
    return PrintChoice{.Copies = Chosen->Copies};
}

void PrintJobs::Take(const PrintedPage& Page)
{
    if (!Settings) throw FileFailure("No printer has been chosen.");
    if (Settings->Target == PrintTarget::Printer)
        SendToPrinter(Settings->Printer, QString::fromStdString("Velorix: " + Page.Section),
                      ToPdfBytes({Page}, FactsOfProject()));
    else
        Gathered.push_back(Page);
}

std::vector<PrintedPage> PrintJobs::TakeGathered(PrintTarget Target)
{
    if (!Settings || Settings->Target != Target) return {};
    return std::exchange(Gathered, {});
}

void PrintJobs::End()
{
    const std::vector<PrintedPage> Pages = TakeGathered(PrintTarget::PdfFile);
    if (!Pages.empty()) WritePdf(PdfFile, Pages);
}

void PrintJobs::Show(QWidget* Owner)
{
    const std::vector<PrintedPage> Pages = TakeGathered(PrintTarget::Preview);
    if (!Pages.empty()) ShowPreview(Owner, Pages, [&Pages] { SavePreviewed(Pages); });
}

} // namespace velorix
