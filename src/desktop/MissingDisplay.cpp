// The toolkit's last message, turned into the program's own.
#include "desktop/MissingDisplay.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace velorix {
namespace {

QtMessageHandler Usual = nullptr;

void Answer(QtMsgType Kind, const QMessageLogContext& Source, const QString& Text)
{
    if (Kind == QtFatalMsg) {
        std::fputs("velorix: There is no display to show a window on, or it can't be reached. Start the "
                   "program in a "
                   "graphical session, or use velorix-batch, which needs none.\n",
                   stderr);
        std::_Exit(EXIT_FAILURE);
    }
    // What leads to that end is of no use to the user.
    const bool OfDisplay = Source.category && std::strncmp(Source.category, "qt.qpa", 6) == 0;
    if (!OfDisplay) Usual(Kind, Source, Text);
}

} // namespace

MissingDisplay::MissingDisplay()
{
    Usual = qInstallMessageHandler(Answer);
}

MissingDisplay::~MissingDisplay()
{
    qInstallMessageHandler(Usual);
}

} // namespace velorix
