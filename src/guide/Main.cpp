// make-guide TEXT PDF FOLDER...: sets the guide. Its figures are in the folders.
#include "base/Failure.h"
#include "guide/GuideDocument.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <iostream>

namespace velorix {
namespace {

QString ReadText(const QString& Path)
{
    QFile Source(Path);
    if (!Source.open(QIODevice::ReadOnly)) throw Failure("can't read " + Path.toStdString());
    return QString::fromUtf8(Source.readAll());
}

void WriteBytes(const QString& Path, const std::string& Bytes)
{
    QFileInfo(Path).dir().mkpath(".");
    QFile Target(Path);
    const auto Size = static_cast<qint64>(Bytes.size());
    if (!Target.open(QIODevice::WriteOnly) || Target.write(Bytes.data(), Size) != Size || !Target.flush())
        throw Failure("can't write " + Path.toStdString());
}

void MakeGuide(const QStringList& Arguments)
{
    constexpr int DotsPerInch = 1200;
    if (Arguments.size() < 4) throw Failure("usage: make-guide TEXT PDF FOLDER...");
    QByteArray Painted;
    QBuffer Target(&Painted);
    Target.open(QIODevice::WriteOnly);
    QPdfWriter Paper(&Target);
    Paper.setResolution(DotsPerInch);
    Paper.setCreator("Velorix");
    Paper.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()});
    GuideDocument Guide(ReadText(Arguments[1]), Arguments.mid(3), Paper);
    QPainter Painter;
    if (!Painter.begin(&Paper)) throw Failure("can't draw the pages");
    for (int Page = 0; Page < Guide.PageCount(); ++Page) {
        if (Page > 0) Paper.newPage();
        Guide.PaintPage(Painter, Page);
    }
    Painter.end();
    WriteBytes(Arguments[2],
               WithOutline({Painted.constData(), static_cast<std::size_t>(Painted.size())},
                           {"Step-by-step LCCA guide", "Life cycle costing of bulk water pipelines",
                            "The Velorix developers"},
                           Guide.Chapters()));
}

} // namespace
} // namespace velorix

int main(int ArgumentCount, char** Words)
{
    const QGuiApplication Program(ArgumentCount, Words);
    try {
        velorix::MakeGuide(QGuiApplication::arguments());
        return 0;
    } catch (const std::exception& Problem) {
        std::cerr << "make-guide: " << Problem.what() << "\n";
        return 1;
    }
}
