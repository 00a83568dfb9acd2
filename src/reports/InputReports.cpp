// placeholder
#include "reports/InputReports.h"

#include "reports/PageFrame.h"

namespace velorix {
void PrintGeneralData()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintProfileData()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintEnergyData()
{
    PrintPageHead();
    PrintPageFoot();
}
void PrintRatesData()
{
    PrintPageHead();
    PrintPageFoot();
}
} // namespace velorix
