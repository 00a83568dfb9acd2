// Shortage, pumping hours, and their split over the rate classes.
#include "hydraulics/YearlySupply.h"

#include "base/Arithmetic.h"
#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"

namespace velorix {

namespace {

void SupplyPumpingYear(int Year)
{
    if (wPumpDetails == 0) Flow[Year] = Checked(wPumpOperatingFlowrate * OperatingFlowFactor);
    const double Q = Flow[Year];
    const double Capacity = wPumpingHours * Q / 24;
    const double Demand = wVaryingDemand == 1 ? DemandFactor * wDemand[Year] : double(DemandFlow[Year]);
    if (Q == 0) Checked(24 / Q); // no flow is a failure at any demand

    if (Ordered(Checked(Demand)) < Ordered(Checked(Capacity))) {
        Shortage[Year] = 0;
        PumpingHours[Year] = Checked(Demand * 24 / Q);
    } else {
        Shortage[Year] = Checked((Demand - Capacity) / DemandFactor);
        PumpingHours[Year] = wPumpingHours;
    }
}

// Compares in the user's unit. A gravity system runs full bore, so it has no hours.
void SupplyGravityYear(int Year)
{
    const Single Supply = Checked(Flow[Year] / DemandFactor);
    const double Wanted = wVaryingDemand == 1 ? wDemand[Year] : wFlowrate;
    Shortage[Year] = Ordered(Supply) <= Ordered(Wanted) ? Checked(Wanted - Supply) : Single(0);
}

struct ClassHours {
    Single Offpeak;
    Single Standard;
    Single Peak;
};

ClassHours CountHours(const Array1<std::int16_t, 24>& Pattern)
{
    ClassHours Count;
    for (int h = 1; h <= 24; ++h) {
        switch (Pattern[h]) {
        case 0: Count.Offpeak += 1; break;
        case 1: Count.Standard += 1; break;
        case 2: Count.Peak += 1; break;
        default: break;
        }
    }
    return Count;
}

// Fills the hours P into the classes, the cheapest first. A class that P doesn't reach is left alone.
void Fill(ClassHours& Running, double P, const ClassHours& Count)
{
    if (P < Count.Offpeak) {
        Running.Offpeak = P;
        return;
    }
    Running.Offpeak = Count.Offpeak;
    if (Count.Offpeak + Count.Standard > P) {
        Running.Standard = Checked(P - Count.Offpeak);
        return;
    }
    Running.Standard = Count.Standard;
    Running.Peak = Checked(P - (Count.Standard + Count.Offpeak));
}

} // namespace

void SupplyDemand()
{
    ClearArithmeticFlags();
    for (int y = 1; y <= wLife; ++y) {
        if (IsPumping())
            SupplyPumpingYear(y);
        else
            SupplyGravityYear(y);
    }
}

void SplitPumpingHours()
{
    ClearArithmeticFlags();
    const ClassHours Summer = CountHours(wSummerHour);
    const ClassHours Winter = CountHours(wWinterHour);
    CntOffpeakS = Summer.Offpeak;
    CntStandardS = Summer.Standard;
    CntPeakS = Summer.Peak;
    CntOffpeakW = Winter.Offpeak;
    CntStandardW = Winter.Standard;
    CntPeakW = Winter.Peak;

    ClassHours RunningS, RunningW; // go on from year to year
    for (int y = 1; y <= wLife; ++y) {
        const double P = Ordered(PumpingHours[y]);
        Fill(RunningS, P, Summer);
        Fill(RunningW, P, Winter);
        HoursOffpeakS[y] = RunningS.Offpeak;
        HoursStandardS[y] = RunningS.Standard;
        HoursPeakS[y] = RunningS.Peak;
        HoursOffpeakW[y] = RunningW.Offpeak;
        HoursStandardW[y] = RunningW.Standard;
        HoursPeakW[y] = RunningW.Peak;
    }
}

} // namespace velorix
