// Rate classes and colours.
#include "input/HourPattern.h"

#include "model/WorkingSet.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

constexpr std::array<Color, 3> ClassColors = {OffpeakColor, StandardColor, PeakColor}; // by class 0, 1, 2

void Fill(Array0<Label, 24>& Labels, const Array1<std::int16_t, 24>& Classes)
{
    for (int Hour = 1; Hour <= Classes.LastIndex; ++Hour) {
        const int Class = Classes[Hour];
        const bool Known = Class >= 0 && Class < static_cast<int>(ClassColors.size());
        Labels[Hour - 1].BackColor = Known ? ClassColors.at(static_cast<std::size_t>(Class)) : ButtonColor;
    }
}

void Read(const Array0<Label, 24>& Labels, Array1<std::int16_t, 24>& Classes)
{
    for (int Hour = 1; Hour <= Classes.LastIndex; ++Hour)
        for (std::size_t Class = 0; Class < ClassColors.size(); ++Class)
            if (Labels[Hour - 1].BackColor == ClassColors.at(Class))
                Classes[Hour] = static_cast<std::int16_t>(Class);
}

} // namespace

void FillHourPattern()
{
    Fill(frmLCC.lblSummerHour, wSummerHour);
    Fill(frmLCC.lblWinterHour, wWinterHour);
}

void ReadHourPattern()
{
    Read(frmLCC.lblSummerHour, wSummerHour);
    Read(frmLCC.lblWinterHour, wWinterHour);
}

void CycleHour(Label& Hour)
{
    if (Hour.BackColor == OffpeakColor)
        Hour.BackColor = PeakColor;
    else if (Hour.BackColor == PeakColor)
        Hour.BackColor = StandardColor;
    else
        Hour.BackColor = OffpeakColor;
}

} // namespace velorix
