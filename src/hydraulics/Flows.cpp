// The solution of all years: roughness, friction factors, and the year loops of each kind of system.
#include "hydraulics/Flows.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/GravityFlow.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"

#include <algorithm>

namespace velorix {

ByYear KsYear;
ByRowAndYear Lambda;
ByRowAndYear FrictionLoss;
ByRowAndYear SecondaryHeadLoss;
YearTable<Single, 0, MaxRows, MaxYears> Gradeline;
ByYear Flow;
std::int16_t HighPointAdjusted = 0;
std::int16_t HydraulicsFailed = 0;

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

// Runs back from the downstream reservoir, and is lifted until no row lies more than a metre of head below
// ground. Point i is the head at row i, point 0 the ground at the pump station.
void StorePumpingGradeline(int Year)
{
    Gradeline(NodeCount, Year) = DownstreamLevel;
    Gradeline(0, Year) = wElevation[1];
    for (int j = NodeCount - 1; j >= 1; --j)
        Gradeline(j, Year) =
            Checked(Gradeline(j + 1, Year) + FrictionLoss(j, Year) + SecondaryHeadLoss(j, Year));

    Single Lowest = -1;
    for (int j = 1; j <= NodeCount; ++j) {
        const Single Pressure = Checked(Gradeline(j, Year) - wElevation[j]);
        if (Ordered(Pressure) < Lowest) Lowest = Pressure;
    }
    if (Lowest >= -1) return;
    for (int j = 1; j <= NodeCount; ++j) Gradeline(j, Year) = Checked(Gradeline(j, Year) - (Lowest + 1));
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

void SolvePumpCurve()
{
    for (int y = 1; y <= wLife; ++y) {
        StoreFrictionFactors(y);
        AnalysisYear = static_cast<std::int16_t>(y);
        if (AnalysisAborted != 0) return;

        FindDutyPoint();
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

void SolveAllYears()
{
    StoreRoughness();
    if (!IsPumping())
        SolveGravity();
    else if (wPumpDetails == 0)
        SolveGivenFlow();
    else
        SolvePumpCurve();
}

} // namespace

void SolveFlows()
{
    HydraulicsFailed = 0;
    ClearArithmeticFlags();
    try {
        SolveAllYears();
    } catch (const Failure&) {
        HydraulicsFailed = 1;
        Warn("Could not determine the hydraulic gradeline. Please check input data", "Velorix Error");
    }
}

void ResetFlows()
{
    KsYear.Fill(0);
    Lambda.Fill(0);
    FrictionLoss.Fill(0);
    SecondaryHeadLoss.Fill(0);
    Gradeline.Fill(0);
    Flow.Fill(0);
    HighPointAdjusted = 0;
    HydraulicsFailed = 0;
}

} // namespace velorix
