// Typing into the views of text boxes: what handlers see of it, and what they keep out.
#include "desktop/DesktopTest.h"
#include "desktop/Views.h"

#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TextViewTest : public DesktopTest {
protected:
    TextViewTest()
    {
        Box.Change = [this] { ++Changes; };
        Box.KeyDown = [this](int& Key) { Downs.push_back(Key); };
    }

    void KeepDigits()
    {
        Box.KeyPress = [this](int& Key) {
            Presses.push_back(Key);
            if (Key >= ' ' && !(Key >= '0' && Key <= '9')) Key = 0;
        };
    }

    TextBox Box{"Enter the length", 10};
    int Changes = 0;
    std::vector<int> Downs;
    std::vector<int> Presses;
};

TEST_F(TextViewTest, CodeAndUserChangeTheSameText)
{
    Box.Text = "25 mm";
    QLineEdit* const Line = Put(View(Box));
    EXPECT_EQ(Line->text(), "25 mm");
    Box.Text = "30 mm";
    EXPECT_EQ(Line->text(), "30 mm");
    EXPECT_EQ(Changes, 2);

    ShowHost();
    Line->selectAll();
    QTest::keyClicks(Line, "4°");
    EXPECT_EQ(Box.Text.Get(), "4°");
    EXPECT_EQ(Changes, 4);
}

TEST_F(TextViewTest, DroppedKeysDontReachTheBox)
{
    KeepDigits();
    QLineEdit* const Line = Put(NumberView(Box));
    ShowHost();
    QTest::keyClicks(Line, "1a-2");
    QTest::keyClick(Line, Qt::Key_Backspace);
    QTest::keyClick(Line, Qt::Key_Escape);
    EXPECT_EQ(Box.Text.Get(), "1");
    EXPECT_THAT(Presses, ElementsAre('1', 'a', '-', '2', 8, 27));
    EXPECT_THAT(Downs, ElementsAre(8, 27));

    Box.KeyDown = [](int& Key) { Key = 0; };
    QTest::keyClick(Line, Qt::Key_Backspace);
    EXPECT_EQ(Box.Text.Get(), "1");
    EXPECT_EQ(Presses.size(), 6U);
}

TEST_F(TextViewTest, CharactersOfAnInputMethodAreFilteredToo)
{
    KeepDigits();
    QLineEdit* const Line = Put(View(Box));
    ShowHost();
    for (const char* Each : {"7", "x"}) {
        QInputMethodEvent Typed;
        Typed.setCommitString(Each);
        QCoreApplication::sendEvent(Line, &Typed);
    }
    EXPECT_EQ(Box.Text.Get(), "7");
}

TEST_F(TextViewTest, PastedTextIsHeldToTheLongestLengthButNotFiltered)
{
    KeepDigits();
    QLineEdit* const Line = Put(View(Box));
    TextBox Unbounded;
    QLineEdit* const Number = Put(NumberView(Unbounded));
    ShowHost();
    QApplication::clipboard()->setText(QString(5000, 'x'));
    QTest::keySequence(Line, QKeySequence::Paste);
    QTest::keySequence(Number, QKeySequence::Paste);
    EXPECT_EQ(Box.Text.Get(), std::string(10, 'x'));
    EXPECT_LE(Unbounded.Text.Get().size(), 100U);
    EXPECT_THAT(Presses, IsEmpty());
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
    Line->setFocus();
    QTest::keyClick(Line, Qt::Key_End);
    QTest::keyClick(Line, Qt::Key_Left);
    QTest::keyClick(Line, Qt::Key_Home);
    EXPECT_EQ(Carets.at(1), 3);
    EXPECT_EQ(Carets.at(2), 2);
    QTest::keyClick(Line, Qt::Key_Escape);
    EXPECT_EQ(Line->cursorPosition(), 3);

    Line->clearFocus();
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
    int Clicks = 0;
    Button.Click = [&] { ++Clicks; };
    QDialog Dialog;
    auto* const Layout = new QVBoxLayout(&Dialog);
    for (QWidget* Each : std::initializer_list<QWidget*>{View(Free), View(Box), View(Button)})
        Layout->addWidget(Each);
    Dialog.show();
    for (QLineEdit* Each : Dialog.findChildren<QLineEdit*>()) QTest::keyClick(Each, Qt::Key_Return);
    EXPECT_EQ(Clicks, 0);
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
