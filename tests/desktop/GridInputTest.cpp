// The grid under mouse and keyboard: the current cell, the selection, and the editors over it.
#include "GridViewTest.h"

namespace velorix {
namespace {

using testing::ElementsAre;

using GridInputTest = GridViewTest;

TEST_F(GridInputTest, AClickSelectsTheCellAndTellsTheButton)
{
    std::vector<std::string> Heard;
    Table.MouseDown = [&](int Button) { Heard.push_back(std::to_string(Button) + " on " + Place()); };
    Click(4, 2);
    Click(5, 3, Qt::RightButton);
    ClickHeading(4, Qt::RightButton); // opens no menu
    PressKeys({Qt::Key_F10}, Qt::ShiftModifier);
    ClickHeading(4); // can't become current, but the press counts
    EXPECT_THAT(Heard, ElementsAre("1 on 4,2", "2 on 5,3", "4 on 5,3", "2 on 5,3", "1 on 5,3"));
}

TEST_F(GridInputTest, KeysGoToTheHandlersAndThenMoveTheCurrentCell)
{
    std::vector<int> Downs, Presses, Ups;
    std::string Commands;
    Table.KeyDown = [&](int& Key) {
        Downs.push_back(Key);
        if (Key == Keys::Left) Key = 0;
    };
    Table.KeyPress = [&](int& Key) { Presses.push_back(Key); };
    Table.KeyUp = [&](int& Key) { Ups.push_back(Key); };
    Table.Paste = [&] { Commands += "paste "; };
    Table.Undo = [&] { Commands += "undo "; };
    PressKeys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete});
    QTest::keyClicks(Shown, "4%");
    EXPECT_EQ(Place(), "2,2");
    EXPECT_THAT(Downs, ElementsAre(Keys::Down, Keys::Right, Keys::Left, Keys::F2, Keys::Enter, Keys::Delete));
    EXPECT_THAT(Presses, ElementsAre(13, '4', '%'));
    EXPECT_EQ(Ups, Downs);
    for (const auto Each : {QKeySequence::Paste, QKeySequence::Undo}) QTest::keySequence(Shown, Each);
    EXPECT_EQ(Commands, "paste undo ");
}

TEST_F(GridInputTest, TheArrowsPassAHeadingInTheMidstOfTheTable)
{
    Table.MergeEqualCells = true;
    for (int Col = 0; Col < Table.Cols(); ++Col) Table.SetText(3, Col, "Conditions");
    Table.ShapeView();
    Table.Select(2, 1);
    for (int Row : {3, 4}) {
        PressKeys({Qt::Key_Down});
        EXPECT_EQ(Table.Row(), Row);
    }
    PressKeys({Qt::Key_Up, Qt::Key_Up});
    EXPECT_EQ(Table.Row(), 2);
    PressKeys({Qt::Key_Down, Qt::Key_Down}, Qt::ShiftModifier);
    EXPECT_EQ(Table.Row(), 2);
    EXPECT_EQ(Table.Selected().LastRow, 4);
}

// An Enter that closed a message box is let go over the grid; one that closed the editor is the grid's own.
TEST_F(GridInputTest, AKeyThatWentDownElsewhereIsNoKeyUpOfTheGrid)
{
    int Ups = 0;
    Table.KeyUp = [&](int&) { ++Ups; };
    QTest::keyRelease(Shown, Qt::Key_Return);
    EXPECT_EQ(Ups, 0);

    OpenEditor();
    Editor.KeyPress = [&](int& Key) {
        Key = 0;
        Editor.Visible = false;
    };
    QTest::keyPress(Shown->EditorView(), Qt::Key_Return);
    QTest::keyRelease(Shown, Qt::Key_Return);
    EXPECT_EQ(Ups, 1);
}

TEST_F(GridInputTest, TabLeavesTheGridAndMovingAroundKeepsTheCellInSight)
{
    CommandButton Next{"Next"};
    QWidget* const Button = Put(View(Next));
    QCoreApplication::processEvents();
    Table.Select(400, 6);
    QCoreApplication::processEvents();
    EXPECT_TRUE(InSight(CurrentRect()));
    PressKeys({Qt::Key_PageUp, Qt::Key_End});
    EXPECT_LT(Table.Row(), 400 - 5);
    EXPECT_EQ(Table.Col(), 7);
    EXPECT_TRUE(InSight(CurrentRect()));
    PressKeys({Qt::Key_Home}, Qt::ControlModifier);
    EXPECT_EQ(Place(), "1,1");
    EXPECT_TRUE(InSight(CurrentRect()));
    Editor.Visible = true; // is no stop on the way
    PressKeys({Qt::Key_Tab});
    EXPECT_TRUE(Button->hasFocus());
    QTest::keyClick(Button, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Shown->hasFocus());
    System().SetFocus(Editor);
    Editor.Visible = false; // and the focus goes no further than the grid
    EXPECT_TRUE(Shown->hasFocus());
    Host.reset();
}

TEST_F(GridInputTest, CopyTakesTheSelectedCells)
{
    Click(2, 3);
    QTest::keySequence(Shown, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "2.3\n");
    PressKeys({Qt::Key_Down, Qt::Key_Left}, Qt::ShiftModifier);
    QTest::keySequence(Shown, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "2.2\t2.3\n3.2\t3.3\n");
    EXPECT_EQ(Place(), "2,3");
    Click(4, 4, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Table.SelectedText(), "2.3\t2.4\n3.3\t3.4\n4.3\t4.4\n");
    PressKeys({Qt::Key_Down}); // from the current cell, and alone again
    EXPECT_EQ(Table.SelectedText(), "3.3\n");

    Click(1, 1);
    const QPoint Target = Shown->CellRect(1, 3).center();
    QMouseEvent Drag(QEvent::MouseMove, Target, Shown->viewport()->mapToGlobal(Target), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Shown->viewport(), &Drag);
    EXPECT_EQ(Table.SelectedText(), "1.1\t1.2\t1.3\n");
    Table.Select(7, 7);
    EXPECT_EQ(Table.SelectedText(), "7.7\n");

    Table.SetRows(4);
    QCoreApplication::processEvents();
    ClickHeading(3);
    EXPECT_EQ(Place(), "1,3");
    EXPECT_EQ(Table.SelectedText(), "0.3\n1.3\n2.3\n3.3\n");
    PressKeys({Qt::Key_A}, Qt::ControlModifier);
    EXPECT_EQ(Shown->selectionModel()->selectedIndexes().size(), 3 * 7);
    QTest::mouseClick(Shown->verticalHeader()->viewport(), Qt::LeftButton, {},
                      QPoint(5, Shown->CellRect(2, 1).center().y()));
    EXPECT_EQ(Table.SelectedText().substr(0, 8), "2.1\t2.2\t");
}

TEST_F(GridInputTest, TheEditorLiesOverTheCurrentCellAndScrollsWithIt)
{
    Host->resize(420, 300);
    Click(3, 2);
    OpenEditor();
    QLineEdit* const Line = Shown->EditorView();
    EXPECT_EQ(Line->geometry(), CurrentRect());
    EXPECT_TRUE(Line->hasFocus());
    Shown->verticalScrollBar()->setValue(20);
    EXPECT_EQ(Line->geometry(), CurrentRect());
    EXPECT_TRUE(InSight(Line->geometry()));

    // Below the headings it doesn't show; a key brings it back.
    Shown->verticalScrollBar()->setValue(70);
    EXPECT_EQ(Line->geometry(), CurrentRect());
    EXPECT_FALSE(InSight(Line->geometry()));
    Shown->verticalScrollBar()->setValue(1000);
    EXPECT_FALSE(Line->geometry().intersects(Shown->viewport()->rect()));
    QTest::keyClicks(Line, "5");
    EXPECT_EQ(Line->geometry(), CurrentRect());
    EXPECT_TRUE(InSight(Line->geometry()));
    EXPECT_EQ(Editor.Text.Get(), "3.25");

    // The other keys do nothing to the grid below.
    Table.KeyPress = [](int&) { ADD_FAILURE(); };
    for (Qt::Key Key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Return, Qt::Key_PageDown})
        QTest::keyClick(Line, Key);
    EXPECT_EQ(Place(), "3,2");
}

TEST_F(GridInputTest, TheListShowsTheCellsTextAndLetsTheKeyboardOut)
{
    Click(2, 7);
    Table.SetText(2, 7, "Air valve");
    List.Visible = true;
    QComboBox* const Choice = Shown->ListView();
    EXPECT_TRUE(CurrentRect().contains(Choice->geometry()));
    EXPECT_EQ(Choice->placeholderText(), "Air valve");
    const QRect Laid = Choice->geometry();
    List.List = {"Node", "No"};
    QTest::qWait(50); // what the toolkit puts off
    EXPECT_EQ(Choice->geometry(), Laid);
    Choice->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Choice, Qt::Key_Down);
    EXPECT_EQ(List.Text(), "Node");
    QTest::keyClick(Choice, Qt::Key_Left);
    EXPECT_EQ(Place(), "2,6");
    EXPECT_TRUE(Shown->hasFocus());

    System().SetFocus(List);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activePopupWidget() != nullptr; }));
    Choice->hidePopup();
}

TEST_F(GridInputTest, TheRowMenuOpensOverTheGridAndRunsItsEntries)
{
    MenuItem Rows{"Rows"};
    MenuItem Add{"Add a row"};
    Rows.Visible = false;
    bool Added = false;
    Add.Click = [&] { Added = true; };
    PopUpOver(*Shown, Rows, {&Add});
    Table.MouseDown = [&](int) { Rows.Visible = true; };
    Click(3, 3, Qt::RightButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_FALSE(Rows.Visible);
    QWidget* const Menu = QApplication::activePopupWidget();
    EXPECT_EQ(Menu->pos(), Shown->viewport()->mapToGlobal(Shown->CellRect(3, 3).center()));
    for (Qt::Key Key : {Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(Menu, Key);
    EXPECT_TRUE(Added);
    Host.reset();
}

} // namespace
} // namespace velorix
