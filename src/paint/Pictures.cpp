// Symbols from their drawings; captions from their words.
#include "paint/Pictures.h"

#include "screens/Pictures.h"

#include <QFont>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <QtMath>

#include <algorithm>
#include <map>

namespace velorix {
namespace {

constexpr int CaptionSize = 180; // twips

// A long profile shows a symbol at hundreds of nodes, so it is read once, and once turned into pixels.
struct Symbol {
    explicit Symbol(const QString& File)
        : Drawing(File)
    {
    }

    QSvgRenderer Drawing;
    QSizeF Size; // of Pixels, exactly
    QImage Pixels;
};
std::map<std::string, Symbol> Symbols;

// On a device of pixels they are copied to the nearest place.
void CopyPixels(QPainter& Painter, Symbol& Source, const QRectF& Place)
{
    const QRectF Target = Painter.transform().mapRect(Place);
    if (Source.Size != Target.size()) {
        Source.Size = Target.size();
        Source.Pixels = QImage(std::max(1, qCeil(Target.width())), std::max(1, qCeil(Target.height())),
                               QImage::Format_ARGB32_Premultiplied);
        Source.Pixels.fill(Qt::transparent);
        QPainter Inner(&Source.Pixels);
        Source.Drawing.render(&Inner, QRectF(QPointF(), Target.size()));
    }
    Painter.save();
    Painter.resetTransform();
    Painter.drawImage(Target.topLeft().toPoint(), Source.Pixels);
    Painter.restore();
}

void DrawCaption(QPainter& Painter, const QString& Words, const QRectF& Place)
{
    QFont Face(QStringList{"Liberation Sans", "Arial", "DejaVu Sans"});
    Face.setPixelSize(CaptionSize);
    Face.setHintingPreference(QFont::PreferNoHinting);
    Painter.save();
    Painter.setFont(Face);
    Painter.setPen(Qt::black);
    Painter.translate(Place.left(), Place.bottom());
    Painter.rotate(-90);
    Painter.drawText(QRectF(0, 0, Place.height(), Place.width()), Qt::AlignCenter, Words);
    Painter.restore();
}

} // namespace

void DrawStoredPicture(QPainter& Painter, const std::string& Name, const QRectF& Place)
{
    if (const StoredPicture* const Turned = FindTurnedCaption(Name))
        return DrawCaption(Painter, QString::fromStdString(Turned->Caption), Place);
    Symbol& Source = Symbols.try_emplace(Name, ":/pictures/" + QString::fromStdString(Name)).first->second;
    const bool HasPixels = Painter.paintEngine()->type() == QPaintEngine::Raster;
    if (HasPixels && Painter.device()->devicePixelRatioF() == 1)
        CopyPixels(Painter, Source, Place);
    else
        Source.Drawing.render(&Painter, Place);
}

} // namespace velorix
