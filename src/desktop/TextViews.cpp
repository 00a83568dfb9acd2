// Views of text boxes.
#include "desktop/Binding.h"
#include "desktop/KeyEvents.h"
#include "desktop/StorableText.h"
#include "desktop/Views.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextBlock>

#include <type_traits>

namespace velorix {
namespace {

// Bounds of boxes whose record has none (characters).
constexpr int LongestNumber = 40;
constexpr int LongestText = 80;
constexpr int LongestNote = 1000;

QString TextOf(const QLineEdit& View)
{
    return View.text();
}

QString TextOf(const QPlainTextEdit& View)
{
    return View.toPlainText();
}

int CursorOf(const QLineEdit& View)
{
    return View.cursorPosition();
}

int CursorOf(const QPlainTextEdit& View)
{
    return View.textCursor().position();
}

void MoveCursor(QLineEdit& View, int Position)
{
    View.setCursorPosition(Position);
}

void MoveCursor(QPlainTextEdit& View, int Position)
{
    QTextCursor Cursor = View.textCursor();
    Cursor.setPosition(std::min(Position, View.document()->characterCount() - 1));
    View.setTextCursor(Cursor);
}

// The toolkit counts the caret in UTF-16 units, the record in characters.
int CaretOf(const QString& Text, int Cursor)
{
    return static_cast<int>(CodePoints(Text.left(Cursor)).size());
}

int CursorAt(const QString& Text, int Caret)
{
    int Cursor = 0;
    for (; Caret > 0 && Cursor < Text.size(); --Caret) Cursor += Text.at(Cursor).isHighSurrogate() ? 2 : 1;
    return Cursor;
}

// Asks the record's handlers before it takes a key.
template <typename Widget>
class TextView : public Widget {
public:
    explicit TextView(TextBox& Shown)
        : Record(Shown)
    {
    }

    // While a typed character works its change.
    bool IsTyping() const { return Typing; }

protected:
    void keyPressEvent(QKeyEvent* Key) override
    {
        const bool Escape = Key->key() == Qt::Key_Escape;
        if (IsCommandKey(*Key)) return Key->ignore();
        const std::vector<int> Typed = TypedKeys(*Key);
        if (!Allows(SpecialKey(*Key), Typed)) {
            Key->setAccepted(!Escape); // a box never keeps its dialog from closing
            return;
        }
        const QScopedValueRollback<bool> Now(Typing, !Typed.empty());
        Widget::keyPressEvent(Key);
        const bool Enter = Key->key() == Qt::Key_Return || Key->key() == Qt::Key_Enter;
        if (Enter) Key->accept(); // it presses no button of the dialog
    }

    // Dead keys and input methods type characters too.
    void inputMethodEvent(QInputMethodEvent* Typed) override
    {
        if (!Allows(0, CodePoints(Typed->commitString()))) return Typed->accept();
        const QScopedValueRollback<bool> Now(Typing, true);
        Widget::inputMethodEvent(Typed);
    }

    // Typing replaces what stands in a line, but goes on with the text of a cell: its editor is no stop of
    // the Tab key. For that key the toolkit itself selects.
    void focusInEvent(QFocusEvent* Focus) override
    {
        Widget::focusInEvent(Focus);
        if (Focus->reason() != Qt::OtherFocusReason) return;
        if (IsLine && this->focusPolicy() & Qt::TabFocus)
            this->selectAll();
        else
            ShowCaret(); // the program has put it here
    }

private:
    static constexpr bool IsLine = std::is_base_of_v<QLineEdit, Widget>;

    bool Allows(int Special, const std::vector<int>& Typed)
    {
        const QString Before = TextOf(*this);
        const int Caret = CaretOf(Before, CursorOf(*this));
        Record.SelStart = Caret;
        const bool Taken = PressDown(Record.KeyDown, Special) && Press(Record.KeyPress, Typed);
        if (Record.SelStart != Caret || TextOf(*this) != Before) ShowCaret();
        return Taken && !this->isHidden();
    }

    void ShowCaret() { MoveCursor(*this, CursorAt(TextOf(*this), Record.SelStart)); }

    TextBox& Record;
    bool Typing = false;
};

// Puts the storable text in place of what the user has just put in, as one step that undo takes back.
void HoldStorable(QLineEdit& View, const QString& Text)
{
    const QString Held = Storable(Text);
    if (Held == Text) return;
    const auto Caret = static_cast<int>(Storable(Text.left(View.cursorPosition())).size());
    const QSignalBlocker Once(View);
    View.undo();
    const Replacement Step = Between(View.text(), Held);
    View.setSelection(Step.Start, Step.Length);
    View.insert(Step.With);
    View.setCursorPosition(Caret);
}

QLineEdit* MakeLine(TextBox& Record, int Bound)
{
    auto* const View = new TextView<QLineEdit>(Record);
    View->setMaxLength(Record.MaxLength > 0 ? Record.MaxLength : Bound);
    Follow(Record.Text, View, [View](const std::string& Text) {
        const int Cursor = View->cursorPosition();
        View->setText(QString::fromStdString(Text));
        View->setCursorPosition(View->hasFocus() ? Cursor : 0); // a text that doesn't fit shows its beginning
    });
    QObject::connect(View, &QLineEdit::textChanged, View, [&Record, View](const QString& Text) {
        HoldStorable(*View, Text);
        const QString Before = QString::fromStdString(Record.Text);
        Enter(Record.Text, View->text().toStdString(), View);
        const QString Put = View->IsTyping() ? QString() : Between(Before, View->text()).With;
        if (!Put.isEmpty()) Guarded([&] { Record.Inserted(Put.toStdString()); });
    });
    Attach(Record, View);
    return View;
}

// The record's lines end as the project file's do.
std::string RecordText(const QPlainTextEdit& View)
{
    return View.toPlainText().replace('\n', "\r\n").toStdString();
}

void HoldStorable(QPlainTextEdit& View)
{
    const QString Text = View.toPlainText();
    const QString Held = Storable(Text);
    if (Held == Text) return;
    QTextCursor Cursor = View.textCursor();
    const auto Caret = static_cast<int>(Storable(Text.left(Cursor.position())).size());
    const Replacement Step = Between(Text, Held);
    Cursor.joinPreviousEditBlock();
    Cursor.setPosition(Step.Start);
    Cursor.setPosition(Step.Start + Step.Length, QTextCursor::KeepAnchor);
    Cursor.insertText(Step.With);
    Cursor.endEditBlock();
    MoveCursor(View, Caret);
}

// Takes back what is too much of the text that was just put in, which ends at the caret.
void HoldBound(QPlainTextEdit& View, int Bound)
{
    const QString Text = View.toPlainText();
    const int Excess = static_cast<int>(Text.size() + Text.count('\n')) - Bound;
    if (Excess <= 0) return;
    QTextCursor Cursor = View.textCursor();
    const int End = Cursor.position() >= Excess ? Cursor.position() : static_cast<int>(Text.size());
    Cursor.joinPreviousEditBlock();
    Cursor.setPosition(std::max(0, End - Excess));
    Cursor.setPosition(End, QTextCursor::KeepAnchor);
    Cursor.removeSelectedText();
    Cursor.endEditBlock();
}

} // namespace

QLineEdit* View(TextBox& Record)
{
    return MakeLine(Record, LongestText);
}

QLineEdit* NumberView(TextBox& Record)
{
    QLineEdit* const View = MakeLine(Record, LongestNumber);
    View->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    View->setInputMethodHints(Qt::ImhPreferNumbers);
    return View;
}

QPlainTextEdit* MultilineView(TextBox& Record)
{
    auto* const View = new TextView<QPlainTextEdit>(Record);
    View->setTabChangesFocus(true);
    Follow(Record.Text, View,
           [View](const std::string& Text) { View->setPlainText(QString::fromStdString(Text)); });
    const int Bound = Record.MaxLength > 0 ? Record.MaxLength : LongestNote;
    QObject::connect(View, &QPlainTextEdit::textChanged, View, [&Record, View, Bound] {
        {
            const QSignalBlocker Once(View);
            HoldStorable(*View);
            HoldBound(*View, Bound);
        }
        Enter(Record.Text, RecordText(*View), View);
    });
    Attach(Record, View);
    return View;
}

} // namespace velorix
