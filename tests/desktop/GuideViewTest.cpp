// The guide that the build has made, and its viewer.
#include "desktop/MainWindowTest.h"
#include "desktop/PdfView.h"
#include "screens/Guide.h"
#include "shell/GuideEvents.h"

namespace velorix {
namespace {

class GuideViewTest : public MainWindowTest {
protected:
    void Open(const QString& Path, const std::string& Chapter)
    {
        frmPDFView.pdfReport.Bookmark = Chapter;
        View = new PdfView(frmPDFView.pdfReport);
        Put(View->Tools());
        Put(View);
        frmPDFView.pdfReport.LoadFile(Path.toStdString());
        ShowHost();
        QTest::qWait(50); // for the first jump
        View->setFocus();
    }

    template <typename Widget>
    Widget* Part() const
    {
        return Host->findChild<Widget*>();
    }

    int PageAtTop() const { return Part<PdfPages>()->CurrentPage(); }

    PdfView* View = nullptr;
    const QString Guide = QString::fromStdString(Windows.ProgramFolder().string() + "/" VELORIX_GUIDE_FILE);
};

// The chapters are the headings of the first level.
QStringList ChaptersOfTheText()
{
    QFile Text(GUIDE_TEXT);
    QStringList Found;
    if (Text.open(QIODevice::ReadOnly))
        for (const QString& Line : QString::fromUtf8(Text.readAll()).split('\n'))
            if (Line.startsWith("# ")) Found << Line.mid(2);
    return Found;
}

TEST_F(GuideViewTest, GuideHasItsPagesAndABookmarkForEachChapter)
{
    Open(Guide, "");
    auto* const Chapters = Part<QComboBox>();
    QStringList Marked;
    std::vector<int> Pages;
    for (int Row = 0; Row < Chapters->count(); ++Row) {
        Marked << Chapters->itemText(Row);
        Pages.push_back(Chapters->itemData(Row).toInt());
    }
    EXPECT_EQ(Marked, ChaptersOfTheText());
    EXPECT_GE(Part<QSpinBox>()->maximum(), 12);
    EXPECT_EQ(std::adjacent_find(Pages.begin(), Pages.end(), std::greater_equal()), Pages.end()); // rise
    EXPECT_EQ(PageAtTop(), 0);
}

TEST_F(GuideViewTest, OpensAtTheChapterAndGoesOnByKeysAndTools)
{
    Open(Guide, "System analysis");
    auto* const Pages = Part<PdfPages>();
    auto* const Chapters = Part<QComboBox>();
    const int Expected = Chapters->itemData(Chapters->findText("System analysis")).toInt();
    ASSERT_GT(Expected, 0);
    EXPECT_EQ(PageAtTop(), Expected);
    EXPECT_EQ(Chapters->currentText(), "System analysis");
    EXPECT_EQ(Part<QSpinBox>()->value(), Expected + 1);

    EXPECT_EQ(Pages->horizontalScrollBar()->maximum(), 0); // as wide as the window
    Pages->Zoom(4);
    EXPECT_GT(Pages->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(PageAtTop(), Expected);
    Pages->Fit(PdfPages::ZoomMode::FitToWidth);
    Host->resize(500, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(Pages->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(PageAtTop(), Expected);

    const std::pair<Qt::Key, int> Keys[] = {{Qt::Key_End, Part<QSpinBox>()->maximum() - 1},
                                            {Qt::Key_Home, 0}};
    for (const auto& [Key, Page] : Keys) {
        QTest::keyClick(Host->focusWidget(), Key);
        EXPECT_EQ(PageAtTop(), Page);
    }
    for (const Qt::Key Key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Space}) {
        const int Before = Pages->verticalScrollBar()->value();
        QTest::keyClick(Pages, Key);
        EXPECT_GT(Pages->verticalScrollBar()->value(), Before);
    }
    Part<QSpinBox>()->setValue(3);
    EXPECT_EQ(PageAtTop(), 2);
}

TEST_F(GuideViewTest, WhatIsNoDocumentLeavesItEmpty)
{
    QTemporaryFile Nonsense;
    ASSERT_TRUE(Nonsense.open());
    Nonsense.write("%PDF-1.4\nand nothing that follows from it");
    Nonsense.flush();
    Open(Nonsense.fileName(), "System analysis");
    EXPECT_FALSE(View->Tools()->isEnabled());
    Part<PdfPages>()->Zoom(1);
    QTest::keyClick(Part<PdfPages>(), Qt::Key_End);
    EXPECT_EQ(PageAtTop(), 0);
}

} // namespace
} // namespace velorix
