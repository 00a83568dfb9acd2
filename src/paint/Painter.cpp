// The painter works in twips; the scale to the device is its own.
#include "paint/Painter.h"

#include "paint/Pictures.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

// The ascent of a typeface begins above its tallest letter; a title at the foot of a sheet needs that room
// for the letters that reach below the line.
constexpr double LetterTop = 0.97;

QColor Shade(Color Value)
{
    return {Value.Red(), Value.Green(), Value.Blue()};
}

// A typeface sized in twips, without hinting, so that a text has the same proportions at every scale.
QFont Typeface(const Font& Face)
{
    QFont Result(
        Face.Name.empty()                ? QStringList{"Liberation Sans", "Arial", "DejaVu Sans"}
        : Face.Name == "Times New Roman" ? QStringList{"Liberation Serif", "Times New Roman", "DejaVu Serif"}
        : Face.Name == "Courier New"     ? QStringList{"Liberation Mono", "Courier New", "DejaVu Sans Mono"}
                                         : QStringList{QString::fromStdString(Face.Name)});
    Result.setPixelSize(static_cast<int>(std::lround(Face.Size * TwipsPerPoint)));
    Result.setBold(Face.Bold);
    Result.setUnderline(Face.Underline);
    Result.setHintingPreference(QFont::PreferNoHinting);
    return Result;
}

QPen PenOf(Color Ink, int Width, bool Dashed)
{
    QPen Result(Shade(Ink), Width * TwipsPerPixel, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (Dashed) Result.setDashPattern({4, 3}); // in widths of the pen
    return Result;
}

// Gathers the lines that go on from each other, so that a curve of thousands of points is one stroke. Points
// nearer to the last one kept than the device can show are left out.
class Strokes {
public:
    explicit Strokes(QPainter& Target)
        : Painter(Target)
        , LeastStep(SmallestStep / std::max(1e-9, Target.transform().m11()))
    {
    }
    ~Strokes() { Finish(); }
    Strokes(const Strokes&) = delete;
    Strokes& operator=(const Strokes&) = delete;

    void Add(const LineItem& Line)
    {
        const QPointF From(Line.X1, Line.Y1);
        const QPointF To(Line.X2, Line.Y2);
        const bool GoesOn = !Points.isEmpty() && Last == From && Line.Ink == Pen.Ink &&
                            Line.Width == Pen.Width && Line.Dashed == Pen.Dashed;
        if (!GoesOn) {
            Finish();
            Pen = Line;
            Points.append(From);
        }
        Last = To;
        const QPointF Step = To - Points.back();
        if (std::fabs(Step.x()) + std::fabs(Step.y()) >= LeastStep) Points.append(To);
    }

    void Finish()
    {
        if (Points.isEmpty()) return;
        if (Points.back() != Last || Points.size() == 1) Points.append(Last);
        Painter.setPen(PenOf(Pen.Ink, Pen.Width, Pen.Dashed));
        Painter.drawPolyline(Points);
        Points.clear();
    }

private:
    static constexpr double SmallestStep = 0.3; // device pixels

    QPainter& Painter;
    const double LeastStep;
    QPolygonF Points;
    QPointF Last;
    LineItem Pen{};
};

// Draws what isn't a line.
struct Draw {
    QPainter& Painter;

    void operator()(const LineItem&) const {}
    void operator()(const BoxItem& Box) const
    {
        const QRectF Area = QRectF(QPointF(Box.X1, Box.Y1), QPointF(Box.X2, Box.Y2)).normalized();
        Painter.fillRect(Area.adjusted(0, 0, TwipsPerPixel, TwipsPerPixel), Shade(Box.Fill));
    }
    void operator()(const CircleItem& Circle) const
    {
        Painter.setPen(PenOf(Circle.Ink, Circle.Width, false));
        Painter.drawEllipse(QPointF(Circle.X, Circle.Y), Circle.Radius, Circle.Radius);
    }
    void operator()(const TextItem& Text) const
    {
        const QFont Face = Typeface(Text.Face);
        Painter.setFont(Face);
        Painter.setPen(Shade(Text.Ink));
        Painter.drawText(QPointF(Text.X, Text.Y + LetterTop * QFontMetricsF(Face).ascent()),
                         QString::fromStdString(Text.Text));
    }
    void operator()(const PictureItem& Picture) const
    {
        DrawStoredPicture(Painter, Picture.Name, QRectF(Picture.X, Picture.Y, Picture.Width, Picture.Height));
    }
};

} // namespace

QRectF PlaceOf(const DisplayList& Image, const QRectF& Target)
{
    const QSizeF Size = QSizeF(Image.Width, Image.Height).scaled(Target.size(), Qt::KeepAspectRatio);
    QRectF Place(QPointF(), Size);
    Place.moveCenter(Target.center());
    return Place;
}

void Paint(QPainter& Painter, const DisplayList& Image, const QRectF& Target)
{
    const QRectF Place = PlaceOf(Image, Target);
    Painter.save();
    Painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Painter.setClipRect(Place);
    Painter.fillRect(Place, Qt::white);
    Painter.translate(Place.topLeft());
    Painter.scale(Place.width() / Image.Width, Place.height() / Image.Height);
    {
        Strokes Lines(Painter);
        for (const DisplayItem& Each : Image.Items) {
            if (const auto* Line = std::get_if<LineItem>(&Each)) {
                Lines.Add(*Line);
            } else {
                Lines.Finish();
                std::visit(Draw{Painter}, Each);
            }
        }
    }
    Painter.restore();
}

void Paint(QPainter& Painter, const PrintedPage& Page, const QRectF& Target)
{
    Paint(Painter, Page.Print, Target);
    const QRectF Place = PlaceOf(Page.Print, Target);
    const double Scale = Place.width() / Page.Print.Width;
    for (const PlacedDrawing& Each : Page.Drawings)
        Paint(Painter, Each.Drawn,
              {Place.left() + Each.X * Scale, Place.top() + Each.Y * Scale, Each.Width * Scale,
               Each.Height * Scale});
}

double PaintedTextWidth(const QString& Text, const Font& Face)
{
    return QFontMetricsF(Typeface(Face)).horizontalAdvance(Text);
}

double PaintedTextHeight(const Font& Face)
{
    return QFontMetricsF(Typeface(Face)).lineSpacing();
}

} // namespace velorix
