// The toolkit writes the pages; bookmarks and properties are added to its file.
#include "paint/PagesFile.h"

#include "base/Failure.h"
#include "paint/Painter.h"
#include "paint/PdfOutline.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace velorix {
namespace {

constexpr int DotsPerInch = 1200;

// The paper that the page is meant for, upright or on its side, without margins.
QPageLayout PaperOf(const PrintedPage& Page)
{
    const bool Wide = Page.Print.Width > Page.Print.Height;
    return {QPageSize(QPageSize::A4), Wide ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

QByteArray PaintedPages(const std::vector<PrintedPage>& Pages)
{
    QByteArray Bytes;
    QBuffer Target(&Bytes);
    Target.open(QIODevice::WriteOnly);
    QPdfWriter Writer(&Target);
    Writer.setResolution(DotsPerInch);
    Writer.setCreator("Velorix");
    Writer.setPageLayout(PaperOf(Pages.front()));
    QPainter Painter;
    if (!Painter.begin(&Writer)) throw Failure("The pages can't be drawn.");
    for (std::size_t Index = 0; Index < Pages.size(); ++Index) {
        if (Index > 0) {
            Writer.setPageLayout(PaperOf(Pages[Index]));
            Writer.newPage();
        }
        Paint(Painter, Pages[Index], QRectF(0, 0, Writer.width(), Writer.height()));
    }
    Painter.end();
    return Bytes;
}

// A bookmark where a section begins.
std::vector<PdfBookmark> BookmarksOf(const std::vector<PrintedPage>& Pages)
{
    std::vector<PdfBookmark> Bookmarks;
    for (std::size_t Index = 0; Index < Pages.size(); ++Index)
        if (Pages[Index].BeginsSection) Bookmarks.push_back({Pages[Index].Section, Index});
    return Bookmarks;
}

} // namespace

std::string ToPdfBytes(const std::vector<PrintedPage>& Pages, const DocumentFacts& Facts)
{
    if (Pages.empty()) throw Failure("There is no page to write.");
    const QByteArray Painted = PaintedPages(Pages);
    return WithOutline({Painted.constData(), static_cast<std::size_t>(Painted.size())}, Facts,
                       BookmarksOf(Pages));
}

} // namespace velorix
