// A page of paper with all that was printed on it. Printer, PDF file and preview replay the same page.
#pragma once

#include "platform/DisplayList.h"

#include <string>
#include <vector>

namespace velorix {

// A drawing laid on the page, scaled to the place (twips) without distortion.
struct PlacedDrawing {
    double X, Y, Width, Height;
    DisplayList Drawn;
    bool operator==(const PlacedDrawing&) const = default;
};

struct PrintedPage {
    DisplayList Print; // as large as the paper
    std::vector<PlacedDrawing> Drawings;
    std::string Section; // the report that the page belongs to
    bool BeginsSection = false;
    bool operator==(const PrintedPage&) const = default;
};

} // namespace velorix
