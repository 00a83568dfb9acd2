// The solution of all years: roughness, friction factors, and the year loops of each kind of system.
#include "hydraulics/Flows.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/GravityFlow.h"
#include "hydraulics/PumpingHeads.h"
#include "model/WorkingSet.h"

#include <algorithm>

namespace velorix {

namespace {

// The wall ages from new to old in a straight line, and stays old from then on.
void StoreRoughness()
{
    const double Y = wKsOldYears;
    const double LastAgeing = Ordered(RoundEven(Y));
    for (int y = 1; y <= LastAgeing; ++y) KsYear[y] = Checked(KsNewM + (KsOldM - KsNewM) / (Y - 1) * (y - 1));

    // Held at the least 16-bit number, so that any number of years converts; the array has no such year
    // either.
    const int FirstOld = static_cast<int>(std::max(LastAgeing, -32768.0));
    for (int y = FirstOld; y <= wLife; ++y) KsYear[y] = KsOldM;
}

void StoreFrictionFactors(int Year)
{
    for (int i = 1; i <= NodeCount; ++i)
        Lambda(i, Year) = Checked(RoughPipeFactor(InternalDiameter[i], KsYear[Year]));
}

void StoreRowLosses(int Row, int Year)
{
    const double Q = Flow[Year];
    const double D = InternalDiameter[Row];
    FrictionLoss(Row, Year) = Checked(FrictionHead(Q, D, SectionLength[Row], Lambda(Row, Year)));
    SecondaryHeadLoss(Row, Year) = Checked(SecondaryHead(Q, D, wSecondaryLoss[Row]));
}

// Runs down from the upstream reservoir. Point i is the head just downstream of section i.
void StoreGravityGradeline(int Year)
{
    Gradeline(0, Year) = UpstreamLevel;
    for (int i = 1; i <= NodeCount; ++i) {
        StoreRowLosses(i, Year);
        Gradeline(i, Year) =
            Checked(Gradeline(i - 1, Year) - FrictionLoss(i, Year) - SecondaryHeadLoss(i, Year));
    }
}

// Point 0 is the ground at the pump station.
void StorePumpingGradeline(int Year)
{
    Gradeline(0, Year) = wElevation[1];
    StorePumpingHeads(FrictionLoss.Year(Year), SecondaryHeadLoss.Year(Year), Gradeline.Year(Year));
}

void StorePumpingLosses(int Year)
{
    for (int i = 1; i <= NodeCount; ++i) StoreRowLosses(i, Year);
    StorePumpingGradeline(Year);
}

void SolveGravity()
{
    const Single H = Checked(UpstreamLevel - DownstreamLevel);
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        Flow[y] = GravityFlow(y, H);
        StoreGravityGradeline(y);
    }
}

// The year without a duty point goes on with the flow that stands, and the loop ends in the next one.
void SolvePumpCurve(const FlowEvents& Events)
{
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        AnalysisYear = static_cast<std::int16_t>(y);
        if (AnalysisAborted != 0) return;

        if (!FindDutyPoint()) {
            if (Events.DutyPointMissing) Events.DutyPointMissing();
            AnalysisAborted = -1;
            ClearArithmeticFlags(); // what the event worked out is no part of the analysis
        }
        Flow[y] = OperatingFlow;
        Efficiency[y] = DutyEfficiency;
        StorePumpingLosses(y);
        PumpHead[y] = Checked(Gradeline(1, y) - Gradeline(0, y));
        PumpFlow[y] = Flow[y];
        PumpEfficiencyByYear[y] = Efficiency[y];
    }
}

void SolveGivenFlow()
{
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        OperatingFlow = Checked(wPumpOperatingFlowrate * OperatingFlowFactor);
        Flow[y] = OperatingFlow;
        StorePumpingLosses(y);
    }
}

void SolveAllYears(const FlowEvents& Events)
{
    StoreRoughness();
    if (!IsPumping())
        SolveGravity();
    else if (wPumpDetails == 0)
        SolveGivenFlow();
    else
        SolvePumpCurve(Events);
}

} // namespace

void SolveFlows(const FlowEvents& Events)
{
    HydraulicsFailed = 0;
    ClearArithmeticFlags();
    try {
        SolveAllYears(Events);
    } catch (const Failure&) {
        HydraulicsFailed = 1;
        if (Events.Failed) Events.Failed();
    }
}

} // namespace velorix
