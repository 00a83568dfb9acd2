// The hours of a day in a row, each in the colour and with the letter of its rate class.
#pragma once

#include "base/Arrays.h"
#include "screens/Lcc.h"

#include <QString>

#include <array>

class QWidget;

namespace velorix {

struct RateClass {
    Color Fill;
    QString Name; // its first letter shows on the hours
};

inline const std::array<RateClass, 3> RateClasses = {
    {{PeakColor, RateClassNames[2]}, {StandardColor, RateClassNames[1]}, {OffpeakColor, RateClassNames[0]}}};

// One stop of the Tab key for all hours. The arrows, Home and End move from hour to hour; Space, Enter and a
// click change the class of one; dragging paints the hours on its way with the class of the first. A screen
// reader is told season, hour and class.
QWidget* HourStrip(Array0<Label, 24>& Hours, const QString& Season);

} // namespace velorix
