// Arrays with the domain's bounds, checked at every access.
#pragma once

#include "base/Failure.h"

#include <array>

namespace velorix {

// Entries First to Last. An index outside throws SubscriptFailure.
template <typename T, int First, int Last>
class BoundedArray {
public:
    // The names by which a standard container tells its types.
    using value_type = T;
    using iterator = typename std::array<T, Last - First + 1>::iterator;
    using const_iterator = typename std::array<T, Last - First + 1>::const_iterator;

    static constexpr int LastIndex = Last;
    static constexpr int Count = Last - First + 1;

    T& operator[](int Index) { return Entries[PlaceOf(Index)]; }
    const T& operator[](int Index) const { return Entries[PlaceOf(Index)]; }

    void Fill(const T& Value) { Entries.fill(Value); }

    bool operator==(const BoundedArray&) const = default;

    // The entries side by side, for kernels that have checked their range beforehand.
    T* Data() { return Entries.data(); }
    const T* Data() const { return Entries.data(); }

    auto begin() { return Entries.begin(); }
    auto end() { return Entries.end(); }
    auto begin() const { return Entries.begin(); }
    auto end() const { return Entries.end(); }

private:
    static std::size_t PlaceOf(int Index)
    {
        if (Index < First || Index > Last) throw SubscriptFailure(Index, First, Last);
        return static_cast<std::size_t>(Index - First);
    }

    std::array<T, Count> Entries{};
};

template <typename T, int Count>
using Array1 = BoundedArray<T, 1, Count>;

template <typename T, int Count>
using Array0 = BoundedArray<T, 0, Count - 1>;

// A value for each row (FirstRow to LastRow) and year (1 to Years). The rows of one year stand side by side.
template <typename T, int FirstRow, int LastRow, int Years>
class YearTable {
public:
    using Column = BoundedArray<T, FirstRow, LastRow>;

    T& operator()(int Row, int Year) { return Columns[Year][Row]; }
    const T& operator()(int Row, int Year) const { return Columns[Year][Row]; }

    Column& Year(int Index) { return Columns[Index]; }
    const Column& Year(int Index) const { return Columns[Index]; }

    void Fill(const T& Value)
    {
        for (Column& Each : Columns) Each.Fill(Value);
    }

private:
    Array1<Column, Years> Columns;
};

} // namespace velorix
