// The bookmarks of one level, and the dictionary of properties.
#include "paint/PdfOutline.h"

#include "base/Failure.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>

namespace velorix {
namespace {

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

QPDFObjectHandle BookmarkObject(QPDF& Document, const PdfBookmark& Mark, const QPDFObjectHandle& Page,
                                const QPDFObjectHandle& Parent)
{
    QPDFObjectHandle Result = Document.makeIndirectObject(QPDFObjectHandle::newDictionary());
    QPDFObjectHandle Destination = QPDFObjectHandle::newArray();
    const double Top = QPDFPageObjectHelper(Page).getMediaBox().getArrayAsRectangle().ury;
    Destination.appendItem(Page);
    Destination.appendItem(QPDFObjectHandle::newName("/XYZ"));
    for (const double Each : {0.0, Top, 0.0}) // the left, the top, the zoom as it is
        Destination.appendItem(QPDFObjectHandle::newReal(Each));
    Result.replaceKey("/Title", TextObject(Mark.Title));
    Result.replaceKey("/Parent", Parent);
    Result.replaceKey("/Dest", Destination);
    return Result;
}

void AddBookmarks(QPDF& Document, const std::vector<PdfBookmark>& Bookmarks)
{
    if (Bookmarks.empty()) return;
    const std::vector<QPDFPageObjectHelper> Written = QPDFPageDocumentHelper(Document).getAllPages();
    QPDFObjectHandle Outline = Document.makeIndirectObject(QPDFObjectHandle::newDictionary());
    std::vector<QPDFObjectHandle> Marks;
    for (const PdfBookmark& Each : Bookmarks)
        Marks.push_back(BookmarkObject(Document, Each, Written.at(Each.Page).getObjectHandle(), Outline));
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

std::string WithOutline(std::string_view Pdf, const DocumentFacts& Facts,
                        const std::vector<PdfBookmark>& Bookmarks)
{
    try {
        QPDF Document;
        Document.processMemoryFile("pages", Pdf.data(), Pdf.size());
        SetProperties(Document, Facts);
        AddBookmarks(Document, Bookmarks);
        QPDFWriter Writer(Document);
        Writer.setOutputMemory();
        Writer.write();
        const std::shared_ptr<Buffer> Bytes = Writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(Bytes->getBuffer()), Bytes->getSize()};
    } catch (const std::exception& Fault) {
        throw Failure(std::string("The PDF file can't be put together: ") + Fault.what());
    }
}

std::vector<PdfBookmark> ReadBookmarks(const std::string& Path)
{
    try {
        QPDF Document;
        Document.setSuppressWarnings(true);
        Document.processFile(Path.c_str());
        const std::vector<QPDFObjectHandle> Pages = Document.getAllPages();
        std::vector<PdfBookmark> Bookmarks;
        for (QPDFOutlineObjectHelper& Each : QPDFOutlineDocumentHelper(Document).getTopLevelOutlines()) {
            const QPDFObjGen Wanted = Each.getDestPage().getObjGen();
            const auto Found = std::find_if(Pages.begin(), Pages.end(), [&](const QPDFObjectHandle& Page) {
                return Page.getObjGen() == Wanted;
            });
            if (Found == Pages.end()) continue;
            Bookmarks.push_back({Each.getTitle(), static_cast<std::size_t>(Found - Pages.begin())});
        }
        return Bookmarks;
    } catch (const std::exception& Fault) {
        throw Failure(std::string("The PDF file can't be read: ") + Fault.what());
    }
}

} // namespace velorix
