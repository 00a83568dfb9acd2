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

// The foot at a fixed place (mm). A page that holds more than it has room for is set smaller, to end there.
void PrintPageFootAt(double Y);

// The level line below the head, which tables have above and below their headings too.
void PrintRule();

void ResetPageFrame();

} // namespace velorix
