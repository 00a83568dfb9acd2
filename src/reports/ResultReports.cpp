// placeholder
#include "reports/ResultReports.h"

#include "reports/PageFrame.h"

namespace velorix {
std::int16_t PrintYear = 1;
void ResetPrintYear()
{
    PrintYear = 1;
}
void PrintHydraulicAnalysis()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintDemandAndYield()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintCostAnalysis()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintIncomeAndExpenditure()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintPumpAndSystemCurve()
{
    PrintPageHead();
    PrintPageFoot();
}
} // namespace velorix
