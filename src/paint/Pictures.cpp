// Symbols from their drawings; captions from their words.
#include "paint/Pictures.h"

#include "screens/Pictures.h"

#include <QFile>
#include <QFont>
#include <QPainter>
#include <QSvgRenderer>

namespace velorix {
namespace {

constexpr int CaptionSize = 180; // twips

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
    QSvgRenderer Drawing(":/pictures/" + QString::fromStdString(Name));
    Drawing.render(&Painter, Place);
}

} // namespace velorix
