// The printer dialog: where to print, and how many copies.
#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace velorix {

enum class PrintTarget { Printer, PdfFile, Preview };

struct PrintSettings {
    PrintTarget Target = PrintTarget::PdfFile;
    QString Printer; // its name in the system
    int Copies = 1;
};

// What the dialog offers first: the system's printer of the user's choice, the PDF file where there is none.
PrintSettings FirstSettings();

enum class PrinterQuestion { Print, Setup };

// Asks, with the earlier choice preset as far as it still stands. The setup asks for the target alone.
// Nothing when the user cancels.
std::optional<PrintSettings> AskForPrinter(QWidget* Owner, const PrintSettings& Earlier, PrinterQuestion Why);

} // namespace velorix
