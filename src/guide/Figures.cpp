// Sizes and painting of the drawings.
#include "guide/Figures.h"

#include "base/Failure.h"

#include <QFileInfo>
#include <QPainter>
#include <QTextImageFormat>

namespace velorix {

namespace {

std::unique_ptr<QSvgRenderer> ReadDrawing(const QString& Name, const QStringList& Folders)
{
    auto Drawing = std::make_unique<QSvgRenderer>();
    for (const QString& Folder : Folders)
        if (const QString Path = Folder + "/" + Name; QFileInfo::exists(Path) && Drawing->load(Path))
            return Drawing;
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
