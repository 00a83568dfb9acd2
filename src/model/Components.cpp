// The table of component names, and its look-ups.
#include "model/Components.h"

#include "base/Text.h"

namespace velorix {
namespace {

Array1<std::string, 21> MakeComponentTable()
{
    constexpr int Width = 20; // characters
    constexpr std::array<const char*, NamedComponents> Names = {
        "Node",      "Reservoir", "Pumpstation", "Isolating valve", "Non-return valve",
        "Air valve", "90° bend",  "45° bend",    "22.5° bend",      "T-junction"};
    Array1<std::string, 21> Table;
    for (int Entry = 1; Entry <= Table.LastIndex; ++Entry) {
        std::string Name =
            Entry <= static_cast<int>(Names.size()) ? Names.at(static_cast<std::size_t>(Entry - 1)) : "";
        const int Blanks = Width - CharacterCount(Name);
        Table[Entry] = Name + std::string(static_cast<std::size_t>(Blanks), ' ');
    }
    return Table;
}

} // namespace

const Array1<std::string, 21> ComponentTable = MakeComponentTable();

std::string ComponentText(int NodeDesc)
{
    const int Entry = NodeDesc + 1;
    return Entry >= 1 && Entry <= ComponentTable.LastIndex ? ComponentTable[Entry] : std::string();
}

std::int16_t ComponentIndex(const std::string& Text)
{
    for (int Entry = 1; Entry <= ComponentTable.LastIndex; ++Entry)
        if (ComponentTable[Entry] == Text) return static_cast<std::int16_t>(Entry - 1);
    return 0;
}

} // namespace velorix
