// Painting of a surface, and the pointer on it.
#include "desktop/SurfaceView.h"

#include "desktop/Binding.h"
#include "desktop/Style.h"
#include "paint/Painter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace velorix {
namespace {

constexpr double LeastScale = 0.55; // below it the labels can't be read

} // namespace

SurfaceView::SurfaceView(DrawingSurface& Shown)
    : Record(Shown)
{
    QSizePolicy Policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Policy.setHeightForWidth(true);
    setSizePolicy(Policy);
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

int SurfaceView::heightForWidth(int Width) const
{
    return static_cast<int>(Width * Record.ScaleHeight() / Record.ScaleWidth());
}

QRectF SurfaceView::Sheet() const
{
    return PlaceOf(Record.Image(), QRectF(rect()).adjusted(1, 1, -1, -1));
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
    Painter.setPen(hasFocus() ? Colors().Accent : Colors().Border);
    Painter.drawRect(Place.adjusted(-0.5, -0.5, 0.5, 0.5));
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
