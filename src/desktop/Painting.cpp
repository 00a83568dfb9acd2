// Colours and frames.
#include "desktop/Painting.h"

#include <QLocale>
#include <QPainter>
#include <QString>
#include <QWidget>

#include <cmath>

namespace velorix {

bool IsPaletteColor(Color Value)
{
    return Value == WindowColor || Value == ButtonColor;
}

QColor ToQColor(Color Value)
{
    return {Value.Red(), Value.Green(), Value.Blue()};
}

QPalette PaintedPalette(Color Back)
{
    QPalette Painted;
    for (QPalette::ColorRole Role : {QPalette::Window, QPalette::Base, QPalette::Button})
        Painted.setColor(Role, ToQColor(Back));
    for (QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        Painted.setColor(Role, Qt::black);
    return Painted;
}

void PaintBack(QWidget& Painted, Color Back)
{
    Painted.setAutoFillBackground(!IsPaletteColor(Back));
    Painted.setPalette(IsPaletteColor(Back) ? QPalette() : PaintedPalette(Back));
}

bool IsNumberText(const QString& Text, bool InGroups)
{
    QString Number = Text.trimmed();
    if (InGroups) Number.remove(',');
    if (Number.startsWith('R') || Number.startsWith('$')) Number.remove(0, 1);
    if (Number.endsWith('%')) Number.chop(1);
    QLocale Plain = QLocale::c();
    Plain.setNumberOptions(QLocale::RejectGroupSeparator);
    bool Readable = false;
    const double Value = Plain.toDouble(Number, &Readable);
    return Readable && std::isfinite(Value);
}

void DrawFrame(QPainter& Painter, const QRect& Around, const QColor& Ink)
{
    constexpr int Width = 2;
    Painter.save();
    Painter.setPen(QPen(Ink, Width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    Painter.drawRect(Around.adjusted(1, 1, -1, -1));
    Painter.restore();
}

} // namespace velorix
