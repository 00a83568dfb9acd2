// The viewers that take the place of a screen in the main window.
#pragma once

class QWidget;

namespace velorix {

QWidget* ProfileViewLayout();
QWidget* RoughnessViewLayout();
QWidget* PumpViewLayout();
QWidget* IrrViewLayout();

} // namespace velorix
