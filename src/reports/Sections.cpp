// The order of the rows is the order on paper.
#include "reports/Sections.h"

#include "reports/GraphPages.h"
#include "reports/InputReports.h"
#include "reports/ResultReports.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/SupplyPlots.h"
#include "screens/Results.h"

namespace velorix {
namespace {

// The graph of PrintYear; the screen keeps the year of its next plot.
void PrintHydraulicSection()
{
    const std::int16_t Shown = PlotYear;
    PlotYear = PrintYear;
    DrawHydraulicPlot();
    PrintHydraulicGraph();
    PlotYear = Shown;
}

// Switching the option draws its graph; one that stands already is drawn anew.
void PrintDemandSection()
{
    frmResults.ssoDemandCapacity.Value = true;
    DrawDemandCapacity();
    PrintSystemGraph();
}

void PrintIncomeSection()
{
    frmResults.ssoIncomeExpenditure.Value = true;
    DrawIncomeExpenditure();
    PrintSystemGraph();
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
        {"hydraulic", "Hydraulic analysis", frmPrint.chkTextHydraulic, Needs::Analysis, PrintHydraulicAnalysis,
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
        {"irr-graph", "Internal rate of return graph", frmPrint.chkIRR, Needs::Analysis, PrintIrrGraph,
         "Could not print the IRR graph ! Check the obtained results."},
    };
    // clang-format on
    return Sections;
}

} // namespace velorix
