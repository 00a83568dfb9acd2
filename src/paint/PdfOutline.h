// Bookmarks and properties of a PDF file, which the toolkit can't write.
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

} // namespace velorix
