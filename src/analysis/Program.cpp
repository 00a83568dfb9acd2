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
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

namespace velorix {

void ResetProgram()
{
    ClearArithmeticFlags();
    for (Screen* Each : std::initializer_list<Screen*>{
             &frmAbout, &frmAgree, &frmAnalyse, &frmDeleteRow, &frmDisclaimer, &frmDutyPoint, &frmIntro,
             &frmLCC, &frmLCCType, &frmPref, &frmPumpView, &frmResults, &frmView, &MDIProject})
        Each->Unload();
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
