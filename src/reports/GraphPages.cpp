// placeholder
#include "reports/GraphPages.h"

#include "reports/PageFrame.h"

namespace velorix {
void PrintHydraulicGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
void PrintPumpCurveGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
void PrintProfileGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
void PrintRoughnessProfileGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
void PrintIrrGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
void PrintSystemGraph()
{
    PrintGraphPageHead();
    PrintGraphPageFoot();
}
} // namespace velorix
