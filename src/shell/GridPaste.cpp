// Pasting into grids, and the changes that can be taken back.
#include "shell/GridPaste.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "input/Session.h"
#include "platform/Platform.h"

#include <algorithm>
#include <string_view>

namespace velorix {
namespace {

using Texts = std::vector<std::string_view>;

Texts Split(std::string_view Text, char Separator)
{
    Texts Parts;
    for (std::size_t End = 0; End != std::string_view::npos;) {
        End = Text.find(Separator);
        Parts.push_back(Text.substr(0, End));
        if (End != std::string_view::npos) Text.remove_prefix(End + 1);
    }
    return Parts;
}

// Rows without their line ends, of which the last row may have none. Empty rows that find no room don't
// count.
Texts RowsOf(std::string_view Text, std::size_t Room)
{
    if (Text.ends_with('\n'))
        Text.remove_suffix(1);
    else if (Text.empty())
        return {};
    Texts Rows = Split(Text, '\n');
    for (std::string_view& Each : Rows)
        if (Each.ends_with('\r')) Each.remove_suffix(1);
    while (Rows.size() > Room && Rows.back().empty()) Rows.pop_back();
    return Rows;
}

// One number, no longer than what can be typed.
bool IsNumber(const TextBox& Editor, std::string_view Text)
{
    if (Editor.MaxLength > 0 && CharacterCount(Text) > Editor.MaxLength) return false;
    try {
        ParseSingle(Text);
        return true;
    } catch (const Failure&) {
        return false; // an answer, no failure
    }
}

// As a message shows it: a text may be of any length.
std::string Quoted(std::string_view Text)
{
    constexpr std::size_t Longest = 40;
    std::size_t Length = std::min(Text.size(), Longest);
    while (Length < Text.size() && Length > 0 && !StartsCharacter(Text[Length])) --Length;
    const std::string Rest = Length < Text.size() ? "..." : "";
    return "\"" + std::string(Text.substr(0, Length)) + Rest + "\"";
}

std::string RowName(const Grid& Table, int Row)
{
    return "row " + Quoted(Trimmed(Table.Text(Row, 0)));
}

// The nearest row of headings above a data row.
int HeadingAbove(const Grid& Table, int Row)
{
    while (Row >= Table.FixedRows && !Table.IsHeadingRow(Row)) --Row;
    return Row;
}

// The entry that the text names, as the list writes it into the cell; nullptr when there is none.
const std::string* EntryNamed(const std::vector<std::string>& Entries, std::string_view Text)
{
    const auto Named = [Text](const std::string& Each) { return Trimmed(Each) == Text; };
    const auto Found = std::find_if(Entries.begin(), Entries.end(), Named);
    return Found == Entries.end() ? nullptr : &*Found;
}

// Cells to write, or what keeps them from being written.
struct PasteResult {
    std::vector<CellText> Cells;
    std::string Problem;
};

// Adds what a text makes of its cell; nothing to a closed one.
void Place(const CellEditing& Editing, int Row, int Col, std::string_view Text, PasteResult& Pasted)
{
    const Grid& Table = Editing.Table;
    if (Col >= Table.Cols()) {
        if (!Text.empty())
            Pasted.Problem = "There is no column " + std::to_string(Col + 1) + " for " + Quoted(Text) +
                             " in " + RowName(Table, Row) + ".";
        return;
    }
    const std::string Column =
        "\"" + Trim(Table.Text(HeadingAbove(Table, Row), Col)) + "\" in " + RowName(Table, Row);
    switch (KindOf(Editing, Row, Col)) {
    case CellKind::Closed: break;
    case CellKind::Number:
        if (!Text.empty() && !IsNumber(Editing.Editor, Text))
            Pasted.Problem = Column + " takes a number, but not " + Quoted(Text) + ".";
        else
            Pasted.Cells.push_back({Row, Col, std::string(Text)});
        break;
    case CellKind::Choice:
        const std::vector<std::string> Entries = Editing.ListEntries();
        if (const std::string* const Entry = EntryNamed(Entries, Text))
            Pasted.Cells.push_back({Row, Col, *Entry});
        else
            Pasted.Problem = Column + " takes one of the entries of its list, but not " + Quoted(Text) + ".";
        break;
    }
}

std::string TooManyRows(const CellEditing& Editing, std::size_t Count)
{
    const Grid& Table = Editing.Table;
    const std::string Problem =
        "The clipboard holds " + std::to_string(Count) + " rows, but the table has only " +
        std::to_string(Table.Rows() - Table.Row()) + " from " + RowName(Table, Table.Row()) + " on.";
    const bool TakesRows = Editing.EnterOnLastRow;
    return TakesRows ? Problem + " Add rows, or replace the profile by the import wizard." : Problem;
}

PasteResult Read(const CellEditing& Editing, std::string_view Clipboard)
{
    const Grid& Table = Editing.Table;
    const auto Room = static_cast<std::size_t>(Table.Rows() - Table.Row());
    const Texts Rows = RowsOf(Clipboard, Room);
    PasteResult Pasted;
    if (Rows.size() > Room) Pasted.Problem = TooManyRows(Editing, Rows.size());
    int Row = Table.Row();
    for (auto Line = Rows.begin(); Line != Rows.end() && Pasted.Problem.empty(); ++Line, ++Row) {
        int Col = Table.Col();
        for (const std::string_view Text : Split(*Line, '\t'))
            if (Pasted.Problem.empty()) Place(Editing, Row, Col++, Trimmed(Text), Pasted);
    }
    return Pasted;
}

} // namespace

void ChangeCells(const CellEditing& Editing, std::vector<CellText> New)
{
    Grid& Table = Editing.Table;
    std::erase_if(New, [&](const CellText& Each) { return Table.Text(Each.Row, Each.Col) == Each.Text; });
    if (New.empty()) return;
    MarkChanged();
    std::vector<CellText> Old;
    for (CellText& Each : New) {
        Old.push_back({Each.Row, Each.Col, Table.Text(Each.Row, Each.Col)});
        Table.SetText(Each.Row, Each.Col, std::move(Each.Text));
    }
    const bool GoesOn = Editing.Editor.Visible && Table.HistoryGoesOn && !Table.History.empty();
    if (!GoesOn) Table.History.push_back(std::move(Old));
    Table.HistoryGoesOn = true;
}

void PasteCells(const CellEditing& Editing)
{
    if (Editing.Table.IsFixed(Editing.Table.Row(), Editing.Table.Col())) return;
    Editing.Editor.Visible = false; // a block that was meant for the open editor goes into the cells
    const std::string Clipboard = System().ClipboardText();
    PasteResult Pasted = Read(Editing, Clipboard);
    if (Pasted.Problem.empty())
        ChangeCells(Editing, std::move(Pasted.Cells));
    else
        Warn(Pasted.Problem + "\n\nNothing has been pasted.");
}

void EraseCells(const CellEditing& Editing)
{
    const CellRange Chosen = Editing.Table.Selected();
    std::vector<CellText> Emptied;
    for (int Row = Chosen.FirstRow; Row <= Chosen.LastRow; ++Row)
        for (int Col = Chosen.FirstCol; Col <= Chosen.LastCol; ++Col)
            if (KindOf(Editing, Row, Col) == CellKind::Number) Emptied.push_back({Row, Col, ""});
    ChangeCells(Editing, std::move(Emptied));
}

// The changes before it stay to be taken back: what this writes is none of them.
void UndoCells(const CellEditing& Editing)
{
    Grid& Table = Editing.Table;
    if (Table.History.empty()) return;
    const std::vector<CellText> Old = std::move(Table.History.back());
    Table.History.pop_back();
    MarkChanged();
    for (const CellText& Each : Old) Table.SetText(Each.Row, Each.Col, Each.Text);
}

} // namespace velorix
