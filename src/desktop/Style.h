// The look of the program: its colours, for light and for dark desktops, and the shape of its frames.
#pragma once

#include <QColor>

class QApplication;

namespace velorix {

struct ColorSet {
    bool Dark;
    QColor Window;   // behind everything
    QColor Card;     // behind a group of fields
    QColor Field;    // behind text that can be edited
    QColor Button;   // buttons and the headings of tables
    QColor Border;   // around cards
    QColor Ink;      // text
    QColor Muted;    // text that steps back
    QColor Disabled; // text of what can't be used
    QColor Accent;   // what is chosen, marked or drawn out
    QColor Tint;     // a surface in the accent's hue
};

// The colours in use; the light ones until ApplyStyle has run.
const ColorSet& Colors();

// Gives the program its style, dark when the desktop's windows are dark.
void ApplyStyle(QApplication& Program);

} // namespace velorix
