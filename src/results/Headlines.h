// The headline figures of the results screen.
#pragma once

namespace velorix {

// Design life, present values and rate of return into their labels. A figure that can't be shown leaves its
// label empty.
void ShowHeadlines();

} // namespace velorix
