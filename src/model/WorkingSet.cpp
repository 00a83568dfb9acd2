// The working variables, and the copying between them and the record.
#include "model/WorkingSet.h"

#include "base/Text.h"

#include <algorithm>

namespace velorix {

#define VELORIX_INT16(Name, Offset, Count, ...) FieldOf<std::int16_t, Count> w##Name{};
#define VELORIX_SINGLE(Name, Offset, Count, ...) FieldOf<Single, Count> w##Name{};
#define VELORIX_TEXT(Name, ...) std::string w##Name;
VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_SINGLE, VELORIX_TEXT)
#undef VELORIX_INT16
#undef VELORIX_SINGLE
#undef VELORIX_TEXT

int NodeCount = 0;

namespace {

template <int Width>
void Copy(const FixedText<Width>& From, std::string& To)
{
    To = TextOf(From);
}

template <int Width>
void Copy(const std::string& From, FixedText<Width>& To)
{
    SetText(To, Trimmed(From));
}

template <typename T>
void Copy(const T& From, T& To)
{
    To = From;
}

bool IsLoaded(const FieldRule& Rule)
{
    return Rule.UsedBy == Scope::Both || (Rule.UsedBy != Scope::Reserved && IsPumping());
}

bool IsStored(const FieldRule& Rule)
{
    return IsLoaded(Rule) || Rule.UsedBy == Scope::LoadedForPumping;
}

} // namespace

void CopyRecordToWorkingSet()
{
    wSystemType = ProjectRecord.SystemType; // which tells what else is loaded
    ForEachWorkingField([](const FieldRule& Rule, const auto& Stored, auto& Working) {
        if (IsLoaded(Rule)) Copy(Stored, Working);
    });
}

void CopyWorkingSetToRecord()
{
    ForEachWorkingField([](const FieldRule& Rule, auto& Stored, const auto& Working) {
        if (IsStored(Rule)) Copy(Working, Stored);
    });
}

int CountNodes()
{
    for (int Row = 1; Row <= wElevation.LastIndex; ++Row) {
        const bool Zero = wElevation[Row] == 0.0 && wAccLength[Row] == 0.0;
        const bool Unused = wElevation[Row] == UnusedNode && wAccLength[Row] == UnusedNode;
        if (Zero || Unused) return std::max(Row - 1, LeastNodes);
    }
    return wElevation.LastIndex - 1;
}

void OpenRecord(const ProjectFields& Record)
{
    ProjectRecord = Record;
    CopyRecordToWorkingSet();
    NodeCount = CountNodes();
}

void ResetWorkingSet()
{
    ForEachWorkingField([](const FieldRule&, const auto&, auto& Working) { Working = {}; });
    NodeCount = 0;
}

} // namespace velorix
