// Writers of picture files.
#include "paint/ImageFile.h"

#include "paint/Painter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace velorix {
namespace {

constexpr double TwipsPerInch = 1440;
constexpr double PngScale = 2;

QByteArray Png(const DisplayList& Image)
{
    QByteArray Bytes;
    QBuffer Target(&Bytes);
    ToImage(Image, PngScale).save(&Target, "png");
    return Bytes;
}

// Letters of the same widths, for who looks at the file on a machine without ours.
void NameLikeTypefaces(QByteArray& Svg)
{
    constexpr std::pair<const char*, const char*> Families[] = {
        {"Liberation Sans", "Liberation Sans, Arial, Helvetica, sans-serif"},
        {"Liberation Serif", "Liberation Serif, Times New Roman, Times, serif"},
        {"Liberation Mono", "Liberation Mono, Courier New, Courier, monospace"}};
    for (const auto& [Own, All] : Families)
        Svg.replace("font-family=\"" + QByteArray(Own) + "\"", "font-family=\"" + QByteArray(All) + "\"");
}

QByteArray Svg(const DisplayList& Image, const QString& Title)
{
    const QSize Size(qRound(Image.Width / TwipsPerPixel), qRound(Image.Height / TwipsPerPixel));
    QByteArray Bytes;
    QBuffer Target(&Bytes);
    QSvgGenerator Writer;
    Writer.setOutputDevice(&Target);
    Writer.setSize(Size);
    Writer.setViewBox(QRect(QPoint(), Size));
    Writer.setTitle(Title);
    Writer.setResolution(96);
    QPainter Painter(&Writer);
    Paint(Painter, Image, QRectF(QPointF(), Size));
    Painter.end();
    NameLikeTypefaces(Bytes);
    return Bytes;
}

QByteArray Pdf(const DisplayList& Image, const QString& Title)
{
    QByteArray Bytes;
    QBuffer Target(&Bytes);
    Target.open(QIODevice::WriteOnly);
    QPdfWriter Writer(&Target);
    Writer.setTitle(Title);
    Writer.setCreator("Velorix");
    Writer.setResolution(1200);
    Writer.setPageSize(QPageSize(QSizeF(Image.Width, Image.Height) / TwipsPerInch, QPageSize::Inch));
    Writer.setPageMargins(QMarginsF());
    QPainter Painter(&Writer);
    Paint(Painter, Image, QRectF(0, 0, Writer.width(), Writer.height()));
    Painter.end();
    return Bytes;
}

} // namespace

QImage ToImage(const DisplayList& Image, double Scale)
{
    const QSizeF Size = QSizeF(Image.Width, Image.Height) * (Scale / TwipsPerPixel);
    QImage Result(Size.toSize(), QImage::Format_RGB32);
    Result.fill(Qt::white);
    QPainter Painter(&Result);
    Paint(Painter, Image, QRectF(Result.rect()));
    return Result;
}

QByteArray ToFileBytes(const DisplayList& Image, const QString& Format, const QString& Title)
{
    if (Format == "png") return Png(Image);
    if (Format == "svg") return Svg(Image, Title);
    if (Format == "pdf") return Pdf(Image, Title);
    return {};
}

} // namespace velorix
