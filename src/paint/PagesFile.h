// Printed pages as one PDF file.
#pragma once

#include "platform/DocumentFacts.h"
#include "platform/PrintedPage.h"

#include <string>
#include <vector>

namespace velorix {

// Vectors and selectable text in embedded fonts, portrait and landscape as the pages are, a bookmark where a
// section begins. Throws Failure when there is no page, or the bytes can't be made.
std::string ToPdfBytes(const std::vector<PrintedPage>& Pages, const DocumentFacts& Facts);

} // namespace velorix
