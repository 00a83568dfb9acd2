// The screen of the roughness scenarios.
#pragma once

class QWidget;

namespace velorix {

QWidget* RoughnessLayout();

} // namespace velorix
