// The input screen: title line and the pages of its tabs. Layout only; what shows is the records' business.
#pragma once

class QWidget;

namespace velorix {

// The whole screen.
QWidget* InputScreenLayout();

// Its pages, and the panes that stand in for the content of a page.
QWidget* GeneralPage();
QWidget* PumpDetailsPane();
QWidget* ProfilePage();
QWidget* LayingPane();
QWidget* EnergyPage();
QWidget* RatesPage();

} // namespace velorix
