// Cover, page breaks, heads and feet.
#include "guide/GuideDocument.h"

#include "guide/GuideLook.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextList>
#include <QTextTable>

#include <cmath>

namespace velorix {
namespace {

constexpr const char* Title = "Step-by-step life cycle costing guide";
constexpr double SideMargin = 86; // pixels of the look
constexpr double TopMargin = 92;
constexpr double FootMargin = 84;
constexpr double HeadLine = 52; // from the paper's edge
constexpr double FootLine = 1074;

QTextCharFormat Letters(const char* Family, double Size, const QColor& Ink, bool Bold = false)
{
    QTextCharFormat Format;
    Format.setFontFamilies({Family});
    Format.setFontPointSize(Size);
    Format.setForeground(Ink);
    Format.setFontWeight(Bold ? QFont::Bold : QFont::Normal);
    return Format;
}

QTextBlockFormat Room(double Above, double Below)
{
    QTextBlockFormat Format;
    Format.setTopMargin(Above);
    Format.setBottomMargin(Below);
    return Format;
}

bool IsHeading(const QTextBlock& Each)
{
    return Each.blockFormat().headingLevel() > 0;
}

bool IsFigure(const QTextBlock& Each)
{
    return Each.text() == QChar(QChar::ObjectReplacementCharacter);
}

// Leads to what follows.
bool LeadsOn(const QTextBlock& Each)
{
    if (IsFigure(Each.previous())) return false; // its caption ends it
    return IsHeading(Each) || IsFigure(Each) || IsFigure(Each.next()) ||
           QTextCursor(Each.next()).currentTable() || Each.text().endsWith(':');
}

bool GoesOn(const QTextBlock& Each, const QTextBlock& Next)
{
    if (Each.textList() && Each.textList() == Next.textList() && Next.next().textList() != Next.textList())
        return true; // no last item by itself
    return IsReckoning(Each) && IsReckoning(Next);
}

} // namespace

struct GuideDocument::Part {
    QTextBlock Block; // a table's is invalid
    QTextTable* Table = nullptr;
    QRectF Place;
    bool KeepsNext = false;
};

GuideDocument::GuideDocument(const QString& Markdown, const QStringList& FigureFolders, QPdfWriter& Target)
    : Paper(Target)
    , Drawn(Dots(Paper.width() * LookPixelsPerInch / Paper.resolution() - 2 * SideMargin))
{
    Text.setUndoRedoEnabled(false);
    Text.setDefaultFont(QFont(TextFamily));
    QTextOption Whole;
    Whole.setUseDesignMetrics(true);
    Text.setDefaultTextOption(Whole);
    Text.setMarkdown(ReadyToSet(Markdown), QTextDocument::MarkdownDialectGitHub);
    ApplyLook(Text, Dots(1));
    Drawn.Load(Text, FigureFolders);
    Text.documentLayout()->setPaintDevice(&Paper);
    QTextFrameFormat Sheet = Text.rootFrame()->frameFormat();
    Sheet.setLeftMargin(SideMargin);
    Sheet.setRightMargin(SideMargin);
    Sheet.setTopMargin(TopMargin);
    Sheet.setBottomMargin(FootMargin);
    Text.rootFrame()->setFrameFormat(Sheet);
    Text.setPageSize(QSizeF(Paper.width(), Paper.height()));
    FindChapters();
    PutCover();
    KeepTogether();
    FindChapters();
    FillContents();
}

double GuideDocument::Dots(double Pixels) const
{
    return Pixels * Paper.resolution() / LookPixelsPerInch;
}

int GuideDocument::PageCount() const
{
    return Text.pageCount();
}

// Title and contents; the page numbers come when the pages are known.
void GuideDocument::PutCover()
{
    QTextCursor At(&Text);
    At.insertBlock(At.blockFormat()); // the first chapter's heading
    At.movePosition(QTextCursor::Start);
    At.setBlockFormat(Room(40, 6));
    At.insertText("Velorix", Letters(HeadingFamily, 30, HeadingInk, true));
    At.insertBlock(Room(0, 4), Letters(HeadingFamily, 19, HeadingInk));
    At.insertText(Title);
    At.insertBlock(Room(0, 0), Letters(TextFamily, 12, QuietInk));
    At.insertText("From the sketch of a pipeline to a signed report. Version " VELORIX_VERSION);
    QTextTableFormat Quiet;
    Quiet.setBorder(0);
    Quiet.setCellPadding(4);
    Quiet.setTopMargin(46);
    Quiet.setCellSpacing(0);
    Quiet.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    Quiet.setColumnWidthConstraints(
        {QTextLength(QTextLength::PercentageLength, 92), QTextLength(QTextLength::PercentageLength, 8)});
    QTextTable* const Contents = At.insertTable(static_cast<int>(Marks.size()), 2, Quiet);
    for (int Row = 0; Row < Contents->rows(); ++Row) {
        QTextCursor Cell = Contents->cellAt(Row, 0).firstCursorPosition();
        Cell.insertText(QString::fromStdString(Marks[static_cast<std::size_t>(Row)].Title),
                        Letters(HeadingFamily, 11, Qt::black));
    }
}

void GuideDocument::FillContents()
{
    auto* const Contents = qobject_cast<QTextTable*>(Text.rootFrame()->childFrames().constFirst());
    for (int Row = 0; Row < Contents->rows(); ++Row) {
        QTextCursor Cell = Contents->cellAt(Row, 1).firstCursorPosition();
        QTextBlockFormat Right;
        Right.setAlignment(Qt::AlignRight);
        Cell.setBlockFormat(Right);
        Cell.insertText(QString::number(Marks[static_cast<std::size_t>(Row)].Page + 1),
                        Letters(HeadingFamily, 11, Qt::black));
    }
}

void GuideDocument::FindChapters()
{
    Marks.clear();
    for (QTextBlock Each = Text.begin(); Each.isValid(); Each = Each.next()) {
        if (Each.blockFormat().headingLevel() != 1) continue;
        const QRectF Place = Text.documentLayout()->blockBoundingRect(Each);
        Marks.push_back(
            {Each.text().toStdString(), static_cast<std::size_t>(Place.center().y() / Paper.height())});
    }
}

std::vector<GuideDocument::Part> GuideDocument::Parts() const
{
    std::vector<Part> All;
    for (auto Each = Text.rootFrame()->begin(); !Each.atEnd(); ++Each) {
        if (auto* const Table = qobject_cast<QTextTable*>(Each.currentFrame())) {
            All.push_back({{}, Table, Text.documentLayout()->frameBoundingRect(Table)});
            continue;
        }
        const QTextBlock Block = Each.currentBlock();
        if (!Block.isValid() || (Block.text().isEmpty() && !IsHeading(Block))) continue;
        All.push_back({Block, nullptr, Text.documentLayout()->blockBoundingRect(Block),
                       LeadsOn(Block) || GoesOn(Block, Block.next())});
    }
    return All;
}

// Moves to the next page what would be cut by the end of one: paragraphs, figures with their captions,
// headings with what they head, tables unless they are long.
void GuideDocument::KeepTogether()
{
    constexpr double LongTable = 0.6; // of a page
    for (std::size_t First = 0;; ++First) {
        const std::vector<Part> All = Parts();
        if (First >= All.size()) return;
        std::size_t Last = First;
        while (All[Last].KeepsNext && Last + 1 < All.size()) ++Last;
        const bool IsLong = All[Last].Table && All[Last].Place.height() > LongTable * Paper.height();
        const double Top = All[First].Place.top();
        const double Bottom = IsLong ? All[Last].Place.top() + Dots(100) : All[Last].Place.bottom() - 1;
        const bool OnePage = std::floor(Top / Paper.height()) == std::floor(Bottom / Paper.height());
        const bool Fits = std::fmod(Bottom, Paper.height()) < Paper.height() - Dots(FootMargin) + 1;
        if (!(OnePage && Fits) && First > 0) {
            if (All[First].Table) {
                QTextTableFormat Format = All[First].Table->format();
                Format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                All[First].Table->setFormat(Format);
            } else {
                QTextBlockFormat Format = All[First].Block.blockFormat();
                Format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                QTextCursor(All[First].Block).setBlockFormat(Format);
            }
        }
        First = Last;
    }
}

QString GuideDocument::ChapterOn(int Page) const
{
    QString Found;
    for (const PdfBookmark& Each : Marks)
        if (Each.Page <= static_cast<std::size_t>(Page)) Found = QString::fromStdString(Each.Title);
    return Found;
}

// The strong line at the left of what is set off as a box.
void GuideDocument::PaintBoxRules(QPainter& Painter, int Page) const
{
    const QRectF Sheet(0, Page * static_cast<double>(Paper.height()), Paper.width(), Paper.height());
    for (QTextBlock Each = Text.begin(); Each.isValid(); Each = Each.next()) {
        if (!Each.blockFormat().hasProperty(QTextFormat::BlockQuoteLevel)) continue;
        const QRectF Place = Text.documentLayout()->blockBoundingRect(Each);
        if (Sheet.contains(Place.center()))
            Painter.fillRect(QRectF(Dots(SideMargin) + Dots(6), Place.top(), Dots(3), Place.height()),
                             BoxRule);
    }
}

void GuideDocument::PaintPage(QPainter& Painter, int Page)
{
    const double Height = Paper.height();
    QAbstractTextDocumentLayout::PaintContext Context;
    Context.clip = QRectF(0, Page * Height, Paper.width(), Height);
    Context.palette.setColor(QPalette::Text, Qt::black);
    Painter.save();
    Painter.translate(0, -Page * Height);
    Painter.setClipRect(Context.clip);
    Text.documentLayout()->draw(&Painter, Context);
    PaintBoxRules(Painter, Page);
    Painter.restore();
    if (Page == 0) return; // the cover

    Painter.setFont(QFont(HeadingFamily, 8));
    Painter.setPen(QuietInk);
    const QRectF Head(Dots(SideMargin), Dots(HeadLine) - Dots(20), Paper.width() - 2 * Dots(SideMargin),
                      Dots(16));
    Painter.drawText(Head, Qt::AlignLeft | Qt::AlignBottom, QString("Velorix: ") + Title);
    Painter.drawText(Head, Qt::AlignRight | Qt::AlignBottom, ChapterOn(Page));
    Painter.setPen(QPen(QColor("#c9d1d7"), Dots(0.6)));
    Painter.drawLine(QPointF(Head.left(), Dots(HeadLine)), QPointF(Head.right(), Dots(HeadLine)));
    Painter.setPen(QuietInk);
    Painter.drawText(QRectF(Head.left(), Dots(FootLine), Head.width(), Dots(16)), Qt::AlignCenter,
                     QString::number(Page + 1));
}

} // namespace velorix
