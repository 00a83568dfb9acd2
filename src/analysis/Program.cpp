// Every module's start, in one place.
#include "analysis/Program.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/Printer.h"
#include "platform/Screen.h"
#include "reports/PageFrame.h"
#include "reports/ResultReports.h"
#include "reports/Sections.h"
#include "results/ChartFrame.h"
#include "results/PlotState.h"
#include "results/ScenarioLines.h"
#include "roughness/RoughnessStores.h"
#include "tools/ProfileImport.h"

namespace velorix {

void ResetProgram()
{
    ClearArithmeticFlags();
    UnloadScreens();
    ResetProjectRecord();
    ResetWorkingSet();
    ResetSession();
    ResetResults();
    ResetPlotState();
    ResetChartFrames();
    ResetScenarioLines();
    ResetRoughness();
    ResetImport();
    ResetPrinter();
    ResetPageFrame();
    ResetPrintYear();
    ResetPrintGraphYear();
}

void StartSession()
{
    wSystemType = 0;
    NewProjectDefaults();
}

} // namespace velorix
