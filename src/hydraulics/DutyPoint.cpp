// The duty point: the segment of the pump curve that the system curve crosses, and the point picked on it.
#include "hydraulics/DutyPoint.h"

#include "base/Arithmetic.h"
#include "hydraulics/HydraulicResults.h"
#include "hydraulics/SystemCurve.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {

namespace {

constexpr int PumpPoints = 6;
constexpr int Segments = PumpPoints - 1;
constexpr int Steps = CurvePoints / Segments; // points of the flow grid that stand for a segment

using StepList = Array0<Single, Steps + 1>;

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

// The segment that the first matching point of the system curve lies on; 0 when no point matches any.
int CrossedSegment(const PumpCurvePoints& Pump)
{
    const auto& Flows = SystemFlowByYear.Year(AnalysisYear);
    for (int i = 1; i <= CurvePoints; ++i) {
        const double Q = Ordered(Flows[i]);
        const double S = Ordered(SystemHead[i]);
        for (int p = 1; p <= Segments; ++p)
            if (Pump.Head[p] >= S && Pump.Head[p + 1] < S && Pump.Flow[p] <= Q && Pump.Flow[p + 1] > Q)
                return p;
    }
    return 0;
}

// Points along a segment, from one end to the other.
StepList Interpolated(double From, double To)
{
    StepList Values;
    for (int j = 0; j <= Steps; ++j) Values[j] = Checked(From + (To - From) * j / Steps);
    return Values;
}

void TakePoint(Single Head, Single Flow, Single EfficiencyThere)
{
    DutyHead = Head;
    DutyFlow = Flow;
    DutyEfficiencyPoint = EfficiencyThere;
    OperatingFlow = DutyFlow;
    DutyEfficiency = DutyEfficiencyPoint;
}

// Takes the point of the segment next to where the curves cross; false when they don't. The fifth of the flow
// grid with the segment's number stands for the segment, so the first segment asks for point 0 of the system
// curve: a subscript failure, and intended.
bool PickPoint(const PumpCurvePoints& Pump, int Segment)
{
    const StepList H = Interpolated(Pump.Head[Segment], Pump.Head[Segment + 1]);
    const StepList F = Interpolated(Pump.Flow[Segment], Pump.Flow[Segment + 1]);
    const StepList E = Interpolated(Pump.Efficiency[Segment], Pump.Efficiency[Segment + 1]);
    StepList D;
    for (int j = 0; j <= Steps; ++j) D[j] = Checked(H[j] - SystemHead[(Segment - 1) * Steps + j]);

    for (int j = 0; j < Steps; ++j) {
        if (!(Ordered(D[j]) > 0 && Ordered(D[j + 1]) < 0)) continue;
        const int Nearer = std::fabs(D[j + 1]) <= D[j] ? j + 1 : j;
        TakePoint(H[Nearer], F[Nearer], E[Nearer]);
        return true;
    }
    return false;
}

} // namespace

bool FindDutyPoint()
{
    StoreSystemCurve();
    const PumpCurvePoints Pump = PumpCurveInMetres();
    const int Segment = CrossedSegment(Pump);
    return Segment != 0 && PickPoint(Pump, Segment);
}

} // namespace velorix
