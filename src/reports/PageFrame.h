// Head and foot of every printed page: upright for the text reports, on its side for the graph pages.
#pragma once

#include <cstdint>

namespace velorix {

extern std::int16_t PageNo; // number of the last page head printed

// Each head counts PageNo up and leaves the type bold at size 8; each foot ends the page.
void PrintPageHead();
void PrintPageFoot();
void PrintGraphPageHead();
void PrintGraphPageFoot();

// Sets what stands below the head smaller, if need be, so that it ends above Y (mm).
void FitBodyAbove(double Y);

// The foot at a fixed place (mm), the body fitted above it.
void PrintPageFootAt(double Y);

// The level line below the head, which tables have above and below their headings too.
void PrintRule();

void ResetPageFrame();

} // namespace velorix
