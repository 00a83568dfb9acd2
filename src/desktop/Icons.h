// The program's own drawings: icons of commands and components, and the larger pictures.
#pragma once

#include <QIcon>
#include <QSvgRenderer>
#include <QWidget>

namespace velorix {

// The drawing of that name (icons/NAME.svg) in the colours of the style in use, drawn afresh at each size, so
// that it is crisp on any display.
QIcon DrawnIcon(const QString& Name);

// The same for a menu, where the entry under the pointer has a dark background.
QIcon MenuIcon(const QString& Name);

// A picture that keeps its proportions in the room it gets, and takes no more than its natural width.
class PictureView : public QWidget {
public:
    PictureView(const QString& Name, int NaturalWidth, const QString& Description, QWidget* Owner = nullptr);

    // Another drawing of the same size takes its place.
    void Draw(const QString& Name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QSize Scaled(int Width) const;

    QSvgRenderer Drawing;
    const int NaturalWidth;
};

} // namespace velorix
