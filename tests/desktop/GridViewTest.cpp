// The grid's cells on the screen: their place, their looks, and what stays in sight.
#include "GridViewTest.h"

namespace velorix {
namespace {

using testing::IsEmpty;

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
    const int Scrolls = Shown->verticalScrollBar()->maximum();
    for (int Cols : {5, 8, 3}) {
        Table.Visible = false;
        Table.SetCols(Cols);
        Table.Visible = true; // laid out before the grid has told its new shape
        QTest::qWait(1);
        EXPECT_EQ(Shown->horizontalHeader()->count(), Cols - 1);
        EXPECT_EQ(Shown->CellRect(1, Cols - 1).right(), Shown->viewport()->rect().right());
        EXPECT_EQ(Shown->verticalScrollBar()->maximum(), Scrolls);
    }
    EXPECT_THAT(Windows.Messages, IsEmpty());
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
