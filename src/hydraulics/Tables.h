// How much an analysis leaves behind.
#pragma once

namespace velorix {

// The tables are those of which a figure needs a few entries only, but a graph all: SystemHead,
// SystemHeadByYear and SystemFlowByYear, IrrRate and IrrDifference. Left out they keep what they held, or are
// filled in part. All else that is stored is the same either way.
enum class Tables { LeftOut, Filled };

} // namespace velorix
