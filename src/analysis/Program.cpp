// Every module's start, in one place.
#include "analysis/Program.h"

#include "base/Arithmetic.h"
#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/YearlySupply.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/Screen.h"
#include "results/PlotState.h"

namespace velorix {

void ResetProgram()
{
    ClearArithmeticFlags();
    UnloadScreens();
    ResetProjectRecord();
    ResetWorkingSet();
    ResetSession();
    ResetNormalise();
    ResetFlows();
    ResetDutyPoint();
    ResetYearlySupply();
    ResetCapitalCost();
    ResetAnnualCosts();
    ResetPresentValue();
    ResetRateOfReturn();
    ResetPlotState();
}

void StartSession()
{
    wSystemType = 0;
    NewProjectDefaults();
}

} // namespace velorix
