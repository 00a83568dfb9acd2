// The working set as the file has it, against what the load leaves.
#include "batch/PinnedFields.h"

#include "base/NumberText.h"
#include "batch/InputFiles.h"
#include "input/Session.h"
#include "model/WorkingSet.h"

namespace velorix {
namespace {

using Lines = std::vector<std::string>;

void Compare(const std::string& Field, std::int16_t Held, std::int16_t Taken, Lines& Told)
{
    if (Held != Taken)
        Told.push_back(Field + " " + std::to_string(Held) + " is out of range, " + std::to_string(Taken) +
                       " is taken");
}

void Compare(const std::string& Field, Single Held, Single Taken, Lines& Told)
{
    if (Held.Bits() != Taken.Bits())
        Told.push_back(Field + " " + GeneralText(Held) + " is out of range, " + GeneralText(Taken) +
                       " is taken");
}

template <typename T, int Count>
void Compare(const std::string& Field, const Array1<T, Count>& Held, const Array1<T, Count>& Taken,
             Lines& Told)
{
    for (int Index = 1; Index <= Count; ++Index)
        Compare(Field + "(" + std::to_string(Index) + ")", Held[Index], Taken[Index], Told);
}

} // namespace

std::vector<std::string> LoadAndTellPinned(const std::filesystem::path& Project)
{
    FileName = Project.string();
    ReadProjectRecord();
    CopyRecordToWorkingSet(); // which the load step does again, ahead of the fill
    ProjectFields Held;
#define VELORIX_NUMBERS(Name, ...) Held.Name = w##Name;
#define VELORIX_TEXT(...)
    VELORIX_RECORD_FIELDS(VELORIX_NUMBERS, VELORIX_NUMBERS, VELORIX_TEXT)
#undef VELORIX_NUMBERS

    LoadProject();
    Lines Told;
#define VELORIX_NUMBERS(Name, ...) Compare(#Name, Held.Name, w##Name, Told);
    VELORIX_RECORD_FIELDS(VELORIX_NUMBERS, VELORIX_NUMBERS, VELORIX_TEXT)
#undef VELORIX_NUMBERS
#undef VELORIX_TEXT
    return Told;
}

std::vector<std::string> LoadAndTellAll(const std::filesystem::path& Project)
{
    Lines Told = LoadAndTellPinned(Project);
    if (IsTooShort(Project)) Told.insert(Told.begin(), TooShort);
    return Told;
}

} // namespace velorix
