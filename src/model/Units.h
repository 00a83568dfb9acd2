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
    double Factor; // to metres, to m3/s, or of a tariff to m3
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

// The unit of that index; none for an index that a foreign file has made up.
const Unit* UnitAt(UnitList Units, int Index);

std::vector<std::string> NamesOf(UnitList Units);

} // namespace velorix
