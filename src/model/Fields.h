// What is known of each field of a project, by its name: Fields::Life and so on.
#pragma once

#include "model/RecordFields.h"
#include "model/Units.h"

#include <cstdint>
#include <limits>

namespace velorix {

// Which kind of system a field belongs to, for the copying between record and working set.
enum class Scope {
    Both,
    Pumping,          // a gravity system leaves it on both sides as it was
    LoadedForPumping, // the same, but a commit stores it for a gravity system as well
    Reserved          // stays in the record, and is copied neither way
};

// What a whole number may be. That of a unit, its index, has the units by their names.
struct FieldRange {
    int Least;
    int Most;
    UnitList Units = {};
};

constexpr FieldRange AnyNumber = {std::numeric_limits<std::int16_t>::min(),
                                  std::numeric_limits<std::int16_t>::max()};

constexpr FieldRange Between(int Least, int Most)
{
    return {Least, Most};
}

constexpr FieldRange In(UnitList Units)
{
    return {0, static_cast<int>(Units.size()) - 1, Units};
}

struct FieldRule {
    const char* Name;
    int Offset; // first byte in the disk record
    int Count;  // entries of a list, or characters of a text
    Scope UsedBy;
    FieldRange Allowed = AnyNumber;
};

namespace Fields {
#define VELORIX_INT16(Name, Offset, Count, UsedBy, Allowed, ...)                                             \
    inline constexpr FieldRule Name = {#Name, Offset, Count, Scope::UsedBy, Allowed};
#define VELORIX_OTHER(Name, Offset, Count, UsedBy, ...)                                                      \
    inline constexpr FieldRule Name = {#Name, Offset, Count, Scope::UsedBy};
VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_OTHER, VELORIX_OTHER)
#undef VELORIX_INT16
#undef VELORIX_OTHER
} // namespace Fields

} // namespace velorix
