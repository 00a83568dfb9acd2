// The look of the guide's text: fonts, room, rules of tables, boxes.
#pragma once

#include <QColor>
#include <QString>

class QTextBlock;
class QTextDocument;

namespace velorix {

// Lengths of the look are in pixels of 96 to the inch, which the layout scales to its device.
constexpr double LookPixelsPerInch = 96;

constexpr const char* TextFamily = "Liberation Serif";
constexpr const char* FixedFamily = "Liberation Mono";
constexpr const char* HeadingFamily = "Liberation Sans";

const QColor HeadingInk("#123f5c");
const QColor QuietInk("#5c6a76");
const QColor BoxRule("#2f7fb0");

// The text with blanks that don't break between a number and its unit and between a currency and its amount,
// and with something in the empty cells of tables, which the reader would pass over. Lines of formulas stay
// as they are.
QString ReadyToSet(const QString& Markdown);

// A line of a formula or of sums.
bool IsReckoning(const QTextBlock& Block);

// Gives what the reader of Markdown has made its look. Chapters begin on new pages. Scale is the dots of the
// paper in a pixel.
void ApplyLook(QTextDocument& Document, double Scale);

} // namespace velorix
