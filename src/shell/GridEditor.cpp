// The events of the grids and of the editors over them.
#include "shell/GridEditor.h"

#include "base/CodePage.h"
#include "base/Text.h"
#include "input/KeyFilters.h"
#include "input/Session.h"
#include "platform/Keys.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "shell/EditedGrids.h"
#include "shell/GridPaste.h"
#include "shell/Hints.h"

#include <algorithm>
#include <utility>

namespace velorix {
namespace {

// Said when a heading in the midst of a table is typed on.
constexpr const char* NothingHere = "Nothing can be typed into a heading";

// Texts are UTF-8; a typed key and the caret count characters.

// False for a control key and for a code that is no character.
bool IsCharacter(int Key)
{
    constexpr int FirstPrintable = 32;
    const bool Control = Key < FirstPrintable || (Key >= 0x7F && Key < 0xA0);
    const bool Surrogate = Key >= 0xD800 && Key <= 0xDFFF;
    return !Control && !Surrogate && Key <= 0x10FFFF;
}

std::string WithoutLastCharacter(std::string Text)
{
    while (!Text.empty() && !StartsCharacter(Text.back())) Text.pop_back();
    if (!Text.empty()) Text.pop_back();
    return Text;
}

bool Contains(const std::vector<int>& Numbers, int Number)
{
    return std::find(Numbers.begin(), Numbers.end(), Number) != Numbers.end();
}

bool OnHeading(const Grid& Table)
{
    return Table.IsFixed(Table.Row(), Table.Col());
}

CellKind KindAtCursor(const CellEditing& Editing)
{
    return KindOf(Editing, Editing.Table.Row(), Editing.Table.Col());
}

bool OnListCell(const CellEditing& Editing)
{
    return KindAtCursor(Editing) == CellKind::Choice;
}

bool OnEditableCell(const CellEditing& Editing)
{
    return KindAtCursor(Editing) == CellKind::Number;
}

const std::string& CurrentText(const Grid& Table)
{
    return Table.Text(Table.Row(), Table.Col());
}

// What is typed into a cell or chosen for it ends here.
void Write(const CellEditing& Editing, std::string Text)
{
    ChangeCells(Editing, {{Editing.Table.Row(), Editing.Table.Col(), std::move(Text)}});
}

// The list shows the cell's own entry, or none when the cell holds another text.
void FillList(const CellEditing& Editing)
{
    const std::vector<std::string> Entries = Editing.ListEntries();
    const auto Own = std::find(Entries.begin(), Entries.end(), CurrentText(Editing.Table));
    Editing.List->List = Entries;
    Editing.List->ListIndex = Own == Entries.end() ? -1 : static_cast<int>(Own - Entries.begin());
}

// Nothing but the list lies over the current cell.
void ShowCurrentCell(const CellEditing& Editing)
{
    Grid& Table = Editing.Table;
    Editing.Editor.Visible = false;
    Table.SetBackColor(Table.Row(), Table.Col(), CurrentCellColor);
    if (Editing.List) Editing.List->Visible = false;
    if (!OnListCell(Editing)) return;
    FillList(Editing);
    Editing.List->Visible = true;
}

void TakeCurrentCell(const CellEditing& Editing)
{
    Editing.Table.Tag = CurrentText(Editing.Table);
    ShowCurrentCell(Editing);
}

void CellLeft(Grid& Table)
{
    const bool Data = Table.Row() >= Table.FixedRows;
    Table.SetBackColor(Table.Row(), Table.Col(), Data ? WindowColor : ButtonColor);
}

// A column on, and from the last column a row on. On the last cell nothing.
void Advance(Grid& Table)
{
    if (Table.Col() < Table.Cols() - 1)
        Table.Select(Table.Row(), Table.Col() + 1);
    else if (Table.Row() < Table.Rows() - 1)
        Table.Select(Table.Row() + 1, Table.Col());
}

void OpenEditor(const CellEditing& Editing)
{
    TextBox& Editor = Editing.Editor;
    Editing.Table.HistoryGoesOn = false;
    Editor.Text = CurrentText(Editing.Table);
    Editor.SelStart = CharacterCount(Editor.Text.Get());
    Editor.Visible = true;
    System().SetFocus(Editor);
}

// Writes the editor's text into the cell and closes the editor.
void Commit(const CellEditing& Editing)
{
    Write(Editing, Editing.Editor.Text);
    Editing.Editor.Visible = false;
}

// A command that may change the current cell among others.
void Run(const CellEditing& Editing, void (*Command)(const CellEditing&))
{
    Editing.Editor.Visible = false;
    Command(Editing);
    if (OnListCell(Editing)) FillList(Editing);
}

void KeyDownInGrid(const CellEditing& Editing, int& Key)
{
    if (Key == Keys::Delete) {
        Key = 0;
        return Run(Editing, EraseCells);
    }
    if (Key != Keys::F2 || !OnEditableCell(Editing)) return;
    if (!Contains(Editing.FilteredInGrid, Editing.Table.Col())) return;
    Key = 0;
    OpenEditor(Editing);
}

// Unlike F2, which opens the filtered columns only.
void DoubleClickInGrid(const CellEditing& Editing)
{
    if (OnEditableCell(Editing)) OpenEditor(Editing);
}

void KeyPressInGrid(const CellEditing& Editing, int& Key)
{
    if (Key == Keys::Escape) return;
    Grid& Table = Editing.Table;
    const int Typed = std::exchange(Key, 0);
    if (Typed == Keys::Enter) return Advance(Table);
    const bool Erases = Typed == Keys::Backspace;
    if (!Erases && !IsCharacter(Typed)) return;

    if (OnListCell(Editing)) {
        Editing.List->Visible = true;
        return System().SetFocus(*Editing.List);
    }
    const auto Code = static_cast<char32_t>(Typed);
    if (Table.IsHeadingRow(Table.Row())) MDIProject.StatusText.Caption = NothingHere;
    if (!OnEditableCell(Editing)) return;
    if (Contains(Editing.FilteredInGrid, Table.Col()) && !Passes(CellNumberKeys, Typed)) return;
    if (!InCodePage(Code)) return;
    const std::size_t Changes = Table.History.size();
    Write(Editing, Erases ? WithoutLastCharacter(CurrentText(Table)) : Utf8Of(Code));
    OpenEditor(Editing);
    Table.HistoryGoesOn = Table.History.size() > Changes; // what follows belongs to the first key
}

// The view shows the menu at the pointer and hides it again.
void MouseDownInGrid(const CellEditing& Editing, int Button)
{
    constexpr int RightButton = 2;
    Editing.Editor.Visible = false;
    if (Button == RightButton && Editing.Menu && !OnHeading(Editing.Table)) Editing.Menu->Visible = true;
}

// What else is typed reaches the cell by the editor's Change.
void KeyPressInEditor(const CellEditing& Editing, int& Key)
{
    Grid& Table = Editing.Table;
    if (Contains(Editing.FilteredInEditor, Table.Col()) && !Passes(CellNumberKeys, Key)) Key = 0;
    if (Key != Keys::Enter) return;
    Key = 0;
    Commit(Editing);
    Advance(Table);
    System().SetFocus(Table);
}

// True when the pressed key leads out of the editor's text.
bool LeavesText(const TextBox& Editor, int Key)
{
    switch (Key) {
    case Keys::Left: return Editor.SelStart == 0;
    case Keys::Right: return Editor.SelStart >= CharacterCount(Editor.Text.Get());
    case Keys::Up:
    case Keys::Down: return true;
    default: return false;
    }
}

// Column 1 is the first that the arrows reach, row 1 too; over their ends they go on in the next row.
void MoveCursor(Grid& Table, int Key)
{
    const int Row = Table.Row();
    const int Col = Table.Col();
    const int LastRow = Table.Rows() - 1;
    const int LastCol = Table.Cols() - 1;
    if (Key == Keys::Left && Col >= 2) return Table.Select(Row, Col - 1);
    if (Key == Keys::Left && Row >= 2) return Table.Select(Row - 1, LastCol);
    if (Key == Keys::Up && Row >= 2) return Table.Select(Row - 1, Col);
    if (Key == Keys::Right && Col < LastCol) return Table.Select(Row, Col + 1);
    if (Key == Keys::Right && Row < LastRow) return Table.Select(Row + 1, 1);
    if (Key == Keys::Down && Row < LastRow) return Table.Select(Row + 1, Col);
}

void KeyDownInEditor(const CellEditing& Editing, int& Key)
{
    TextBox& Editor = Editing.Editor;
    if (Key == Keys::Escape) {
        Editor.Text = Editing.Table.Tag;
        Editor.SelStart = CharacterCount(Editor.Text.Get());
    } else if (LeavesText(Editor, Key)) {
        const int Arrow = std::exchange(Key, 0);
        Commit(Editing);
        MoveCursor(Editing.Table, Arrow);
        System().SetFocus(Editing.Table);
    }
}

// The cell mirrors its editor, whatever changes the text: keys, a paste, Escape. So it is right however the
// editor is left.
void EditorChanged(const CellEditing& Editing)
{
    if (Editing.Editor.Visible) Write(Editing, Editing.Editor.Text);
}

// Filled anew, the list shows what the cell then holds.
void EntryChosen(const CellEditing& Editing)
{
    const ComboBox& List = *Editing.List;
    if (List.ListIndex < 0 || !OnListCell(Editing)) return;
    Write(Editing, List.Text());
    FillList(Editing);
}

void Settle(const CellEditing& Editing)
{
    Editing.Editor.Visible = false;
    if (!OnHeading(Editing.Table)) ShowCurrentCell(Editing);
}

void SettleAll()
{
    for (const CellEditing& Each : InputGrids()) Settle(Each);
}

// The current cell counts as entered anew.
void Reenter(const Grid& Table)
{
    for (const CellEditing& Each : EditedGrids())
        if (&Each.Table == &Table && !OnHeading(Table)) TakeCurrentCell(Each);
    SettleGridEditor(Table);
}

void AllFilled()
{
    for (const CellEditing& Each : InputGrids()) GridFilled(Each.Table);
}

} // namespace

CellKind KindOf(const CellEditing& Editing, int Row, int Col)
{
    if (Editing.Table.IsFixed(Row, Col) || Editing.Table.IsHeadingRow(Row)) return CellKind::Closed;
    const bool OnList = Col == Editing.ListCol || Row == Editing.ListRow; // 0 of each is a heading
    if (Editing.List && OnList) return CellKind::Choice;
    return Contains(Editing.EditableCols, Col) ? CellKind::Number : CellKind::Closed;
}

void ConnectGridEditor(const CellEditing& Editing)
{
    Grid& Table = Editing.Table;
    Table.EnterCell = {};
    if (OnHeading(Table)) Table.Select(Table.FixedRows, Table.FixedCols); // before anyone listens

    Table.EnterCell = [&Editing] {
        if (MDIProject.StatusText.Caption.Get() == NothingHere) ShowHint(Editing.Table);
        MarkChanged();
        TakeCurrentCell(Editing);
    };
    Table.LeaveCell = [&Table] { CellLeft(Table); };
    Table.KeyDown = [&Editing](int& Key) { KeyDownInGrid(Editing, Key); };
    Table.KeyPress = [&Editing](int& Key) { KeyPressInGrid(Editing, Key); };
    Table.KeyUp = [&Editing, &Table](int& Key) {
        if (Key == Keys::Enter && Editing.EnterOnLastRow && Table.Row() == Table.Rows() - 1)
            Editing.EnterOnLastRow();
    };
    Table.MouseDown = [&Editing](int Button) { MouseDownInGrid(Editing, Button); };
    Table.DblClick = [&Editing] { DoubleClickInGrid(Editing); };
    Table.Paste = [&Editing] { Run(Editing, PasteCells); };
    Table.Undo = [&Editing] { Run(Editing, UndoCells); };

    Editing.Editor.KeyDown = [&Editing](int& Key) { KeyDownInEditor(Editing, Key); };
    Editing.Editor.KeyPress = [&Editing](int& Key) { KeyPressInEditor(Editing, Key); };
    Editing.Editor.Change = [&Editing] { EditorChanged(Editing); };
    Editing.Editor.Inserted = [&Editing, &Table](const std::string& Text) {
        if (Contains(Editing.FilteredInEditor, Table.Col())) TellOfInserted(CellNumberKeys, Text);
    };
    if (Editing.List) Editing.List->Change = Editing.List->Click = [&Editing] { EntryChosen(Editing); };
}

void ConnectGridEditors()
{
    for (const CellEditing& Each : EditedGrids()) ConnectGridEditor(Each);
    ProjectLoaded = AllFilled;
    frmLCC.Shown = SettleAll;
}

void SettleGridEditor(const Grid& Table)
{
    for (const CellEditing& Each : EditedGrids())
        if (&Each.Table == &Table) Settle(Each);
}

void GridFilled(Grid& Table)
{
    Table.History.clear();
    Reenter(Table);
}

void ChangeProfileRows(void (*Operation)())
{
    const int Before = frmLCC.msgProfile.Rows();
    Operation();
    if (frmLCC.msgProfile.Rows() == Before) return;
    MarkChanged();
    Reenter(frmLCC.msgProfile);
}

} // namespace velorix
