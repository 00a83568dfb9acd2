// The factors to square metres, cubic metres a second, metres, pascals, seconds and cubic metres. Where a
// value differs from what the unit is worth, results are to come out by it all the same.
#include "tools/ConverterTables.h"

#include "model/Units.h"

#include <cstdint>
#include <initializer_list>
#include <limits>

namespace velorix {
namespace {

// The factors of the long times are products of 16-bit integers. One that overflows is no number.
constexpr double Product(std::initializer_list<int> Parts)
{
    int Result = 1;
    for (const int Each : Parts) {
        Result *= Each;
        if (Result > std::numeric_limits<std::int16_t>::max())
            return std::numeric_limits<double>::quiet_NaN();
    }
    return Result;
}

// A unit in which the pressures of the roughness tool stand too.
constexpr ConverterUnit Measured(int Index)
{
    const Unit& Known = PressureUnitList[static_cast<std::size_t>(Index)];
    return {Known.Name, Known.Factor};
}

// clang-format off
constexpr ConverterUnit Areas[] = {
    {"meter squared (m²)",        1.0},
    {"kilometers squared (km²)",  1000000.0},
    {"decimetre squared (dm²)",   0.01},
    {"centimetre squared (cm²)",  0.0001},
    {"millimetre squared (mm²)",  0.000001},
    {"hectare (ha)",              10000.0},
    {"acre",                      4046.87260987},
    {"square mile",               2589988.11034},
    {"square yards (yd²)",        0.83612736},
    {"square feet (ft²)",         0.09290304},
    {"square inch (in²)",         0.00064516},
};

constexpr ConverterUnit FlowRates[] = {
    {"mega liters per day (Ml/day)",               0.01157407407},
    {"cubic metres per hour (m³/h)",               0.0002777777777},
    {"cubic metres per second (m³/s)",             1.0},
    {"litre per second (l/s)",                     0.001},
    {"cubic feet per second (ft³/s)",              0.028316847},
    {"gallons per second (gal/s)(USA)",            0.003785411784},
    {"gallons per minute (gal/min)(USA)",          0.0000630902},
    {"million gallons per hour (Mgal/h)(USA)",     1.050503},
    {"million gallons per day (Mgal/day)(USA)",    0.04381263639},
    {"gallons per second (gal/s)(EUR)",            0.004546092},
    {"gallons per minute (gal/min)(EUR)",          0.0000757682},
    {"million gallons per hour (Mgal/h)(EUR)",     1.262803333},
    {"million gallons per day (Mgal/day)(EUR)",    0.052616806},
};

// The inch has a factor of its own as target.
constexpr ConverterUnit Lengths[] = {
    {"millimetre (mm)", 0.001},
    {"centimetre (cm)", 0.01},
    {"meter (m)",       1.0},
    {"kilometre (km)",  1000.0},
    {"inch (in)",       0.0254, 0.2054},
    {"foot (ft)",       0.3048},
    {"yard (yd)",       0.9144},
    {"miles (mile)",    1609.344},
};

// No conversion knows the last one by the text of its list.
constexpr ConverterUnit Pressures[] = {
    Measured(0),
    Measured(1),
    {"kilo Pascals (KPa)", PressureUnitList[2].Factor},
    Measured(3),
    Measured(4),
    Measured(5),
    Measured(6),
    Measured(7),
    {"kilogram force per millimetre squared (kg/mm²)", 9806650.12480924},
    Measured(8),
    Measured(9),
    Measured(10),
    Measured(11),
    Measured(12),
    Measured(13),
    Measured(14),
    Measured(15),
    {.Key = "millimetres of water (mm)", .Factor = PressureUnitList[16].Factor, .ListText = PressureUnitList[16].Name},
};

constexpr ConverterUnit Times[] = {
    {"second (s)",       1.0},
    {"minute (min)",     60.0},
    {"hour (h)",         3600.0},
    {"day (d)",          Product({60, 60, 24})},
    {"week (w)",         Product({60, 60, 24, 7})},
    {"year (y)",         Product({60, 60, 24, 365})},
    {"millisecond (ms)", 0.001},
    {"microsecond",      1.0 / 1000000.0},
    {"nanosecond (ns)",  1.0 / 1000000000.0},
};

constexpr ConverterUnit Volumes[] = {
    {"cubic meter (m³)",       1.0},
    {"cubic centimetre (cm³)", 0.000001},
    {"milli litre (ml)",       0.000001},
    {"litre (l)",              1.0 / 1000.0},
    {"kilo litre (Kl)",        1.0},
    {"mega litre (Ml)",        1000.0},
    {"inches cubed (in³)",     0.000016387064},
    {"feet cubed (ft³)",       0.028316846592},
    {"yards cubed (yd³)",      0.764554857984},
    {"UK gallon (gal)",        0.004546092},
    {"US gallon (gal)",        0.003785411784},
};

// Offsets, which a factor can't stand for; so no list shows the group.
constexpr ConverterUnit Temperatures[] = {
    {"Kelvin (K)",              -272.15},
    {"degrees Celcius (°C)",    1.0},
    {"degrees Fahrenheit (°F)", -17.222222222222},
};

constexpr ConverterGroup Groups[] = {
    {"Area",        Areas},
    {"Flow rate",   FlowRates},
    {"Length",      Lengths},
    {"Pressure",    Pressures},
    {"Time",        Times},
    {"Volume",      Volumes},
    {"Temperature", Temperatures, false},
};
// clang-format on

} // namespace

std::span<const ConverterGroup> ConverterGroups()
{
    return Groups;
}

} // namespace velorix
