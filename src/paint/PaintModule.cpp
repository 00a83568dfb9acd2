// The module: the toolkit without a display.
#include "paint/PaintModule.h"

#include "paint/ImageFile.h"
#include "paint/PagesFile.h"
#include "paint/Painter.h"

#include <QGuiApplication>

#include <cstdio>

extern "C" [[gnu::visibility("default")]] const velorix::PaintServices* VelorixPaintServices();

namespace velorix {
namespace {

// What the toolkit remarks about a session without a desktop is of no use to the user; a reason to end is.
void TellEnd(QtMsgType Kind, const QMessageLogContext&, const QString& Text)
{
    if (Kind == QtFatalMsg) std::fprintf(stderr, "velorix-batch: %s\n", qUtf8Printable(Text));
}

// Lives until the process ends.
void StartToolkit()
{
    static int Count = 1;
    static char Name[] = "velorix-batch";
    static char* Arguments[] = {Name, nullptr};
    qInstallMessageHandler(TellEnd);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(Count, Arguments);
}

double TextWidth(const std::string& Text, const Font& Face)
{
    return PaintedTextWidth(QString::fromStdString(Text), Face);
}

std::string FileBytes(const DisplayList& Image, const std::string& Format, const std::string& Title)
{
    return ToFileBytes(Image, QString::fromStdString(Format), QString::fromStdString(Title)).toStdString();
}

} // namespace
} // namespace velorix

const velorix::PaintServices* VelorixPaintServices()
{
    static const velorix::PaintServices Services{velorix::TextWidth, velorix::PaintedTextHeight,
                                                 velorix::FileBytes, velorix::ToPdfBytes};
    if (!qGuiApp) velorix::StartToolkit();
    return &Services;
}
