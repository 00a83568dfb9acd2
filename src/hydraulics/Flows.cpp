// The solution of all years: roughness, friction factors, and the year loops of each kind of system.
#include "hydraulics/Flows.h"

#include "base/Arithmetic.h"
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

// Pipes of one bore stand side by side as a rule, and share the logarithm.
void StoreFrictionFactors(int Year)
{
    for (int i = 1; i <= NodeCount; ++i) {
        const bool SameBore = i > 1 && InternalDiameter[i].Bits() == InternalDiameter[i - 1].Bits();
        Lambda(i, Year) =
            SameBore ? Lambda(i - 1, Year) : Checked(RoughPipeFactor(InternalDiameter[i], KsYear[Year]));
    }
}

// Where the losses and heads of a year go.
struct YearHeads {
    ByRow& Friction;
    ByRow& Secondary;
    HeadList& Head;
};

template <typename Steps>
void WorkRow(int Row, int Year, const YearHeads& To)
{
    const double Q = Flow[Year];
    const double D = InternalDiameter[Row];
    To.Friction[Row] = Steps::Stored(FrictionHead(Q, D, SectionLength[Row], Lambda(Row, Year)));
    To.Secondary[Row] = Steps::Stored(SecondaryHead(Q, D, wSecondaryLoss[Row]));
}

// The gradeline runs down from the upstream reservoir. Point i is the head just downstream of section i.
// This and the next are not inlined, so that all arithmetic is done before the status flags are read.
template <typename Steps>
[[gnu::noinline]] void WorkGravityYear(int Year, const YearHeads& To)
{
    To.Head[0] = UpstreamLevel;
    for (int i = 1; i <= NodeCount; ++i) {
        WorkRow<Steps>(i, Year, To);
        To.Head[i] = Steps::Stored(To.Head[i - 1] - To.Friction[i] - To.Secondary[i]);
    }
}

// Point 0 of the gradeline is the ground at the pump station.
template <typename Steps>
[[gnu::noinline]] void WorkPumpingYear(int Year, const YearHeads& To)
{
    for (int i = 1; i <= NodeCount; ++i) WorkRow<Steps>(i, Year, To);
    To.Head[0] = wElevation[1];
    WorkPumpingHeads<Steps>(To.Friction, To.Secondary, To.Head);
}

using YearWork = void (*)(int Year, const YearHeads& To);

// Stores what a year's work gives, up to the first step that fails.
void StoreYear(int Year, YearWork WorkAsBlock, YearWork WorkEachStep)
{
    const YearHeads Stored{FrictionLoss.Year(Year), SecondaryHeadLoss.Year(Year), Gradeline.Year(Year)};
    ByRow Friction, Secondary;
    HeadList Head;
    WorkAsBlock(Year, {Friction, Secondary, Head});
    if (ArithmeticFailed()) {
        ClearArithmeticFlags();
        return WorkEachStep(Year, Stored);
    }
    std::copy_n(Friction.begin(), NodeCount, Stored.Friction.begin());
    std::copy_n(Secondary.begin(), NodeCount, Stored.Secondary.begin());
    std::copy_n(Head.begin(), NodeCount + 1, Stored.Head.begin());
}

void StoreGravityYear(int Year)
{
    StoreYear(Year, WorkGravityYear<AsBlock>, WorkGravityYear<EachStep>);
}

void StorePumpingYear(int Year)
{
    StoreYear(Year, WorkPumpingYear<AsBlock>, WorkPumpingYear<EachStep>);
}

void SolveGravity()
{
    const Single H = Checked(UpstreamLevel - DownstreamLevel);
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        Flow[y] = GravityFlow(y, H);
        StoreGravityYear(y);
    }
}

// The year without a duty point goes on with the flow that stands, and the loop ends in the next one.
void SolvePumpCurve(Tables Wanted, const FlowEvents& Events)
{
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        AnalysisYear = static_cast<std::int16_t>(y);
        if (AnalysisAborted != 0) return;

        if (!FindDutyPoint(Wanted)) {
            if (Events.DutyPointMissing) Events.DutyPointMissing();
            AnalysisAborted = -1;
            ClearArithmeticFlags(); // what the event worked out is no part of the analysis
        }
        Flow[y] = OperatingFlow;
        Efficiency[y] = DutyEfficiency;
        StorePumpingYear(y);
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
        StorePumpingYear(y);
    }
}

void SolveAllYears(Tables Wanted, const FlowEvents& Events)
{
    StoreRoughness();
    if (!IsPumping())
        SolveGravity();
    else if (wPumpDetails == 0)
        SolveGivenFlow();
    else
        SolvePumpCurve(Wanted, Events);
}

} // namespace

void SolveFlows(Tables Wanted, const FlowEvents& Events)
{
    HydraulicsFailed = 0;
    if (Stands([&] { SolveAllYears(Wanted, Events); })) return;
    HydraulicsFailed = 1; // an end of its own: the analysis goes on
    if (Events.Failed) Events.Failed();
}

} // namespace velorix
