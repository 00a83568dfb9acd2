// Catching and reporting of what leaves an event.
#include "desktop/EventGuard.h"

#include "base/Failure.h"
#include "platform/Platform.h"

#include <QDebug>
#include <QLocale>
#include <QScopedValueRollback>

#include <clocale>
#include <cstdlib>

namespace velorix {
namespace {

bool Reporting = false;

} // namespace

EventGuard::EventGuard(int& ArgumentCount, char** Arguments)
    : QApplication(ArgumentCount, Arguments)
{
    std::setlocale(LC_NUMERIC, "C"); // the toolkit has taken the desktop's
    QLocale::setDefault(QLocale::c());
}

bool EventGuard::notify(QObject* Receiver, QEvent* Event)
{
    try {
        return QApplication::notify(Receiver, Event);
    } catch (const std::exception& Problem) {
        ReportFailure(Problem);
    }
    return true;
}

void ReportFailure(const std::exception& Problem)
{
    qWarning("%s", Problem.what());
    if (Reporting) return;
    const QScopedValueRollback<bool> Once(Reporting, true);
    const bool Fatal = dynamic_cast<const FatalFailure*>(&Problem);
    try {
        System().SetPointer(PointerShape::Default); // the command may have ended with the hourglass
        System().Show({.Text = Fatal ? std::string("Velorix has to end:\n\n") + Problem.what() +
                                           "\n\nYour files are as you last saved them."
                                     : std::string("The last command has failed:\n\n") + Problem.what(),
                       .Icon = MessageIcon::Critical});
    } catch (const std::exception& Second) {
        qWarning("%s", Second.what());
    }
    if (!Fatal) return;
    System().EndProgram();
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace velorix
