// The units that an input can stand in: their names and factors, in the order of the indexes that the record
// stores.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

namespace velorix {

struct Unit {
    const char* Name;
    double Factor; // to metres, to m3/s, to pascals, or of a tariff to m3
};

using UnitList = std::span<const Unit>;

// clang-format off
inline constexpr auto FlowUnitList = std::to_array<Unit>({
    {"Mega liters/day",        0.011574074},
    {"m³/h",                   0.00027777778},
    {"m³/s",                   1.0},
    {"l/s",                    0.001},
    {"ft³/s",                  0.028316846},
    {"gal/s (USA)",            0.0037854118},
    {"gal/min (USA)",          0.00006309020},
    {"Million gal/hour (USA)", 1.0505030},
    {"Million gal/day (USA)",  0.043812636},
    {"gal/s (EUR)",            0.0045460919},
    {"gal/min (EUR)",          0.000075768199},
    {"Million gal/hour (EUR)", 1.2628033},
    {"Million gal/day (EUR)",  0.052616805},
});
// clang-format on

// The same without the units by the day.
inline constexpr std::array OperatingFlowUnitList = {
    FlowUnitList[1], FlowUnitList[2], FlowUnitList[3], FlowUnitList[4],  FlowUnitList[5],
    FlowUnitList[6], FlowUnitList[7], FlowUnitList[9], FlowUnitList[10], FlowUnitList[11]};

inline constexpr auto PumpFlowUnitList = std::to_array<Unit>(
    {{"m³/h", 0.00027777778}, {"m³/s", 1.0}, {"ft³/h", 0.028316847 / 3600}, {"gal/s (USA)", 0.0037854118}});
inline constexpr auto DistanceUnitList =
    std::to_array<Unit>({{"m", 1.0}, {"km", 1000.0}, {"ft", 0.3048}, {"miles", 1609.344}});
inline constexpr auto FineLengthUnitList =
    std::to_array<Unit>({{"mm", 0.001}, {"m", 1.0}, {"in", 0.0254}, {"ft", 0.3048}});
inline constexpr auto HeadUnitList = std::to_array<Unit>({{"m", 1.0}, {"ft", 0.3048}});
inline constexpr auto TariffUnitList =
    std::to_array<Unit>({{"/m³", 1.0}, {"/Ml", 1000.0}, {"/ft³", 0.028316846}, {"/gal", 0.0037854118}});

// Pressures as they are measured. N/mm² divides where the unit would multiply, and 100 is not what a kg/m²
// is; figures are to come out by these values.
// clang-format off
inline constexpr auto PressureUnitList = std::to_array<Unit>({
    {"Pascals (Pa)",                             1.0},
    {"Newtons per metre squared (N/m²)",         1.0},
    {"kilo Pascals (kPa)",                       1000.0},
    {"mega Pascals (MPa)",                       1000000.0},
    {"Newtons per millimetre squared (N/mm²)",   1.0 / 1000000.0},
    {"bar",                                      100000.0},
    {"millibar (mbar)",                          100.0},
    {"kilogram force per metre squared (kg/m²)", 100.0},
    {"pound force per foot squared (lb/ft²)",    47.880259514837},
    {"pound force per inch squared (psi)",       6894.75729317},
    {"atmosphere (atm)",                         101325.0},
    {"metres mercury (m Hg)",                    133322.191153411},
    {"inches mercury (in Hg)",                   3386.3836291108},
    {"feet of water (ft)",                       2989.06694959979},
    {"inches of water (in)",                     249.088907503},
    {"metres of water (m)",                      9806.65012480924},
    {"millimetres of water (mm)\"",              9.8066501248},
});
// clang-format on

// The unit of that index; none for an index that a foreign file has made up.
const Unit* UnitAt(UnitList Units, int Index);

std::vector<std::string> NamesOf(UnitList Units);

} // namespace velorix
