// The groups and units of the unit converter.
#pragma once

#include <span>
#include <string_view>

namespace velorix {

struct ConverterUnit {
    std::string_view Key; // the text by which a conversion knows the unit
    double Factor;        // base units in one unit; no number for one that can't be converted
    double TargetFactor = Factor;
    std::string_view ListText = Key; // the text that the lists show
};

struct ConverterGroup {
    std::string_view Name;
    std::span<const ConverterUnit> Units; // in the order of the lists
    bool Listed = true;
};

// In the order of their list.
std::span<const ConverterGroup> ConverterGroups();

} // namespace velorix
