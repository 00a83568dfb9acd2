// The working set: one variable for each field of the record, which screens, analysis and reports use.
#pragma once

#include "model/ProjectRecord.h"

namespace velorix {

// wLife is the working copy of Life, and so on; texts are trimmed, in UTF-8. Numbers stand as they were
// typed, in the unit of their own selector.
#define VELORIX_INT16(Name, Offset, Count, ...) extern FieldOf<std::int16_t, Count> w##Name;
#define VELORIX_SINGLE(Name, Offset, Count, ...) extern FieldOf<Single, Count> w##Name;
#define VELORIX_TEXT(Name, ...) extern std::string w##Name;
VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_SINGLE, VELORIX_TEXT)
#undef VELORIX_INT16
#undef VELORIX_SINGLE
#undef VELORIX_TEXT

// Calls Visit(rule, field of the record, working copy) for each field.
template <typename Visitor>
void ForEachWorkingField(Visitor&& Visit)
{
#define VELORIX_FIELD(Name, ...) Visit(Fields::Name, ProjectRecord.Name, w##Name);
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
}

// What the flags of the working set mean. A foreign file may hold any number in them.
inline bool IsPumping()
{
    return wSystemType == 1;
}
inline bool UsesUSUnits()
{
    return wUnits == 1;
}
inline bool PaysInDollars()
{
    return wCurrency != 0;
}

// Years from the base year to the first of operation; below zero when supply starts before the base year.
inline int ConstructionYears()
{
    return wSupplyStart - wBaseYear;
}

// The calendar year of a year of the design life, the first of which is that of the start of supply.
inline int CalendarYear(int Year)
{
    return wSupplyStart + Year - 1;
}

constexpr int LeastNodes = 2; // of a profile
extern int NodeCount;         // nodes of the open project, rows 1 to NodeCount of the profile arrays

// Copies the record to the working set: all that the record's kind of system uses. What only a pumping system
// uses stays as it was when the record holds a gravity system.
void CopyRecordToWorkingSet();

// Copies the working set to the record, texts trimmed, cut and padded. What only a pumping system uses stays
// in the record as it was when the working set holds a gravity system.
void CopyWorkingSetToRecord();

// The number of nodes that the profile arrays of the working set spell: up to the first row of zeros or of
// UnusedNode, LeastNodes at the least.
int CountNodes();

// Makes the record the open project: ProjectRecord, working set and NodeCount.
void OpenRecord(const ProjectFields& Record);

void ResetWorkingSet();

} // namespace velorix
