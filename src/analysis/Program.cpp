// Every module's start, in one place.
#include "analysis/Program.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
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
    ResetResults();
    ResetPlotState();
}

void StartSession()
{
    wSystemType = 0;
    NewProjectDefaults();
}

} // namespace velorix
