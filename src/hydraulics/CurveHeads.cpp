// Points worked one by one, or all at once.
#include "hydraulics/CurveHeads.h"

#include "base/Arithmetic.h"
#include "hydraulics/HydraulicResults.h"
#include "hydraulics/SystemCurve.h"

namespace velorix {

CurveHeads::CurveHeads(Tables Wanted)
{
    SystemHeadProfile Profile;
    LossCoefficients Losses;
    if (PrepareKernel(Profile, Losses)) Bounds.emplace(Profile, Losses, GridFlow(1), GridFlow(CurvePoints));
    ClearArithmeticFlags(); // numbers that are far out may have raised some
    if (Wanted == Tables::Filled || !Bounded()) StoreAll();
}

void CurveHeads::StoreAll()
{
    StoreSystemCurve();
    Stored = true;
}

HeadBounds::Range CurveHeads::Between(int First, int Last) const
{
    return Bounds->Between(GridFlow(First), GridFlow(Last));
}

Single CurveHeads::At(int Point)
{
    if (!Stored && Point != LastPoint && ++Worked > MostPoints) StoreAll();
    if (Stored) return SystemHead[Point];
    if (Point != LastPoint) LastHead = SystemHeadAt(GridFlow(Point));
    LastPoint = Point;
    return LastHead;
}

} // namespace velorix
