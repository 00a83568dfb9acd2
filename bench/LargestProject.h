// The largest project there can be: 500 rows, 100 years of ageing pipe, a pump curve.
#pragma once

#include "hydraulics/SampleProject.h"

#include <cmath>

namespace velorix {

// 10 km of 600 mm main that rises 60 m; the roughness grows in every one of the 100 years.
inline void LoadLargestProject()
{
    sample::Reset();
    for (int i = 0; i < MaxRows; ++i)
        sample::AddNode({20.0 + 0.08 * i + 3 * std::sin(i * 0.7), 20.0 * i + std::sin(i * 1.3),
                         0.6 + 0.0002 * (i % 50), 0.1 * (i % 3)});
    wTRWL = 40;
    wBRWL = 100;
    sample::SetAgeing(0.00005, 0.001, 100);
    sample::SetPumpCurve(
        {{{115, 0.0, 0}, {110, 0.1, 55}, {100, 0.2, 70}, {80, 0.3, 80}, {58, 0.4, 75}, {30, 0.5, 60}}});
    wLife = MaxYears;
    NormaliseInputs();
}

} // namespace velorix
