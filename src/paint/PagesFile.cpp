// The toolkit writes the pages; bookmarks and properties, which it can't write, are added to its file.
#include "paint/PagesFile.h"

#include "base/Failure.h"
#include "paint/Painter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace velorix {
namespace {

constexpr int DotsPerInch = 1200;

QPageLayout LayoutOf(const PrintedPage& Page)
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
    Writer.setPageLayout(LayoutOf(Pages.front()));
    QPainter Painter;
    if (!Painter.begin(&Writer)) throw Failure("The pages can't be drawn.");
    for (std::size_t Index = 0; Index < Pages.size(); ++Index) {
        if (Index > 0) {
            Writer.setPageLayout(LayoutOf(Pages[Index]));
            Writer.newPage();
        }
        Paint(Painter, Pages[Index], QRectF(0, 0, Writer.width(), Writer.height()));
    }
    Painter.end();
    return Bytes;
}

QPDFObjectHandle TextObject(const std::string& Text)
{
    return QPDFObjectHandle::newUnicodeString(Text);
}

void SetProperties(QPDF& Document, const DocumentFacts& Facts)
{
    QPDFObjectHandle Properties = Document.getTrailer().getKey("/Info");
    if (!Properties.isDictionary()) {
        Properties = Document.makeIndirectObject(QPDFObjectHandle::newDictionary());
        Document.getTrailer().replaceKey("/Info", Properties);
    }
    Properties.replaceKey("/Title", TextObject(Facts.Title));
    Properties.replaceKey("/Subject", TextObject(Facts.Subject));
    Properties.replaceKey("/Author", TextObject(Facts.Author));
    Document.getRoot().removeKey("/Metadata"); // says otherwise
}

// A bookmark that opens the page from its top.
QPDFObjectHandle Bookmark(QPDF& Document, const std::string& Section, const QPDFObjectHandle& Page,
                          const QPDFObjectHandle& Parent)
{
    QPDFObjectHandle Result = Document.makeIndirectObject(QPDFObjectHandle::newDictionary());
    QPDFObjectHandle Destination = QPDFObjectHandle::newArray();
    Destination.appendItem(Page);
    Destination.appendItem(QPDFObjectHandle::newName("/Fit"));
    Result.replaceKey("/Title", TextObject(Section));
    Result.replaceKey("/Parent", Parent);
    Result.replaceKey("/Dest", Destination);
    return Result;
}

void AddBookmarks(QPDF& Document, const std::vector<PrintedPage>& Pages)
{
    const std::vector<QPDFPageObjectHelper> Written = QPDFPageDocumentHelper(Document).getAllPages();
    QPDFObjectHandle Outline = Document.makeIndirectObject(QPDFObjectHandle::newDictionary());
    std::vector<QPDFObjectHandle> Marks;
    std::string Current;
    for (std::size_t Index = 0; Index < Pages.size(); ++Index) {
        if (Pages[Index].Section == Current) continue;
        Current = Pages[Index].Section;
        Marks.push_back(Bookmark(Document, Current, Written.at(Index).getObjectHandle(), Outline));
    }
    if (Marks.empty()) return;
    for (std::size_t Index = 1; Index < Marks.size(); ++Index) {
        Marks[Index - 1].replaceKey("/Next", Marks[Index]);
        Marks[Index].replaceKey("/Prev", Marks[Index - 1]);
    }
    Outline.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    Outline.replaceKey("/First", Marks.front());
    Outline.replaceKey("/Last", Marks.back());
    Outline.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(Marks.size())));
    Document.getRoot().replaceKey("/Outlines", Outline);
    Document.getRoot().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
}

} // namespace

std::string ToPdfBytes(const std::vector<PrintedPage>& Pages, const DocumentFacts& Facts)
{
    if (Pages.empty()) throw Failure("There is no page to write.");
    const QByteArray Painted = PaintedPages(Pages);
    try {
        QPDF Document;
        Document.processMemoryFile("pages", Painted.constData(), static_cast<std::size_t>(Painted.size()));
        SetProperties(Document, Facts);
        AddBookmarks(Document, Pages);
        QPDFWriter Writer(Document);
        Writer.setOutputMemory();
        Writer.write();
        const std::shared_ptr<Buffer> Bytes = Writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(Bytes->getBuffer()), Bytes->getSize()};
    } catch (const std::exception& Fault) {
        throw Failure(std::string("The PDF file can't be put together: ") + Fault.what());
    }
}

} // namespace velorix
