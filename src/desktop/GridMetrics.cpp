// Widths and heights of a grid's cells.
#include "desktop/GridMetrics.h"

#include <QFontMetrics>
#include <QStringList>

#include <algorithm>
#include <cstdint>

namespace velorix {
namespace {

constexpr int TwipsAnInch = 1440;
constexpr int LeastWidth = 40; // pixels

// The least width in which a text stands on at most two lines.
int TwoLineWidth(const QString& Text, const QFontMetrics& Metrics)
{
    const QStringList Words = Text.split(' ', Qt::SkipEmptyParts);
    int Least = Metrics.horizontalAdvance(Text.trimmed());
    for (qsizetype Break = 1; Break < Words.size(); ++Break) {
        const int Upper = Metrics.horizontalAdvance(Words.mid(0, Break).join(' '));
        const int Lower = Metrics.horizontalAdvance(Words.mid(Break).join(' '));
        Least = std::min(Least, std::max(Upper, Lower));
    }
    return Least;
}

// The width that the headings of a column need. A heading that spans columns asks nothing of a single one.
int HeadingWidth(const Grid& Table, int Col, const QFontMetrics& Metrics)
{
    const int LastRow = Col < Table.FixedCols ? Table.Rows() : std::min(Table.FixedRows, Table.Rows());
    int Width = 0;
    for (int Row = 0; Row < LastRow; ++Row) {
        const std::string& Text = Table.Text(Row, Col);
        const ColSpan Span = MergedCols(Table, Row, Col);
        if (Text.empty() || Span.First != Span.Last) continue;
        const QString Shown = QString::fromStdString(Text);
        const int Needed =
            Row < Table.FixedRows ? TwoLineWidth(Shown, Metrics) : Metrics.horizontalAdvance(Shown);
        Width = std::max(Width, Needed);
    }
    return Width;
}

// True when a heading doesn't stand on one line of its column.
bool BreaksHeading(const Grid& Table, const std::vector<int>& ColLeft, const QFontMetrics& Metrics)
{
    for (int Col = 0; Table.Rows() > 0 && Table.FixedRows > 0 && Col < Table.Cols(); ++Col) {
        const ColSpan Span = MergedCols(Table, 0, Col);
        const int Room = ColLeft[static_cast<std::size_t>(Span.Last) + 1] -
                         ColLeft[static_cast<std::size_t>(Span.First)] - 2 * CellPadding;
        if (Metrics.horizontalAdvance(QString::fromStdString(Table.Text(0, Col)).trimmed()) > Room)
            return true;
    }
    return false;
}

bool Merges(const Grid& Table, int Row, int Col, int Other)
{
    return !Table.Text(Row, Col).empty() && Table.Text(Row, Col) == Table.Text(Row, Other);
}

} // namespace

ColSpan MergedCols(const Grid& Table, int Row, int Col)
{
    ColSpan Span{Col, Col};
    if (!Table.MergeEqualCells) return Span;
    while (Span.First > 0 && Merges(Table, Row, Col, Span.First - 1)) --Span.First;
    while (Span.Last + 1 < Table.Cols() && Merges(Table, Row, Col, Span.Last + 1)) ++Span.Last;
    return Span;
}

bool IsFixedCell(const Grid& Table, int Row, int Col)
{
    return Row < Table.FixedRows || Col < Table.FixedCols;
}

void GridMetrics::Measure(const Grid& Table, const QFont& Font, int DotsPerInch, int RoomWidth)
{
    Told = ShapeOf(Table);
    QFont Bold = Font; // any cell may be bold
    Bold.setBold(true);
    const QFontMetrics Metrics(Bold);
    const auto Pixels = [DotsPerInch](int Twips) { return Twips * DotsPerInch / TwipsAnInch; };

    ColLeft.assign(1, 0);
    for (int Col = 0; Col < Table.Cols(); ++Col) {
        const int Least = Pixels(Table.ColWidth.at(static_cast<std::size_t>(Col)));
        const int Needed = HeadingWidth(Table, Col, Metrics) + 2 * CellPadding + 1;
        ColLeft.push_back(ColLeft.back() + std::max({Least, Needed, LeastWidth}));
    }
    Natural = ColLeft.back();
    Spread(Table, RoomWidth);

    Rows = Table.Rows();
    const int Line = Metrics.height();
    const int HeadingLines = BreaksHeading(Table, ColLeft, Metrics) ? 2 : 1;
    RowHeight = std::max(Pixels(Table.DataRowHeight), Line + CellPadding);
    HeaderHeight = std::max(Pixels(Table.HeaderHeight), HeadingLines * Line + CellPadding);
    Fixed = {Left(std::min(Table.FixedCols, Table.Cols())), Top(std::min(Table.FixedRows, Rows))};
}

// Shares the room that is left among the columns that aren't fixed, in proportion to their widths.
void GridMetrics::Spread(const Grid& Table, int RoomWidth)
{
    const int Start = Left(std::min(Table.FixedCols, Table.Cols()));
    if (Start == Natural || RoomWidth <= Natural) return;
    for (int& Each : ColLeft)
        if (Each > Start)
            Each = Start +
                   static_cast<int>(std::int64_t{Each - Start} * (RoomWidth - Start) / (Natural - Start));
}

int GridMetrics::ColAt(int X) const
{
    const auto Right = std::upper_bound(ColLeft.begin() + 1, ColLeft.end(), X);
    return static_cast<int>(Right - ColLeft.begin()) - 1;
}

int GridMetrics::RowAt(int Y) const
{
    if (Y < HeaderHeight) return 0;
    return std::min(Rows, 1 + (Y - HeaderHeight) / RowHeight);
}

} // namespace velorix
