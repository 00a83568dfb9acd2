// Bookmarks and properties of a PDF file, which the toolkit can't write and loses memory on reading.
#pragma once

#include "platform/DocumentFacts.h"

#include <string>
#include <string_view>
#include <vector>

namespace velorix {

struct PdfBookmark {
    std::string Title;
    std::size_t Page; // from 0; it opens from its top
};

// The PDF file with the facts and the bookmarks added. Throws Failure when its bytes can't be understood, or
// a bookmark's page isn't there.
std::string WithOutline(std::string_view Pdf, const DocumentFacts& Facts,
                        const std::vector<PdfBookmark>& Bookmarks);

// The bookmarks of the highest level that lead to a page, in their order. Throws Failure when the file can't
// be read or understood.
std::vector<PdfBookmark> ReadBookmarks(const std::string& Path);

} // namespace velorix
