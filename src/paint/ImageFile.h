// A display list as the bytes of a picture file.
#pragma once

#include "platform/DisplayList.h"

#include <QByteArray>
#include <QImage>

namespace velorix {

// The list in pixels; Scale 1 is the screen's, 15 twips a pixel.
QImage ToImage(const DisplayList& Image, double Scale);

// The bytes of a file: vectors as "svg" or, one page of its size, "pdf"; pixels at twice the screen's
// resolution as "png". Empty for any other format.
QByteArray ToFileBytes(const DisplayList& Image, const QString& Format, const QString& Title);

} // namespace velorix
