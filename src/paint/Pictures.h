// The stored pictures as vectors.
#pragma once

#include <QRectF>

#include <string>

class QPainter;

namespace velorix {

// Paints the stored picture of that name into the rectangle: a symbol, or a caption turned to read upwards.
void DrawStoredPicture(QPainter& Painter, const std::string& Name, const QRectF& Place);

} // namespace velorix
