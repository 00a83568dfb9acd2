// Formats of blocks and tables.
#include "guide/GuideLook.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

namespace velorix {
namespace {

constexpr double TextSize = 10.5; // points
constexpr double TableSize = 9.5;
constexpr double FormulaSize = 9;
constexpr double LineHeight = 122; // percent
const QColor BoxTint("#eef5f9");
const QColor FormulaTint("#f4f4f1");
const QColor Rule("#c9d1d7");

struct HeadingLook {
    double Size; // points
    double Above;
    double Below;
};
constexpr HeadingLook Headings[] = {{20, 0, 14}, {13, 16, 4}, {11, 10, 3}}; // by level

QTextCharFormat FontOf(const char* Family, double Size)
{
    QTextCharFormat Format;
    Format.setFontFamilies({Family});
    Format.setFontPointSize(Size);
    return Format;
}

void SetFont(QTextCursor& Chosen, const char* Family, double Size)
{
    Chosen.mergeCharFormat(FontOf(Family, Size));
}

// What is to be typed letter for letter keeps its fixed pitch.
void SetTextFont(const QTextBlock& Each)
{
    for (auto Part = Each.begin(); !Part.atEnd(); ++Part) {
        QTextCursor Chosen(Each);
        Chosen.setPosition(Part.fragment().position());
        Chosen.setPosition(Part.fragment().position() + Part.fragment().length(), QTextCursor::KeepAnchor);
        const bool Typed = Part.fragment().charFormat().fontFixedPitch();
        SetFont(Chosen, Typed ? FixedFamily : TextFamily, Typed ? FormulaSize : TextSize);
    }
}

void LookOfHeading(QTextCursor& Chosen, QTextBlockFormat& Block)
{
    const int Level = qBound(1, Block.headingLevel(), 3);
    const HeadingLook& Look = Headings[Level - 1];
    QTextCharFormat Format;
    Format.setFontFamilies({HeadingFamily});
    Format.setFontPointSize(Look.Size);
    Format.setFontWeight(QFont::Bold);
    Format.setForeground(HeadingInk);
    Chosen.setCharFormat(Format); // in place of the reader's own sizes
    Block.setTopMargin(Look.Above);
    Block.setBottomMargin(Look.Below);
    if (Level == 1) Block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
}

void LookOfBlock(const QTextBlock& Each, double Scale)
{
    const double BoxIndent = 16 * Scale; // the layout scales the other lengths
    constexpr double ListGap = 2;
    QTextCursor Chosen(Each);
    Chosen.select(QTextCursor::BlockUnderCursor);
    QTextBlockFormat Block = Each.blockFormat();
    const QTextCursor Inside(Each);
    if (Block.headingLevel() > 0) {
        LookOfHeading(Chosen, Block);
    } else if (IsReckoning(Each)) {
        SetFont(Chosen, FixedFamily, FormulaSize);
        Block.setBackground(FormulaTint);
        Block.setLeftMargin(BoxIndent);
        Block.setTopMargin(IsReckoning(Each.previous()) ? 0 : 4);
        Block.setBottomMargin(IsReckoning(Each.next()) ? 0 : 9);
    } else if (Inside.currentTable()) {
        SetFont(Chosen, HeadingFamily, TableSize);
        Block.setTopMargin(0);
        Block.setBottomMargin(0);
    } else {
        SetTextFont(Each);
        Block.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
        Block.setTopMargin(0);
        Block.setBottomMargin(Each.textList() ? ListGap : 7);
        if (Each.textList())
            QTextCursor(Each).mergeBlockCharFormat(FontOf(TextFamily, TextSize)); // its digit
        if (Each.textList() && !Each.next().textList()) Block.setBottomMargin(8);
        if (Block.hasProperty(QTextFormat::BlockQuoteLevel)) {
            Block.setBackground(BoxTint);
            Block.setLeftMargin(BoxIndent);
            Block.setRightMargin(BoxIndent);
            Block.setTopMargin(4);
            Block.setBottomMargin(12);
        }
    }
    QTextCursor(Each).setBlockFormat(Block);
}

// The caption under a figure: what the text gives for readers who don't see it.
void CaptionFigure(const QTextBlock& Each)
{
    for (auto Part = Each.begin(); !Part.atEnd(); ++Part) {
        const QTextCharFormat Format = Part.fragment().charFormat();
        if (!Format.isImageFormat()) continue;
        const QString Words = Format.stringProperty(QTextFormat::ImageAltText);
        QTextCursor At(Each);
        QTextBlockFormat Figure = Each.blockFormat();
        Figure.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
        Figure.setTopMargin(4);
        Figure.setBottomMargin(2);
        At.setBlockFormat(Figure);
        At.movePosition(QTextCursor::EndOfBlock);
        QTextBlockFormat Below = Figure;
        Below.setTopMargin(0);
        Below.setBottomMargin(12);
        QTextCharFormat Small;
        Small.setFontFamilies({HeadingFamily});
        Small.setFontPointSize(9);
        Small.setForeground(QuietInk);
        At.insertBlock(Below, Small);
        At.insertText(Words, Small);
        return;
    }
}

// To be filled in by hand.
bool IsForm(const QTextTable& Table)
{
    for (int Column = 1; Column < Table.columns(); ++Column)
        if (!Table.cellAt(1, Column).firstCursorPosition().block().text().trimmed().isEmpty()) return false;
    return true;
}

// Thin lines between the rows, a stronger one below the heading.
void LookOfTable(QTextTable& Table)
{
    QTextTableFormat Format = Table.format();
    Format.setBorder(0);
    Format.setBorderCollapse(true);
    Format.setCellSpacing(0);
    Format.setCellPadding(3.5);
    Format.setTopMargin(8);
    Format.setBottomMargin(12);
    Format.setHeaderRowCount(1);
    if (IsForm(Table)) Format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    Table.setFormat(Format);
    for (int Row = 0; Row < Table.rows(); ++Row)
        for (int Column = 0; Column < Table.columns(); ++Column) {
            QTextTableCell Cell = Table.cellAt(Row, Column);
            QTextTableCellFormat Look = Cell.format().toTableCellFormat();
            Look.setBottomBorder(Row == 0 ? 1.2 : 0.6);
            Look.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            Look.setBottomBorderBrush(Row == 0 ? HeadingInk : Rule);
            Look.setRightPadding(10);
            Cell.setFormat(Look);
        }
}

} // namespace

bool IsReckoning(const QTextBlock& Block)
{
    return Block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

QString ReadyToSet(const QString& Markdown)
{
    static const QRegularExpression Unit(
        "(\\d) (?=(?:%|°|km|mm|m|m³|m³/h|l/s|Ml|kW|h|R|years|nodes|million)\\b|%)");
    static const QRegularExpression Amount("\\bR (?=\\d)");
    static const QRegularExpression EmptyCell("\\| (?=\\|)");
    QStringList Lines = Markdown.split('\n');
    for (QString& Each : Lines)
        if (!Each.startsWith("    "))
            Each.replace(Unit, "\\1\u00A0").replace(Amount, "R\u00A0").replace(EmptyCell, "|\u00A0");
    return Lines.join('\n');
}

void ApplyLook(QTextDocument& Document, double Scale)
{
    for (QTextBlock Each = Document.begin(); Each.isValid(); Each = Each.next()) LookOfBlock(Each, Scale);
    for (QTextBlock Each = Document.begin(); Each.isValid(); Each = Each.next()) CaptionFigure(Each);
    for (QTextFrame* Each : Document.rootFrame()->childFrames())
        if (auto* const Table = qobject_cast<QTextTable*>(Each)) LookOfTable(*Table);
}

} // namespace velorix
