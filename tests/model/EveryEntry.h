// The entries of a field, whether it holds one value or a list.
#pragma once

#include "model/ProjectRecord.h"

namespace velorix {

// Calls Visit(entry from 1, value); a text is one value.
template <typename T, typename Visitor>
void ForEachEntry(T& Field, Visitor&& Visit)
{
    if constexpr (requires { Field.LastIndex; })
        for (int Entry = 1; Entry <= Field.LastIndex; ++Entry) Visit(Entry, Field[Entry]);
    else
        Visit(1, Field);
}

} // namespace velorix
