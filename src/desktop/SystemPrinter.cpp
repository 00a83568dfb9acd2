// CUPS takes a document from its own program, which tells whether the printer has accepted it.
#include "desktop/SystemPrinter.h"

#include "base/Failure.h"

#include <QProcess>

namespace velorix {
namespace {

constexpr const char* Program = "lp";
constexpr int TimeLimit = 30000; // ms, for a scheduler that doesn't answer

// Why the printer takes nothing: what the program says, or else how it ended.
QString ReasonOf(QProcess& Sender)
{
    QString Told = QString::fromLocal8Bit(Sender.readAllStandardError()).trimmed();
    if (!Told.isEmpty()) return Told;
    if (Sender.exitStatus() == QProcess::CrashExit) return QString("%1 crashed").arg(Program);
    return QString("%1 ended with status %2").arg(Program).arg(Sender.exitCode());
}

} // namespace

void SendToPrinter(const QString& Printer, const QString& Title, const std::string& Document)
{
    const auto Fail = [&](const QString& Reason) {
        throw FileFailure(
            QString("The printer \"%1\" didn't take a page: %2").arg(Printer, Reason).toStdString());
    };
    QProcess Sender;
    Sender.setStandardOutputFile(QProcess::nullDevice());
    Sender.start(Program, {"-d", Printer, "-t", Title, "-o", "media=A4"});
    if (!Sender.waitForStarted())
        Fail(QString("the program %1 of CUPS can't be started: %2").arg(Program, Sender.errorString()));
    Sender.write(Document.data(), static_cast<qint64>(Document.size()));
    Sender.closeWriteChannel();
    if (!Sender.waitForFinished(TimeLimit)) {
        Sender.kill();
        Sender.waitForFinished();
        Fail(QString("%1 doesn't end").arg(Program));
    }
    if (Sender.exitStatus() != QProcess::NormalExit || Sender.exitCode() != 0) Fail(ReasonOf(Sender));
}

} // namespace velorix
