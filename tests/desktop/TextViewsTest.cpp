// Typing into the views of text boxes: what handlers see of it, and what they keep out.
#include "desktop/DesktopTest.h"
#include "desktop/Views.h"

namespace velorix {
namespace {

using testing::ElementsAre;

class TextViewTest : public DesktopTest {
protected:
    // Shows the box with a handler that lets digits alone through.
    QLineEdit* PutDigitsLine()
    {
        Box.KeyDown = [this](int& Key) { Downs.push_back(Key); };
        Box.KeyPress = [this](int& Key) {
            Presses.push_back(Key);
            if (Key >= ' ' && !(Key >= '0' && Key <= '9')) Key = 0;
        };
        QLineEdit* const Line = Put(NumberView(Box));
        ShowHost();
        return Line;
    }

    TextBox Box{"Enter the length", 10};
    std::vector<int> Downs;
    std::vector<int> Presses;
};

TEST_F(TextViewTest, CodeAndUserChangeTheSameTextButForDroppedKeys)
{
    QLineEdit* const Line = PutDigitsLine();
    int Changes = 0;
    Box.Change = [&] { ++Changes; };
    Box.Text = "3°";
    EXPECT_EQ(Line->text(), "3°");
    Line->end(false);
    QTest::keyClicks(Line, "1a-2");
    for (Qt::Key Key : {Qt::Key_Backspace, Qt::Key_Escape}) QTest::keyClick(Line, Key);
    EXPECT_EQ(Changes, 4);
    EXPECT_THAT(Presses, ElementsAre('1', 'a', '-', '2', 8, 27));
    EXPECT_THAT(Downs, ElementsAre(8, 27));
    for (const char* Each : {"7", "x"}) {
        QInputMethodEvent Typed;
        Typed.setCommitString(Each);
        QCoreApplication::sendEvent(Line, &Typed);
    }
    EXPECT_EQ(Box.Text.Get(), "3°17");

    Presses.clear();
    Box.KeyDown = [](int& Key) { Key = 0; };
    QTest::keyClick(Line, Qt::Key_Backspace);
    EXPECT_EQ(Box.Text.Get(), "3°17");
    EXPECT_TRUE(Presses.empty());
}

TEST_F(TextViewTest, PastedTextIsHeldToTheLongestLengthButNotFiltered)
{
    TextBox Unbounded;
    QLineEdit* const Number = Put(NumberView(Unbounded));
    QLineEdit* const Line = PutDigitsLine();
    QApplication::clipboard()->setText(QString(5000, 'x'));
    for (QLineEdit* Each : {Line, Number}) QTest::keySequence(Each, QKeySequence::Paste);
    EXPECT_EQ(Box.Text.Get(), std::string(10, 'x'));
    EXPECT_LE(Unbounded.Text.Get().size(), 100U);
    EXPECT_TRUE(Presses.empty());
    Host.reset();
}

// The caret counts characters, which a sign beyond the first plane fills two units of the toolkit with.
TEST_F(TextViewTest, HandlersSeeTheCaretAndMayMoveIt)
{
    Box.Text = "a𝛽c";
    QLineEdit* const Line = Put(View(Box));
    ShowHost();
    std::vector<int> Carets;
    Box.KeyDown = [&](int& Key) {
        Carets.push_back(Box.SelStart);
        if (Key == 27) Box.SelStart = 2;
    };
    for (Qt::Key Key : {Qt::Key_End, Qt::Key_Left, Qt::Key_Home, Qt::Key_Escape}) QTest::keyClick(Line, Key);
    EXPECT_THAT(Carets, ElementsAre(testing::_, 3, 2, 0));
    EXPECT_EQ(Line->cursorPosition(), 3);

    Line->clearFocus();
    Line->setFocusPolicy(Qt::ClickFocus); // as the editor of a cell has it
    Box.SelStart = 1;
    System().SetFocus(Box);
    EXPECT_TRUE(Line->hasFocus());
    EXPECT_EQ(Line->cursorPosition(), 1);
}

TEST_F(TextViewTest, EnterPressesNoButtonAndEscapeStillClosesTheDialog)
{
    Box.KeyPress = [](int& Key) { Key = 0; };
    TextBox Free;
    CommandButton Button{"&OK"};
    Button.Click = [] { ADD_FAILURE(); };
    QDialog Dialog;
    auto* const Layout = new QVBoxLayout(&Dialog);
    for (QWidget* Each : std::initializer_list<QWidget*>{View(Free), View(Box), View(Button)})
        Layout->addWidget(Each);
    Dialog.show();
    for (QLineEdit* Each : Dialog.findChildren<QLineEdit*>()) QTest::keyClick(Each, Qt::Key_Return);
    EXPECT_TRUE(Dialog.isVisible());
    QTest::keyClick(Dialog.findChildren<QLineEdit*>().at(1), Qt::Key_Escape);
    EXPECT_FALSE(Dialog.isVisible());
}

TEST_F(TextViewTest, NotesEndTheirLinesAsTheFileDoesAndStayWithinTheirBound)
{
    Box.Text = "a\r\nb";
    QPlainTextEdit* const Note = Put(MultilineView(Box));
    ShowHost();
    EXPECT_EQ(Note->toPlainText(), "a\nb");
    QTest::keyClick(Note, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(Note, Qt::Key_Return);
    QTest::keyClicks(Note, "c");
    EXPECT_EQ(Box.Text.Get(), "a\r\nb\r\nc");

    Note->moveCursor(QTextCursor::Start);
    Note->insertPlainText(QString(500, 'x'));
    EXPECT_EQ(Box.Text.Get(), "xxxa\r\nb\r\nc");
    EXPECT_EQ(Note->toPlainText(), "xxxa\nb\nc");
}

} // namespace
} // namespace velorix
