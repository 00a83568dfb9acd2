// The input screen of a started program, and a user at the keyboard.
#pragma once

#include "ShellTest.h"
#include "platform/Keys.h"

#include <map>

namespace velorix {

class InputTest : public ShellTest {
protected:
    // A new project of that kind.
    static void Start(int SystemType)
    {
        wSystemType = static_cast<std::int16_t>(SystemType);
        NewProjectDefaults();
    }

    static void ExpectMarked(bool Marked, const std::string& After)
    {
        EXPECT_EQ(Saved == 0, Marked) << After;
        Saved = 1;
    }

    // Selects the cell and gives the grid the focus.
    void Go(Grid& Table, int Row, int Col)
    {
        Table.Select(Row, Col);
        Windows.SetFocus(Table);
    }

    // Types the characters, one key after the other, wherever the focus is. Keys with a code of their own are
    // drawn: the arrows, ⏎ Enter, ⌫ Backspace, ⎋ Escape, ✂ Delete, and ✎ for F2, which opens the editor.
    void Type(const std::u32string& Text)
    {
        const std::map<char32_t, int> Drawn = {
            {U'←', Keys::Left},      {U'↑', Keys::Up},     {U'→', Keys::Right},
            {U'↓', Keys::Down},      {U'⏎', Keys::Enter},  {U'✎', Keys::F2},
            {U'⌫', Keys::Backspace}, {U'⎋', Keys::Escape}, {U'✂', Keys::Delete}};
        for (const char32_t Each : Text) {
            const auto Key = Drawn.find(Each);
            if (Key == Drawn.end())
                Send(OtherKey, static_cast<int>(Each));
            else
                Send(Key->second, std::u32string(U"⏎⌫⎋").find(Each) < 3 ? Key->second : 0);
        }
    }

private:
    static constexpr int OtherKey = 1; // the code of a pressed key is of no matter where a character follows

    // The events in the order in which a view raises them. The key is let go where the focus is then.
    void Send(int Code, int Character)
    {
        if (auto* Pressed = dynamic_cast<Grid*>(Windows.Focused))
            SendToGrid(*Pressed, Code, Character);
        else if (auto* Box = dynamic_cast<TextBox*>(Windows.Focused))
            SendToBox(*Box, Code, Character);
        if (auto* Table = dynamic_cast<Grid*>(Windows.Focused)) Table->KeyUp(Code);
    }

    static void SendToGrid(Grid& Table, int Code, int Character)
    {
        Table.KeyDown(Code);
        Move(Table, Code);
        if (Character != 0) Table.KeyPress(Character);
    }

    // What a table does by itself with an arrow.
    static void Move(Grid& Table, int Arrow)
    {
        const int Row = Table.Row() + (Arrow == Keys::Down) - (Arrow == Keys::Up);
        const int Col = Table.Col() + (Arrow == Keys::Right) - (Arrow == Keys::Left);
        if (Row < Table.Rows() && Col < Table.Cols() && !Table.IsFixed(Row, Col)) Table.Select(Row, Col);
    }

    static void SendToBox(TextBox& Box, int Code, int Character)
    {
        Box.KeyDown(Code);
        if (Code == Keys::Left && Box.SelStart > 0) --Box.SelStart;
        if (Code == Keys::Right && Box.SelStart < static_cast<int>(Box.Text.Get().size())) ++Box.SelStart;
        if (Character == 0) return;
        Box.KeyPress(Character);
        if (Character == 0 || Character == Keys::Escape) return;

        // Plain text is enough here: one byte a character.
        std::string Text = Box.Text;
        const auto Caret = static_cast<std::size_t>(Box.SelStart);
        if (Character != Keys::Backspace) {
            Text.insert(Caret, 1, static_cast<char>(Character));
            ++Box.SelStart;
        } else if (Caret > 0) {
            Text.erase(Caret - 1, 1);
            --Box.SelStart;
        }
        Box.Text = Text;
    }
};

} // namespace velorix
