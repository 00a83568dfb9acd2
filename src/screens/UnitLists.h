// The entries of the unit selectors. An entry's place is the unit index that the record stores.
#pragma once

#include <string>
#include <vector>

namespace velorix {

inline const std::vector<std::string> FlowUnitList = {"Mega liters/day",
                                                      "m³/h",
                                                      "m³/s",
                                                      "l/s",
                                                      "ft³/s",
                                                      "gal/s (USA)",
                                                      "gal/min (USA)",
                                                      "Million gal/hour (USA)",
                                                      "Million gal/day (USA)",
                                                      "gal/s (EUR)",
                                                      "gal/min (EUR)",
                                                      "Million gal/hour (EUR)",
                                                      "Million gal/day (EUR)"};

inline const std::vector<std::string> OperatingFlowUnitList = {"m³/h",
                                                               "m³/s",
                                                               "l/s",
                                                               "ft³/s",
                                                               "gal/s (USA)",
                                                               "gal/min (USA)",
                                                               "Million gal/hour (USA)",
                                                               "gal/s (EUR)",
                                                               "gal/min (EUR)",
                                                               "Million gal/hour (EUR)"};

inline const std::vector<std::string> DistanceUnitList = {"m", "km", "ft", "miles"};
inline const std::vector<std::string> FineLengthUnitList = {"mm", "m", "in", "ft"};
inline const std::vector<std::string> TariffUnitList = {"/m³", "/Ml", "/ft³", "/gal"};
inline const std::vector<std::string> HeadUnitList = {"m", "ft"};
inline const std::vector<std::string> PumpFlowUnitList = {"m³/h", "m³/s", "ft³/h", "gal/s (USA)"};

} // namespace velorix
