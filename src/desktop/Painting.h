// The domain's colours on the toolkit's surfaces.
#pragma once

#include "platform/Color.h"

#include <QPalette>

class QPainter;
class QRect;
class QString;
class QWidget;

namespace velorix {

// True of the colours that the desktop's palette tells.
bool IsPaletteColor(Color Value);

QColor ToQColor(Color Value);

// Black on the told colour, whatever the desktop's colours are.
QPalette PaintedPalette(Color Back);

// Gives the widget the told colour behind its text, or the palette's own.
void PaintBack(QWidget& Painted, Color Back);

// True of a number, with the signs that stand with one: currency, per cent, and the commas of one that is
// written in groups.
bool IsNumberText(const QString& Text, bool InGroups);

// A frame two pixels wide inside the rectangle.
void DrawFrame(QPainter& Painter, const QRect& Around, const QColor& Ink);

} // namespace velorix
