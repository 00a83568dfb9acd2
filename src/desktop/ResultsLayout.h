// The results screen: headline figures in cards, and the tabs with what an analysis has filled.
#pragma once

class QWidget;

namespace velorix {

QWidget* ResultsScreenLayout();

} // namespace velorix
