// The record's layout in a file.
#include "model/ProjectRecord.h"

#include "base/CodePage.h"
#include "base/Text.h"

#include <algorithm>

namespace velorix {

ProjectFields ProjectRecord;

namespace {

// Offsets and widths must follow each other without a gap.
constexpr bool FieldsFillTheRecord()
{
    int Next = 0;
    bool Sound = true;
    const auto Take = [&](int Offset, int Bytes) {
        Sound = Sound && Offset == Next;
        Next += Bytes;
    };
#define VELORIX_INT16(Name, Offset, Count, ...) Take(Offset, 2 * (Count));
#define VELORIX_SINGLE(Name, Offset, Count, ...) Take(Offset, 4 * (Count));
#define VELORIX_TEXT(Name, Offset, Width, ...) Take(Offset, Width);
    VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_SINGLE, VELORIX_TEXT)
#undef VELORIX_INT16
#undef VELORIX_SINGLE
#undef VELORIX_TEXT
    return Sound && Next == RecordLength;
}
static_assert(FieldsFillTheRecord());

template <typename Word>
void PutWord(char* At, Word Bits)
{
    for (std::size_t Byte = 0; Byte < sizeof(Word); ++Byte) At[Byte] = static_cast<char>(Bits >> (8 * Byte));
}

template <typename Word>
Word TakeWord(const char* At)
{
    Word Bits = 0;
    for (std::size_t Byte = sizeof(Word); Byte-- > 0;)
        Bits = static_cast<Word>(Bits << 8 | static_cast<unsigned char>(At[Byte]));
    return Bits;
}

void Put(char* At, std::int16_t Value)
{
    PutWord(At, static_cast<std::uint16_t>(Value));
}

void Put(char* At, Single Value)
{
    PutWord(At, Value.Bits());
}

template <int Width>
void Put(char* At, const FixedText<Width>& Value)
{
    std::copy(Value.Bytes.begin(), Value.Bytes.end(), At);
}

template <typename T, int Count>
void Put(char* At, const Array1<T, Count>& Values)
{
    for (const T& Each : Values) {
        Put(At, Each);
        At += sizeof(T);
    }
}

void Take(const char* At, std::int16_t& Value)
{
    Value = static_cast<std::int16_t>(TakeWord<std::uint16_t>(At));
}

void Take(const char* At, Single& Value)
{
    Value = Single::FromBits(TakeWord<std::uint32_t>(At));
}

template <int Width>
void Take(const char* At, FixedText<Width>& Value)
{
    std::copy(At, At + Width, Value.Bytes.begin());
}

template <typename T, int Count>
void Take(const char* At, Array1<T, Count>& Values)
{
    for (T& Each : Values) {
        Take(At, Each);
        At += sizeof(T);
    }
}

} // namespace

RecordImage ToImage(const ProjectFields& Record)
{
    RecordImage Image{};
    ForEachField(Record,
                 [&](const FieldRule& Rule, const auto& Field) { Put(Image.data() + Rule.Offset, Field); });
    return Image;
}

ProjectFields FromImage(const RecordImage& Image)
{
    ProjectFields Record;
    ForEachField(Record,
                 [&](const FieldRule& Rule, auto& Field) { Take(Image.data() + Rule.Offset, Field); });
    return Record;
}

std::string TextOf(const char* Bytes, int Width)
{
    // A file that ends early leaves zero bytes instead of blanks.
    std::string_view Text(Bytes, static_cast<std::size_t>(Width));
    Text = Text.substr(0, Text.find_last_not_of(std::string_view(" \0", 2)) + 1);
    return FromCodePage(TrimmedLeft(Text));
}

void SetText(char* Bytes, int Width, std::string_view Utf8)
{
    std::string Padded = ToCodePage(Utf8);
    Padded.resize(static_cast<std::size_t>(Width), ' ');
    std::copy(Padded.begin(), Padded.end(), Bytes);
}

void ResetProjectRecord()
{
    ProjectRecord = ProjectFields();
}

} // namespace velorix
