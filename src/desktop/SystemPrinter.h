// The printers of the system.
#pragma once

#include <QString>

#include <string>

namespace velorix {

// Hands a PDF document to the queue of a printer, under a title. Throws FileFailure, with the reason in the
// system's words, when it isn't taken.
void SendToPrinter(const QString& Printer, const QString& Title, const std::string& Document);

} // namespace velorix
