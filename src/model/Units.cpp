// Look-ups in the lists of units.
#include "model/Units.h"

namespace velorix {

const Unit* UnitAt(UnitList Units, int Index)
{
    return Index >= 0 && Index < static_cast<int>(Units.size()) ? &Units[static_cast<std::size_t>(Index)]
                                                                : nullptr;
}

std::vector<std::string> NamesOf(UnitList Units)
{
    std::vector<std::string> Names;
    for (const Unit& Each : Units) Names.emplace_back(Each.Name);
    return Names;
}

} // namespace velorix
