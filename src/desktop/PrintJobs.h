// Print runs on their way to a printer, into a PDF file or before the user's eyes.
#pragma once

#include "desktop/PrinterDialog.h"
#include "platform/Platform.h"

#include <filesystem>
#include <optional>
#include <vector>

class QWidget;

namespace velorix {

class PrintJobs {
public:
    // Asks where to print, and for the file of a PDF; forgets what an earlier run has left. The choice, also
    // that of the printer's setup, is preset the next time, but for the copies.
    std::optional<PrintChoice> Ask(const PrintDialog& Dialog, QWidget* Owner);

    // Sends the page to the printer as a document of its own, or gathers it. Throws FileFailure when the
    // printer takes none.
    void Take(const PrintedPage& Page);

    // Writes what was gathered for a file; nothing when no page was. Throws Failure, and leaves no file, when
    // it can't be written.
    void End();

    // Shows what was gathered for a preview.
    void Show(QWidget* Owner);

private:
    std::vector<PrintedPage> TakeGathered(PrintTarget Target); // none for another target

    std::optional<PrintSettings> Settings; // the last choice
    std::filesystem::path PdfFile;
    std::vector<PrintedPage> Gathered;
};

} // namespace velorix
