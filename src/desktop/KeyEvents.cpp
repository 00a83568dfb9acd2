// From the toolkit's keys to key codes.
#include "desktop/KeyEvents.h"

#include "desktop/EventGuard.h"
#include "platform/Keys.h"

#include <QKeyEvent>

namespace velorix {
namespace {

constexpr Qt::KeyboardModifiers Chords = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// The keys that are both a special key and a typed control character.
int ControlCharacter(int Key)
{
    switch (Key) {
    case Qt::Key_Backspace: return Keys::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Keys::Enter;
    case Qt::Key_Escape: return Keys::Escape;
    default: return 0;
    }
}

bool HoldsChord(const QKeyEvent& Key)
{
    const Qt::KeyboardModifiers Held = Key.modifiers() & Chords;
    const bool ThirdLevel = Held == (Qt::ControlModifier | Qt::AltModifier); // AltGr on some keyboards
    return Held && !ThirdLevel;
}

int MovingKey(int Key)
{
    switch (Key) {
    case Qt::Key_PageUp: return Keys::PageUp;
    case Qt::Key_PageDown: return Keys::PageDown;
    case Qt::Key_End: return Keys::End;
    case Qt::Key_Home: return Keys::Home;
    case Qt::Key_Left: return Keys::Left;
    case Qt::Key_Up: return Keys::Up;
    case Qt::Key_Right: return Keys::Right;
    case Qt::Key_Down: return Keys::Down;
    case Qt::Key_Delete: return Keys::Delete;
    default: break;
    }
    return Key >= Qt::Key_F1 && Key <= Qt::Key_F12 ? Keys::F1 + Key - Qt::Key_F1 : 0;
}

} // namespace

int SpecialKey(const QKeyEvent& Key)
{
    if (Key.modifiers() & Chords) return 0;
    if (const int Code = ControlCharacter(Key.key())) return Code;
    return Key.modifiers() & Qt::ShiftModifier ? 0 : MovingKey(Key.key());
}

bool IsCommandKey(const QKeyEvent& Key)
{
    const Qt::KeyboardModifiers Held = Key.modifiers();
    if (Held & Qt::ControlModifier || !(Held & (Qt::AltModifier | Qt::MetaModifier))) return false;
    return !Key.text().isEmpty() && Key.text().front().isPrint();
}

std::vector<int> TypedKeys(const QKeyEvent& Key)
{
    if (HoldsChord(Key)) return {};
    if (const int Code = ControlCharacter(Key.key())) return {Code};
    const QString Text = Key.text();
    if (Text.isEmpty() || !(Text.front().isPrint() || Text.front().isSurrogate())) return {};
    return CodePoints(Text);
}

bool Press(const KeyHandler& Pressed, const std::vector<int>& Typed)
{
    for (int Each : Typed)
        if (!PressDown(Pressed, Each)) return false;
    return true;
}

bool PressDown(const KeyHandler& Pressed, int Key)
{
    if (Key == 0) return true;
    Guarded([&] { Pressed(Key); });
    return Key != 0;
}

std::vector<int> CodePoints(const QString& Text)
{
    const QList<uint> Points = Text.toUcs4();
    return {Points.begin(), Points.end()};
}

} // namespace velorix
