// The duty point: the segment of the pump curve that the system curve crosses, and the point picked on it.
#include "hydraulics/DutyPoint.h"

#include "base/Arithmetic.h"
#include "hydraulics/CurveHeads.h"
#include "hydraulics/HydraulicResults.h"
#include "hydraulics/SystemCurve.h"
#include "model/WorkingSet.h"

#include <algorithm>
#include <cmath>

namespace velorix {

namespace {

constexpr int PumpPoints = 6;
constexpr int Segments = PumpPoints - 1;
constexpr int Steps = CurvePoints / Segments; // points of the flow grid that stand for a segment

struct PumpCurvePoints {
    Array1<Single, PumpPoints> Head;       // m
    Array1<Single, PumpPoints> Flow;       // m3/s
    Array1<Single, PumpPoints> Efficiency; // percent
};

PumpCurvePoints PumpCurveInMetres()
{
    PumpCurvePoints Pump;
    for (int p = 1; p <= PumpPoints; ++p) {
        Pump.Head[p] = Ordered(Checked(wPumpCurve[3 * p - 2] * HeadFactor));
        Pump.Flow[p] = Ordered(Checked(wPumpCurve[3 * p - 1] * FlowFactor));
        Pump.Efficiency[p] = wPumpCurve[3 * p];
    }
    return Pump;
}

// The segment whose heads and flows a point of the system curve lies between; 0 when there is none.
int SegmentOf(const PumpCurvePoints& Pump, double Q, double S)
{
    for (int p = 1; p <= Segments; ++p)
        if (Pump.Head[p] >= S && Pump.Head[p + 1] < S && Pump.Flow[p] <= Q && Pump.Flow[p + 1] > Q) return p;
    return 0;
}

// Whether some of the points First to Last may lie on a segment, by the bounds of their heads and flows.
bool MayMatch(const PumpCurvePoints& Pump, const CurveHeads& Heads, int First, int Last)
{
    const auto [Low, High] = Heads.Between(First, Last);
    const auto [Least, Most] = std::minmax<double>({GridFlow(First), GridFlow(Last)});
    for (int p = 1; p <= Segments; ++p)
        if (Pump.Head[p] >= Low && Pump.Head[p + 1] < High && Pump.Flow[p] <= Most &&
            Pump.Flow[p + 1] > Least)
            return true;
    return false;
}

// The segment that the first matching one of the points First to Last lies on; 0 when no point matches any.
int CrossedSegment(const PumpCurvePoints& Pump, CurveHeads& Heads, int First, int Last)
{
    if (Heads.Bounded() && !MayMatch(Pump, Heads, First, Last)) return 0;
    if (First == Last) return SegmentOf(Pump, Ordered(GridFlow(First)), Ordered(Heads.At(First)));
    const int Middle = First + (Last - First) / 2;
    const int Found = CrossedSegment(Pump, Heads, First, Middle);
    return Found != 0 ? Found : CrossedSegment(Pump, Heads, Middle + 1, Last);
}

// A quantity of the pump along a segment, from one end at step 0 to the other.
struct Interpolation {
    double From;
    double To;

    Single At(int Step) const { return Checked(From + (To - From) * Step / Steps); }
};

// Pump head less system head along a segment. The fifth of the flow grid with the segment's number stands for
// the segment.
struct HeadDifference {
    Interpolation Pump;
    CurveHeads& System;
    int FirstPoint;

    Single At(int Step) const { return Checked(Pump.At(Step) - System.At(FirstPoint + Step)); }

    // Whether it certainly has one sign at the steps First to Last. The pump's head falls from step to step.
    bool OneSided(int First, int Last) const
    {
        const auto [Low, High] = System.Between(FirstPoint + First, FirstPoint + Last);
        return Pump.At(Last) > High || Pump.At(First) < Low;
    }

    // Works every step, as one of them may fail.
    void TryAll() const
    {
        for (int Step = 0; Step <= Steps; ++Step) At(Step);
    }
};

constexpr int NoStep = -1;

// The first of the steps First to Last - 1 above 0 whose next lies below 0.
int FirstCrossing(const HeadDifference& D, int First, int Last)
{
    if (D.System.Bounded() && D.OneSided(First, Last)) return NoStep;
    if (Last - First == 1) return Ordered(D.At(First)) > 0 && Ordered(D.At(Last)) < 0 ? First : NoStep;
    const int Middle = First + (Last - First) / 2;
    const int Found = FirstCrossing(D, First, Middle);
    return Found != NoStep ? Found : FirstCrossing(D, Middle, Last);
}

void TakePoint(Single Head, Single Flow, Single EfficiencyThere)
{
    DutyHead = Head;
    DutyFlow = Flow;
    DutyEfficiencyPoint = EfficiencyThere;
    OperatingFlow = DutyFlow;
    DutyEfficiency = DutyEfficiencyPoint;
}

// Takes the point of the segment next to where the curves cross; false when they don't. The first segment
// asks for point 0 of the system curve: a subscript failure, and intended.
bool PickPoint(const PumpCurvePoints& Pump, int Segment, CurveHeads& Heads)
{
    const auto Along = [&](const Array1<Single, PumpPoints>& Of) {
        return Interpolation{Of[Segment], Of[Segment + 1]};
    };
    const Interpolation H = Along(Pump.Head), F = Along(Pump.Flow), E = Along(Pump.Efficiency);
    for (const Interpolation& Each : {H, F, E}) Each.At(0); // one with an end that isn't finite fails here
    if (Segment == 1) throw SubscriptFailure(0, 1, CurvePoints);

    const HeadDifference D{H, Heads, (Segment - 1) * Steps};
    const bool MayFail = !Heads.Bounded() || H.From > KernelHeadLimit || H.To < -KernelHeadLimit;
    if (MayFail) D.TryAll();
    const int j = FirstCrossing(D, 0, Steps);
    if (j == NoStep) return false;
    const int Nearer = std::fabs(D.At(j + 1)) <= D.At(j) ? j + 1 : j;
    TakePoint(H.At(Nearer), F.At(Nearer), E.At(Nearer));
    return true;
}

} // namespace

bool FindDutyPoint(Tables Wanted)
{
    CurveHeads Heads(Wanted);
    const PumpCurvePoints Pump = PumpCurveInMetres();
    const int Segment = CrossedSegment(Pump, Heads, 1, CurvePoints);
    return Segment != 0 && PickPoint(Pump, Segment, Heads);
}

} // namespace velorix
