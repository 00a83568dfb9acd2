// The grid's cells on the screen: their place, the current cell, keys, selection, and the editors over it.
#include "desktop/GridView.h"

#include "desktop/Binding.h"
#include "desktop/DesktopTest.h"
#include "desktop/Views.h"
#include "platform/Keys.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace velorix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridViewTest : public DesktopTest {
protected:
    GridViewTest()
    {
        Editor.Visible = false;
        List.Visible = false;
        Table.FixedCols = 1;
        Table.HeaderHeight = 500;
        Table.DataRowHeight = 450;
        Table.ColWidth.assign(8, 1200);
        for (int Row = 0; Row < Table.Rows(); ++Row)
            for (int Col = 0; Col < Table.Cols(); ++Col)
                Table.SetText(Row, Col, std::to_string(Row) + "." + std::to_string(Col));
        Table.Select(1, 1);
        Shown = Put(View(Table, Editor, &List));
    }

    void SetUp() override
    {
        ShowHost();
        Shown->setFocus();
    }

    void TearDown() override
    {
        Table.CellView = {};
        DesktopTest::TearDown();
    }

    void Click(int Row, int Col, Qt::MouseButton Button = Qt::LeftButton, Qt::KeyboardModifiers Held = {})
    {
        QTest::mouseClick(Shown->viewport(), Button, Held, Shown->CellRect(Row, Col).center());
    }

    void PressKeys(const std::vector<Qt::Key>& Keys, Qt::KeyboardModifiers Held = {})
    {
        for (Qt::Key Each : Keys) QTest::keyClick(Shown, Each, Held);
    }

    void ClickHeading(int Col, Qt::MouseButton Button = Qt::LeftButton)
    {
        QHeaderView* const Header = Shown->horizontalHeader();
        const int Section = Col - 1;
        const int Middle = Header->sectionViewportPosition(Section) + Header->sectionSize(Section) / 2;
        QTest::mouseClick(Header->viewport(), Button, {}, QPoint(Middle, Header->height() / 2));
    }

    // What the shell does when a cell is opened.
    void OpenEditor()
    {
        Editor.Text = Table.Text(Table.Row(), Table.Col());
        Editor.SelStart = static_cast<int>(Editor.Text.Get().size());
        Editor.Visible = true;
        System().SetFocus(Editor);
    }

    std::string Place() const { return std::to_string(Table.Row()) + "," + std::to_string(Table.Col()); }
    QRect CurrentRect() { return Shown->CellRect(Table.Row(), Table.Col()); }
    bool InSight(const QRect& Cell) const { return Shown->viewport()->rect().contains(Cell); }

    Grid Table{501, 8, "Enter the profile"};
    TextBox Editor;
    ComboBox List{{"Node", "Reservoir"}};
    GridView* Shown = nullptr;
};

// 1200 and 450 twips are 80 and 30 pixels at 96 dots an inch, and 500 are 33.
TEST_F(GridViewTest, ToldSizesAreKeptUnlessAHeadingNeedsMore)
{
    ASSERT_EQ(Shown->logicalDpiX(), 96);
    EXPECT_EQ(Shown->verticalHeader()->width(), 80);
    EXPECT_EQ(Shown->horizontalHeader()->height(), 33);
    EXPECT_EQ(Shown->CellRect(1, 1).height(), 30);
    EXPECT_NEAR(Shown->CellRect(1, 1).width(), Shown->CellRect(1, 7).width(),
                1); // they share the room that is left
    EXPECT_EQ(Shown->CellRect(1, 7).right(), Shown->viewport()->rect().right());
    Host->resize(500, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown->CellRect(1, 1), QRect(0, 0, 80, 30));
    EXPECT_EQ(Shown->CellRect(2, 3), QRect(160, 30, 80, 30));

    Table.HeaderHeight = 0;
    Table.SetText(0, 2, "Characteristically accumulated"); // stands on two lines
    QFont Bold = Shown->font();
    Bold.setBold(true);
    const QFontMetrics Letters(Bold);
    EXPECT_GT(Shown->CellRect(1, 2).width(), Letters.horizontalAdvance("Characteristically"));
    EXPECT_LT(Shown->CellRect(1, 2).width(), Letters.horizontalAdvance("Characteristically accumulated"));
    EXPECT_GE(Shown->horizontalHeader()->height(), 2 * Letters.height());

    // A column that the user has sized keeps its width, whatever becomes of window and cells.
    Shown->horizontalHeader()->resizeSection(3, 55);
    Host->resize(700, 600);
    Table.SetText(0, 2, "Elevation");
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown->CellRect(1, 4).width(), 55);
}

TEST_F(GridViewTest, ColumnsComeAndGoWhileTheTableIsHidden)
{
    for (int Cols : {5, 8, 3}) {
        Shown->hide();
        Table.SetCols(Cols);
        Shown->show();
        QCoreApplication::processEvents();
        EXPECT_EQ(Shown->horizontalHeader()->count(), Cols - 1);
        EXPECT_EQ(Shown->CellRect(1, Cols - 1).right(), Shown->viewport()->rect().right());
    }
}

TEST_F(GridViewTest, HeadingsStayWhereTheyAreWhileTheCellsScroll)
{
    Host->resize(420, 300);
    QCoreApplication::processEvents();
    const QRect Cell = Shown->CellRect(9, 3);
    Shown->horizontalScrollBar()->setValue(25);
    Shown->verticalScrollBar()->setValue(60);
    EXPECT_EQ(Shown->CellRect(9, 3), Cell.translated(-25, -60));
    const QHeaderView* const Cols = Shown->horizontalHeader();
    const QHeaderView* const Rows = Shown->verticalHeader();
    EXPECT_EQ(Cols->sectionViewportPosition(2), Shown->CellRect(9, 3).left());
    EXPECT_EQ(Rows->sectionViewportPosition(8), Shown->CellRect(9, 3).top());
    EXPECT_EQ(Cols->y() + Cols->height(), Shown->viewport()->y());
    EXPECT_EQ(Rows->x() + Rows->width(), Shown->viewport()->x());
}

TEST_F(GridViewTest, ColoursAreTheToldOnesAndEqualNeighboursShowAsOneCell)
{
    EXPECT_EQ(Shown->visualRect(Shown->currentIndex()), CurrentRect()); // before anyone has moved
    Table.SetBackColor(2, 2, Rgb(0xFF, 0xFF, 0xC0));
    Table.MergeEqualCells = true;
    Table.MergeCols = {5};
    Table.HeadingRows = {4};
    for (int Col : {0, 1}) Table.SetText(3, Col, "Conditions"); // out of the fixed column
    for (int Col : {4, 5}) Table.SetText(3, Col, "");
    for (int Row : {5, 6}) Table.SetText(Row, 5, "Maintenance");
    for (int Row : {5, 6}) Table.SetText(Row, 6, "0");
    const QRect Merged = Shown->CellRect(3, 1);
    EXPECT_EQ(Shown->CellRect(3, 0), Merged);
    EXPECT_EQ(Merged.width(), Shown->CellRect(4, 0).width() + Shown->CellRect(4, 1).width());
    EXPECT_NE(Shown->CellRect(3, 4), Shown->CellRect(3, 5));
    EXPECT_EQ(Shown->CellRect(5, 5), Shown->CellRect(6, 5));
    EXPECT_NE(Shown->CellRect(5, 6), Shown->CellRect(6, 6));

    const auto ColorAt = [this](int Row, int Col) {
        return Shown->viewport()->grab().toImage().pixelColor(Shown->CellRect(Row, Col).topLeft() +
                                                              QPoint(3, 3));
    };
    const QColor Base = Shown->palette().color(QPalette::Base);
    const QColor Button = Shown->palette().color(QPalette::Button);
    EXPECT_EQ(ColorAt(2, 2), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(ColorAt(2, 3), Base);
    for (const auto& [Row, Col] : {std::pair(2, 0), std::pair(3, 1), std::pair(4, 2)})
        EXPECT_EQ(ColorAt(Row, Col), Button) << Row;
    Shown->setEnabled(false); // a table out of use has no current cell
    EXPECT_EQ(ColorAt(2, 2), Shown->palette().color(QPalette::Base));
}

// Ink is what differs from the surface, in how much and around which part of the width.
TEST_F(GridViewTest, HeadingsAreBoldAndCellsCanBeCentred)
{
    const auto Ink = [](QWidget* Place, const QRect& Cell) {
        const QImage Image = Place->grab(Cell.adjusted(3, 3, -4, -4)).toImage();
        const int Surface = Image.pixelColor(0, 0).lightness();
        double Sum = 0, Moment = 0;
        for (int Y = 0; Y < Image.height(); ++Y)
            for (int X = 0; X < Image.width(); ++X) {
                const int Differs = std::abs(Image.pixelColor(X, Y).lightness() - Surface);
                Sum += Differs;
                Moment += Differs * X;
            }
        return std::pair(Sum, Moment / Sum / Image.width());
    };
    for (const auto& [Row, Col] : {std::pair(2, 0), std::pair(0, 2), std::pair(2, 2), std::pair(4, 2)})
        Table.SetText(Row, Col, "8888");
    Table.HeadingRows = {4};
    QCoreApplication::processEvents();
    const QRect Cell = Shown->CellRect(2, 2);
    QHeaderView* const Above = Shown->horizontalHeader();
    QHeaderView* const Beside = Shown->verticalHeader();
    const auto Plain = Ink(Shown->viewport(), Cell);
    const std::pair<QWidget*, QRect> Headings[] = {
        {Above->viewport(), QRect(Cell.left(), 0, Cell.width(), Above->height())},
        {Beside->viewport(), QRect(0, Cell.top(), Beside->width(), Cell.height())},
        {Shown->viewport(), Shown->CellRect(4, 2)}};
    for (const auto& [Place, Rect] : Headings) EXPECT_GT(Ink(Place, Rect).first, 1.15 * Plain.first);
    EXPECT_GT(Plain.second, 0.6);
    Table.Centred = true;
    EXPECT_NEAR(Ink(Shown->viewport(), Cell).second, 0.5, 0.03);
}

TEST_F(GridViewTest, AClickSelectsTheCellAndTellsTheButton)
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

TEST_F(GridViewTest, KeysGoToTheHandlersAndThenMoveTheCurrentCell)
{
    std::vector<int> Downs;
    std::vector<int> Presses;
    std::vector<int> Ups;
    Table.KeyDown = [&](int& Key) {
        Downs.push_back(Key);
        if (Key == Keys::Left) Key = 0;
    };
    Table.KeyPress = [&](int& Key) { Presses.push_back(Key); };
    Table.KeyUp = [&](int& Key) { Ups.push_back(Key); };
    PressKeys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_F2, Qt::Key_Return});
    QTest::keyClicks(Shown, "4%");
    EXPECT_EQ(Place(), "2,2");
    EXPECT_THAT(Downs, ElementsAre(Keys::Down, Keys::Right, Keys::Left, Keys::F2, Keys::Enter));
    EXPECT_THAT(Presses, ElementsAre(13, '4', '%'));
    EXPECT_EQ(Ups, Downs);
}

// An Enter that closed a message box is let go over the grid; one that closed the editor is the grid's own.
TEST_F(GridViewTest, TheArrowsPassAHeadingInTheMidstOfTheTable)
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

TEST_F(GridViewTest, AKeyThatWentDownElsewhereIsNoKeyUpOfTheGrid)
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

TEST_F(GridViewTest, TabLeavesTheGridAndMovingAroundKeepsTheCellInSight)
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

TEST_F(GridViewTest, ANewLastRowAndACellOnAPageThatScrollsComeIntoSight)
{
    Table.SetRows(502);
    Table.Select(501, 1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(InSight(CurrentRect()));

    auto* const Page = Put(new QScrollArea);
    auto* const Content = new QWidget;
    auto* const Above = new QLineEdit(Content);
    (new QVBoxLayout(Content))->addWidget(Shown);
    Shown->ShowWhole();
    Page->setWidgetResizable(true);
    Page->setWidget(Content);
    Above->setFocus();
    const auto OnPage = [&] {
        const QRect Cell = CurrentRect();
        return Shown->viewport()->visibleRegion().boundingRect().contains(Cell);
    };
    QCoreApplication::processEvents();
    EXPECT_FALSE(OnPage());
    Shown->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(OnPage());
    PressKeys({Qt::Key_Home}, Qt::ControlModifier);
    EXPECT_TRUE(OnPage());
    Above->setFocus();
    Table.Select(400, 2); // by the program, while the keys go elsewhere
    EXPECT_FALSE(OnPage());
}

TEST_F(GridViewTest, TheFrameAroundTheCurrentCellStepsBackWithTheFocus)
{
    auto* const Next = Put(new QLineEdit);
    QCoreApplication::processEvents();
    for (Control* Over : std::initializer_list<Control*>{&Editor, &List}) {
        Over->Visible = true;
        for (QWidget* Each : {FocusTarget(*Over), static_cast<QWidget*>(Next)}) {
            Each->setFocus(Qt::TabFocusReason);
            const QImage Cells = Shown->viewport()->grab().toImage();
            EXPECT_EQ(Cells.pixelColor(CurrentRect().topLeft()) ==
                          Shown->palette().color(QPalette::Highlight),
                      Each != Next);
        }
        Over->Visible = false;
    }
    Host.reset();
}

TEST_F(GridViewTest, CopyTakesTheSelectedCells)
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

TEST_F(GridViewTest, TheKeysOfCommandsReachTheRecord)
{
    std::string Heard;
    Table.Paste = [&] { Heard += "paste "; };
    Table.Undo = [&] { Heard += "undo "; };
    Table.KeyDown = [&](int& Key) { Heard += Key == Keys::Delete ? "delete " : "other "; };
    for (const QKeySequence::StandardKey Each : {QKeySequence::Paste, QKeySequence::Undo})
        QTest::keySequence(Shown, Each);
    PressKeys({Qt::Key_Delete});
    EXPECT_EQ(Heard, "paste undo delete ");
}

TEST_F(GridViewTest, TheEditorLiesOverTheCurrentCellAndScrollsWithIt)
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

TEST_F(GridViewTest, TheListShowsTheCellsTextAndLetsTheKeyboardOut)
{
    Click(2, 7);
    Table.SetText(2, 7, "Air valve");
    List.Visible = true;
    QComboBox* const Choice = Shown->ListView();
    EXPECT_TRUE(CurrentRect().contains(Choice->geometry()));
    EXPECT_EQ(Choice->placeholderText(), "Air valve");
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

TEST_F(GridViewTest, TheRowMenuOpensOverTheGridAndRunsItsEntries)
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

TEST_F(GridViewTest, AScreenReaderGetsATableOfNamedCells)
{
    Table.SetText(0, 2, "Elevation");
    QAccessibleInterface* const Access = QAccessible::queryAccessibleInterface(Shown);
    ASSERT_TRUE(Access && Access->tableInterface());
    EXPECT_EQ(Access->text(QAccessible::Name), "Enter the profile");
    EXPECT_EQ(Access->tableInterface()->rowCount(), 500);
    Click(4, 2);
    QAccessibleInterface* const Cell = Access->focusChild();
    ASSERT_TRUE(Cell);
    EXPECT_EQ(Cell->text(QAccessible::Name), "Elevation, 4.0, 4.2");
    EXPECT_TRUE(Cell->state().focused);
    EXPECT_EQ(Access->childAt(Cell->rect().center().x(), Cell->rect().center().y()), Cell);
}

TEST_F(GridViewTest, RowsThatGoTakeNothingElseAlong)
{
    Table.Select(500, 7);
    PressKeys({Qt::Key_Up}, Qt::ShiftModifier);
    QCoreApplication::processEvents();
    Table.SetRows(2);
    EXPECT_EQ(Table.SelectedText(), "0.7\n1.7\n");
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown->verticalScrollBar()->maximum(), 0);
    Table.SetRows(1);
    QCoreApplication::processEvents();
    PressKeys({Qt::Key_Down, Qt::Key_F10}, Qt::ShiftModifier);
    PressKeys({Qt::Key_A}, Qt::ControlModifier);
    ClickHeading(3);
    EXPECT_THAT(Windows.Messages, IsEmpty());
}

// The whole table is on the screen within the blink of an eye; ten times the aim allows for a loaded machine.
TEST_F(GridViewTest, ATableThatIsShownWithFewerColumnsScrollsAsBefore)
{
    const int Before = Shown->verticalScrollBar()->maximum();
    Table.Visible = false;
    Table.SetCols(5);
    Table.Visible = true; // laid out before the grid has told its new shape
    QTest::qWait(1);
    EXPECT_THAT(Windows.Messages, IsEmpty());
    EXPECT_EQ(Shown->verticalScrollBar()->maximum(), Before);
    EXPECT_EQ(Shown->model()->columnCount(), 4);
}

TEST_F(GridViewTest, FillingAndPaintingAFullTableTakesNoTime)
{
    QElapsedTimer Watch;
    Watch.start();
    for (int Row = 1; Row < Table.Rows(); ++Row)
        for (int Col = 0; Col < Table.Cols(); ++Col)
            Table.SetText(Row, Col, std::to_string(Row * Col) + ".5");
    Shown->CellRect(1, 1);
    Shown->viewport()->repaint();
    EXPECT_LT(Watch.elapsed(), 500); // ms
}

} // namespace
} // namespace velorix
