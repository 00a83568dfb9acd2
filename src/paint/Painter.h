// Replays a display list through a painter: the one road to window, picture file, clipboard, PDF and printer.
#pragma once

#include "platform/PrintedPage.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace velorix {

// Draws the list scaled to the target, its proportions kept, on white paper.
void Paint(QPainter& Painter, const DisplayList& Image, const QRectF& Target);

// The same of a printed page: what was written, and over it the drawings in their places.
void Paint(QPainter& Painter, const PrintedPage& Page, const QRectF& Target);

// Where the list stands within the target: as large as its proportions allow, in the middle.
QRectF PlaceOf(const DisplayList& Image, const QRectF& Target);

// Size of a text in the typefaces that are painted with (twips).
double PaintedTextWidth(const QString& Text, const Font& Face);
double PaintedTextHeight(const Font& Face);

} // namespace velorix
