// The module: the toolkit without a display.
#include "paint/PaintModule.h"

#include "paint/ImageFile.h"
#include "paint/PagesFile.h"
#include "paint/Painter.h"

#include <QGuiApplication>

extern "C" [[gnu::visibility("default")]] const velorix::PaintServices* VelorixPaintServices();

namespace velorix {
namespace {

// Lives until the process ends.
void StartToolkit()
{
    static int Count = 1;
    static char Name[] = "velorix-batch";
    static char* Arguments[] = {Name, nullptr};
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
