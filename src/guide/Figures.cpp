// Sizes and painting of the drawings.
#include "guide/Figures.h"

#include "base/Failure.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QTextImageFormat>

namespace velorix {

namespace {

std::unique_ptr<QSvgRenderer> ReadDrawing(const QString& Name, const QStringList& Folders)
{
    // The toolkit takes a list of typefaces for the name of one, which it doesn't have.
    static const QRegularExpression Typefaces("font-family=\"([^\",]+),[^\"]*\"");
    for (const QString& Folder : Folders) {
        QFile Source(Folder + "/" + Name);
        if (!Source.open(QIODevice::ReadOnly)) continue;
        const QString Text = QString::fromUtf8(Source.readAll()).replace(Typefaces, "font-family=\"\\1\"");
        auto Drawing = std::make_unique<QSvgRenderer>();
        if (Drawing->load(Text.toUtf8())) return Drawing;
    }
    throw Failure("There is no figure " + Name.toStdString() + ".");
}

} // namespace

void Figures::Load(QTextDocument& Document, const QStringList& Folders)
{
    for (const QTextFormat& Each : Document.allFormats())
        if (Each.isImageFormat()) {
            const QString Name = Each.toImageFormat().name();
            Loaded[Name] = ReadDrawing(Name, Folders);
        }
    Document.documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

QSvgRenderer& Figures::Drawing(const QTextFormat& Format) const
{
    return *Loaded.at(Format.toImageFormat().name());
}

QSizeF Figures::intrinsicSize(QTextDocument*, int, const QTextFormat& Format)
{
    const QSizeF Own = Drawing(Format).viewBoxF().size();
    return {Width, Width * Own.height() / Own.width()};
}

void Figures::drawObject(QPainter* Painter, const QRectF& Place, QTextDocument*, int,
                         const QTextFormat& Format)
{
    Drawing(Format).render(Painter, Place);
}

} // namespace velorix
