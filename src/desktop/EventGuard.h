// The program's application object. A failure that leaves an event is reported, and the program goes on, but
// for a fatal one.
#pragma once

#include <QApplication>

#include <exception>

namespace velorix {

// Numbers keep the decimal point, whatever the locale of the desktop.
class EventGuard : public QApplication {
public:
    EventGuard(int& ArgumentCount, char** Arguments);
    bool notify(QObject* Receiver, QEvent* Event) override;
};

// Shows one box with what failed. A failure that comes up while the box stands is only logged: a timer that
// fails at each tick would pile up boxes without end. A FatalFailure ends the program behind its box.
void ReportFailure(const std::exception& Problem);

// Runs what answers an event, and reports its failure. Views call the handlers of their records this way, for
// an exception must not pass through the toolkit's own frames.
template <typename Action>
void Guarded(const Action& Answer)
{
    try {
        Answer();
    } catch (const std::exception& Problem) {
        ReportFailure(Problem);
    }
}

} // namespace velorix
