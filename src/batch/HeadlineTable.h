// The table of headline figures, a row at a time.
#pragma once

#include "batch/InputFiles.h"

#include <array>
#include <string>
#include <vector>

namespace velorix {

// The columns in their order. The first is as wide as the longest name, the others as figures usually are; a
// wider one moves the rest of its row.
constexpr int HeadlineColumns = 6;
using HeadlineRow = std::array<std::string, HeadlineColumns>;

class HeadlineTable {
public:
    explicit HeadlineTable(const std::vector<InputFile>& Files);

    std::string Header() const;
    std::string Line(const HeadlineRow& Row) const;

private:
    int NameWidth;
};

} // namespace velorix
