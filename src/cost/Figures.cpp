// The order of the calculations.
#include "cost/Figures.h"

#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/Normalise.h"
#include "hydraulics/YearlySupply.h"

namespace velorix {

bool ComputeFigures(Tables Wanted, const FigureEvents& Events)
{
    AnalysisAborted = 0;
    NormaliseInputs();
    ReadLayingRates();
    Events.Reached(Milestone::Inputs);

    HighPointAdjusted = 0;
    SolveFlows(Wanted, Events.Flows);
    if (AnalysisAborted == -1) return false;

    SupplyDemand();
    Events.Reached(Milestone::Supply);
    SplitPumpingHours();
    Events.Reached(Milestone::Hours);
    ComputeIncome();
    Events.Reached(Milestone::Income);
    ComputeConstructionCost();
    ComputeTotalCapitalCost(Events.Supervision());
    ComputeAnnualCosts();
    ComputePresentValues();
    if (Wanted == Tables::Filled)
        ScanRateOfReturn();
    else
        FindRateOfReturn();
    return true;
}

} // namespace velorix
