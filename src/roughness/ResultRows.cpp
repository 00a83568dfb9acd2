// Names, units and formats of the results.
#include "roughness/ResultRows.h"

#include "base/Format.h"
#include "screens/RoughnessScreen.h"

namespace velorix {

// The screen opens with another name in the third row.
const std::array<RoughnessRow, 7> RoughnessRows = {{
    {RoughnessResultNames[1], KsColebrook, true, "##0.000"},
    {RoughnessResultNames[2], KsBarr, true, "##0.000"},
    {"Karman Prandtl (ks in mm)", KsKarman, true, "##0.000"},
    {RoughnessResultNames[4], HazenC, false, "##0.00"},
    {RoughnessResultNames[5], AverageDiameter, true, "##0.00"},
    {RoughnessResultNames[6], AverageVelocity, false, "##0.000"},
    {RoughnessResultNames[7], Reynolds, false, "##0.0"},
}};

std::string RoughnessRow::Text(int Scenario, int Stretch) const
{
    if (StretchValid[Scenario][Stretch] == 0) return "";
    const Single Value = Values[Scenario][Stretch];
    return Thousandfold ? Format(Value * 1000, Pattern) : Format(Value, Pattern);
}

} // namespace velorix
