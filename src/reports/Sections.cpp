// The order of the rows is the order on paper.
#include "reports/Sections.h"

#include "input/Session.h"
#include "model/WorkingSet.h"
#include "reports/GraphPages.h"
#include "reports/InputReports.h"
#include "reports/ResultReports.h"
#include "results/IrrPlot.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/SupplyPlots.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

#include <functional>

namespace velorix {

std::int16_t PrintGraphYear = 1;

namespace {

// Undoes something at the end of a section, however it ends.
class AtEnd {
public:
    explicit AtEnd(std::function<void()> Work)
        : Undo(std::move(Work))
    {
    }
    ~AtEnd() { Undo(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

private:
    const std::function<void()> Undo;
};

// The year may have been chosen for a project of a longer life.
void KeepPrintYearInLife()
{
    if (PrintYear > wLife) PrintYear = 1;
}

void PrintHydraulicText()
{
    KeepPrintYearInLife();
    PrintHydraulicAnalysis();
}

// The graph of PrintYear; the screen keeps the year of its next plot.
void PrintHydraulicSection()
{
    const AtEnd Back([Shown = PlotYear] { PlotYear = Shown; });
    KeepPrintYearInLife();
    PlotYear = PrintYear;
    DrawHydraulicPlot();
    PrintHydraulicGraph();
}

// Switching the option draws its graph where the screens are connected; else, and where the option stands
// already, it is drawn here.
void PrintSystemSection(OptionButton& Option, void (*Draw)())
{
    const bool DrawnBySwitch = !Option.Value && Option.Click;
    Option.Value = true;
    if (!DrawnBySwitch) Draw();
    PrintSystemGraph();
}

void PrintDemandSection()
{
    PrintSystemSection(frmResults.ssoDemandCapacity, DrawDemandCapacity);
}

void PrintIncomeSection()
{
    PrintSystemSection(frmResults.ssoIncomeExpenditure, DrawIncomeExpenditure);
}

// The graph's own screen has gone when the selection shows.
void PrintIrrSection()
{
    const AtEnd Close([] { frmIRRView.Unload(); });
    OpenIrrGraphForPaper();
    PrintIrrGraph();
}

} // namespace

std::span<const PrintSection, SectionCount> PrintSections()
{
    // clang-format off
    static const PrintSection Sections[SectionCount] = {
        {"general", "General data", frmPrint.chkGeneral, Needs::Project, PrintGeneralData,
         "Could not print the General Data ! Check the input data."},
        {"profile", "Pipeline profile", frmPrint.chkProfile, Needs::Project, PrintProfileData,
         "Could not print the Profile Data ! Check the input data."},
        {"energy", "Energy data", frmPrint.chkEnergy, Needs::PumpingProject, PrintEnergyData,
         "Could not print the Energy Data ! Check the input data."},
        {"rates", "Rates and sales data", frmPrint.chkRates, Needs::Project, PrintRatesData,
         "Could not print the Rates & Sales Data ! Check the input data."},
        {"hydraulic", "Hydraulic analysis", frmPrint.chkTextHydraulic, Needs::Analysis, PrintHydraulicText,
         "Could not print the Hydraulic Analysis results ! Check the obtained results."},
        {"demand", "Demand and yield", frmPrint.chkTextDemand, Needs::Analysis, PrintDemandAndYield,
         "Could not print the Hydraulic Analysis (Demand & Yield)! Check the obtained results."},
        {"income", "Income and expenditure", frmPrint.chkTextCost, Needs::Analysis, PrintIncomeAndExpenditure,
         "Could not print the Cost Analysis (Income & Expenditure)! Check the obtained results."},
        {"cost", "Cost analysis", frmPrint.chkCost, Needs::Analysis, PrintCostAnalysis,
         "Could not print the Summary of the Cost Analysis ! Check the obtained results."},
        {"hydraulic-graph", "Hydraulic graph", frmPrint.chkHydraulic, Needs::Analysis, PrintHydraulicSection,
         "Could not print the Hydraulic Analysis graph ! Check the obtained results."},
        {"demand-graph", "Demand and capacity graph", frmPrint.chkDemand, Needs::Analysis, PrintDemandSection,
         "Could not print the Demand & Capacity Analysis graph ! Check the obtained results."},
        {"income-graph", "Income and expenditure graph", frmPrint.chkIncome, Needs::Analysis, PrintIncomeSection,
         "Could not print the Income & Expenditure Analysis graph ! Check the obtained results."},
        {"irr-graph", "Internal rate of return graph", frmPrint.chkIRR, Needs::Analysis, PrintIrrSection,
         "Could not print the IRR graph ! Check the obtained results."},
    };
    // clang-format on
    return Sections;
}

std::span<const DirectPrint, DirectPrintCount> DirectPrints()
{
    // clang-format off
    static const DirectPrint Prints[DirectPrintCount] = {
        {"hydraulic-graph", "Hydraulic graph", frmResults.sscPrintView, 1, PrintHydraulicGraph},
        {"system-graph", "System graph", frmResults.sscPrintSystem, 0, PrintSystemGraph},
        {"duty", "Pump and system curve", frmResults.sscPrintDutyYear, 1, PrintPumpAndSystemCurve},
        {"pump-curve", "Pump curve", frmPumpView.sscPrintView, 1, PrintPumpCurveGraph},
        {"profile-graph", "Pipeline profile graph", frmView.sscPrintView, 0, PrintProfileGraph, DrawProfilePlot},
        {"roughness-graph", "Pipeline profile with measured data", frmViewRoughness.sscPrintView, 0, PrintRoughnessProfileGraph},
        {"irr-graph", "Internal rate of return graph", frmIRRView.sscPrintView, 0, PrintIrrGraph, DrawIrrGraph},
    };
    // clang-format on
    return Prints;
}

bool Stands(Needs Needed)
{
    switch (Needed) {
    case Needs::Project: return ProjectOpen == 1;
    case Needs::PumpingProject: return ProjectOpen == 1 && IsPumping();
    case Needs::Analysis: break;
    }
    return Analysed == 1;
}

void ResetPrintGraphYear()
{
    PrintGraphYear = 1;
}

} // namespace velorix
