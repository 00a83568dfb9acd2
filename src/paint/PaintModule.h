// What velorix-batch finds in the module velorix-paint, which it loads when there is something to draw.
#pragma once

#include "paint/DocumentFacts.h"
#include "platform/PrintedPage.h"

#include <string>

namespace velorix {

struct PaintServices {
    double (*TextWidth)(const std::string& Text, const Font& Face);
    double (*TextHeight)(const Font& Face);

    // The bytes of a picture file: "svg", "png" or "pdf".
    std::string (*FileBytes)(const DisplayList& Image, const std::string& Format, const std::string& Title);

    // The bytes of a PDF file of the pages.
    std::string (*PdfBytes)(const std::vector<PrintedPage>& Pages, const DocumentFacts& Facts);
};

constexpr const char* PaintModuleName = "velorix-paint.so";
constexpr const char* PaintServicesName = "VelorixPaintServices"; // extern "C" const PaintServices*()

} // namespace velorix
