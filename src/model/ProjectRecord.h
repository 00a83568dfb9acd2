// The project record: what a project file holds, and the one place that new defaults and commits write to.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"
#include "model/Fields.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace velorix {

constexpr int RecordLength = 16650; // bytes
using RecordImage = std::array<char, RecordLength>;

// Marks Elevation and AccLength of an entry past the last node.
constexpr double UnusedNode = 999999.0;

// A text of fixed width in the single-byte code page, padded with blanks, not terminated.
template <int Width>
struct FixedText {
    std::array<char, Width> Bytes{};

    bool operator==(const FixedText&) const = default;
};

// One value for a count of 1, otherwise an array with the entries 1 to Count.
template <typename T, int Count>
using FieldOf = std::conditional_t<Count == 1, T, Array1<T, Count>>;

#define VELORIX_INT16(Name, Offset, Count, ...) FieldOf<std::int16_t, Count> Name{};
#define VELORIX_SINGLE(Name, Offset, Count, ...) FieldOf<Single, Count> Name{};
#define VELORIX_TEXT(Name, Offset, Width, ...) FixedText<Width> Name{};

struct ProjectFields {
    VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_SINGLE, VELORIX_TEXT)
};

#undef VELORIX_INT16
#undef VELORIX_SINGLE
#undef VELORIX_TEXT

// Calls Visit(rule, field) for each field of the record, in its order.
template <typename Record, typename Visitor>
void ForEachField(Record& Of, Visitor&& Visit)
{
#define VELORIX_FIELD(Name, ...) Visit(Fields::Name, Of.Name);
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
}

extern ProjectFields ProjectRecord; // the open project as its file has it

// The record's bytes as they stand in a file, and back. Every bit goes through unchanged.
RecordImage ToImage(const ProjectFields& Record);
ProjectFields FromImage(const RecordImage& Image);

// The text of a fixed field in UTF-8, without the blanks around it.
std::string TextOf(const char* Bytes, int Width);

// Writes the text into the field: cut at the width, padded with blanks.
void SetText(char* Bytes, int Width, std::string_view Utf8);

template <int Width>
std::string TextOf(const FixedText<Width>& Field)
{
    return TextOf(Field.Bytes.data(), Width);
}

template <int Width>
void SetText(FixedText<Width>& Field, std::string_view Utf8)
{
    SetText(Field.Bytes.data(), Width, Utf8);
}

void ResetProjectRecord();

} // namespace velorix
