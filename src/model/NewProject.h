// The values that a new project starts with.
#pragma once

#include "base/Date.h"

namespace velorix {

// Writes the starting values into ProjectRecord, by the record's own units and by the currency and the kind
// of system of the working set. A field whose default is Kept stays as the last project left it.
void StartNewRecord(const Date& Now);

} // namespace velorix
