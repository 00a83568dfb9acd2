// The view of a scroll bar: a slider for the hand and a number field for the keyboard, side by side.
#pragma once

#include "platform/Controls.h"

#include <QWidget>

class QSlider;
class QSpinBox;

namespace velorix {

class ScrollBarView : public QWidget {
public:
    // With Decimals the field shows the value as a decimal fraction: 25 as 0.25 with two.
    ScrollBarView(ScrollBar& Shown, const QString& Suffix, int Decimals = 0);

    QSlider& Bar() const { return *Slider; }
    QSpinBox& Field() const { return *Box; }

protected:
    void showEvent(QShowEvent* Event) override;

private:
    void ShowState();
    void Take(int Value);

    ScrollBar& Record;
    QSlider* const Slider;
    QSpinBox* const Box;
};

} // namespace velorix
