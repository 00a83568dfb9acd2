// Sizes of the drawing surfaces, and the colours that belong to a screen's design.
#pragma once

#include "platform/Color.h"

namespace velorix {

// Twips, in the proportions of the place on paper: graphs 170 x 90 mm, profiles 215 x 98 mm, the IRR graph
// 190 x 100 mm. Large enough for year labels of a long life and for amounts of seven digits.
constexpr int GraphWidth = 11900;
constexpr int GraphHeight = 6300;
constexpr int ProfileWidth = 13760;
constexpr int ProfileHeight = 6272;
constexpr int IrrWidth = 12540;
constexpr int IrrHeight = 6600;

// The lines and bars of the plots, and of the keys beside them.
constexpr Color GroundInk = Rgb(0, 64, 0);
constexpr Color GradelineInk = PureBlue;
constexpr Color PumpCurveInk = PureBlue;
constexpr Color EfficiencyInk = PureGreen;
constexpr Color SystemCurveInk = PureGreen;
constexpr Color EnergyInk = Rgb(255, 10, 240);

constexpr Color CurveGridColor = Rgb(192, 192, 192);

} // namespace velorix
