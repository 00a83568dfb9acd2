// Painting of a surface, and the pointer on it.
#include "desktop/SurfaceView.h"

#include "desktop/Binding.h"
#include "desktop/Style.h"
#include "paint/Painter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <cmath>

namespace velorix {
namespace {

constexpr int FrameWidth = 2;      // with the focus
constexpr double LeastScale = 0.5; // below it the labels can't be read on any display

} // namespace

SurfaceView::SurfaceView(DrawingSurface& Shown)
    : Record(Shown)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    Attach(Record, this);
    Record.View = [Alive = QPointer<SurfaceView>(this)] {
        if (!Alive) return; // a dialog's view goes before its record does
        Alive->Drawn = QPixmap();
        Alive->update();
    };
}

QSize SurfaceView::sizeHint() const
{
    return (QSizeF(Record.ScaleWidth(), Record.ScaleHeight()) / TwipsPerPixel).toSize();
}

QSize SurfaceView::minimumSizeHint() const
{
    return sizeHint() * LeastScale;
}

QRectF SurfaceView::Sheet() const
{
    const double Density = devicePixelRatioF();
    const QRectF Room = QRectF(rect()).adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
    const QRectF Place = PlaceOf(Record.Image(), Room);
    const QPointF Corner(std::round(Place.left() * Density), Room.top() * Density);
    const QSize Pixels = (Place.size() * Density).toSize();
    return {Corner / Density, QSizeF(Pixels) / Density};
}

void SurfaceView::paintEvent(QPaintEvent*)
{
    const KeepArithmeticFlags Keep;
    const QRectF Place = Sheet();
    const QSize Pixels = (Place.size() * devicePixelRatioF()).toSize();
    if (Drawn.size() != Pixels) {
        Drawn = QPixmap(Pixels);
        Drawn.fill(Qt::white);
        QPainter Paper(&Drawn);
        Paint(Paper, Record.Image(), QRectF(QPointF(), Pixels));
    }
    QPainter Painter(this);
    Painter.drawPixmap(Place, Drawn, QRectF(Drawn.rect()));
    const double Width = hasFocus() ? FrameWidth : 1;
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(hasFocus() ? Colors().Accent : Colors().Border, Width));
    Painter.drawRect(Place.adjusted(-Width / 2, -Width / 2, Width / 2, Width / 2));
}

void SurfaceView::enterEvent(QEnterEvent* Enter)
{
    setCursor(Record.PointerMoved ? Qt::CrossCursor : Qt::ArrowCursor); // a cross where it can be read out
    QWidget::enterEvent(Enter);
}

void SurfaceView::mouseMoveEvent(QMouseEvent* Move)
{
    const QRectF Place = Sheet();
    const QPointF At = Move->position() - Place.topLeft();
    const double Scale = Record.ScaleWidth() / Place.width();
    Guarded([&] { Record.PointerMoved(At.x() * Scale, At.y() * Scale); });
}

void SurfaceView::mousePressEvent(QMouseEvent* Press)
{
    if (Press->button() == Qt::RightButton) Guarded([&] { Record.RightButtonPressed(); });
}

void SurfaceView::keyPressEvent(QKeyEvent* Key)
{
    if (Key->matches(QKeySequence::Copy))
        Guarded([&] { Record.RightButtonPressed(); });
    else
        QWidget::keyPressEvent(Key);
}

SurfaceView* View(DrawingSurface& Record)
{
    return new SurfaceView(Record);
}

} // namespace velorix
