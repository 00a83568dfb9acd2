// The system heads of a year as the search for the duty point asks for them.
#pragma once

#include "hydraulics/HeadBounds.h"
#include "hydraulics/Tables.h"

#include <optional>

namespace velorix {

// Points of the system curve of AnalysisYear, whose Lambda must stand. Works out those that are asked for;
// the whole curve, with SystemHead, SystemHeadByYear and SystemFlowByYear, when the tables are wanted, when
// so many are asked for that this is the quicker way, or when some point may fail: which throws as
// StoreSystemCurve does.
class CurveHeads {
public:
    explicit CurveHeads(Tables Wanted);

    // True when all heads are finite and bounds of them are known.
    bool Bounded() const { return Bounds.has_value(); }

    // Where the heads of the points First to Last lie (m). Only when they are bounded.
    HeadBounds::Range Between(int First, int Last) const;

    // The head of a point as stored (m).
    Single At(int Point);

private:
    static constexpr int MostPoints = 100; // worked one by one

    void StoreAll();

    std::optional<HeadBounds> Bounds;
    bool Stored = false;
    int Worked = 0;
    int LastPoint = 0; // asked for last: searches ask for neighbours
    Single LastHead;
};

} // namespace velorix
