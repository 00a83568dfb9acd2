// Columns aligned by characters.
#include "batch/HeadlineTable.h"

#include "base/Text.h"
#include "batch/Tell.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr std::array<int, HeadlineColumns> Widths = {0, 9, 4, 16, 16, 13};
constexpr std::size_t WordColumns = 2; // the first columns hold words, the others figures

} // namespace

HeadlineTable::HeadlineTable(const std::vector<InputFile>& Files)
    : NameWidth(CharacterCount("File"))
{
    for (const InputFile& Each : Files) NameWidth = std::max(NameWidth, CharacterCount(Readable(Each.Name)));
}

std::string HeadlineTable::Header() const
{
    return Line({"File", "System", "Life", "NPV of cost", "NPV of income", "IRR"});
}

std::string HeadlineTable::Line(const HeadlineRow& Row) const
{
    std::string Text;
    for (std::size_t Column = 0; Column < Row.size(); ++Column) {
        const std::string Cell = Readable(Row[Column]);
        const int Width = Column == 0 ? NameWidth : Widths[Column];
        const std::string Blanks(static_cast<std::size_t>(std::max(0, Width - CharacterCount(Cell))), ' ');
        Text += (Column > 0 ? "   " : "") + (Column < WordColumns ? Cell + Blanks : Blanks + Cell);
    }
    Text.erase(Text.find_last_not_of(' ') + 1);
    return Text + "\n";
}

} // namespace velorix
