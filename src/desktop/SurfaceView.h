// The view of a drawing surface: the display list as a white sheet, as large as the room allows.
#pragma once

#include "platform/DrawingSurface.h"

#include <QPixmap>
#include <QWidget>

namespace velorix {

// A press of the right button, or Ctrl+C with the focus on it, copies the picture.
class SurfaceView : public QWidget {
public:
    explicit SurfaceView(DrawingSurface& Shown);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* Event) override;
    void enterEvent(QEnterEvent* Enter) override;
    void mouseMoveEvent(QMouseEvent* Move) override;
    void mousePressEvent(QMouseEvent* Press) override;
    void keyPressEvent(QKeyEvent* Key) override;

private:
    QRectF
    Sheet() const; // where the picture stands in the widget: at its top, on whole pixels of the display

    DrawingSurface& Record;
    QPixmap Drawn; // the list as it was last painted, at the size and density of then
};

SurfaceView* View(DrawingSurface& Record);

} // namespace velorix
