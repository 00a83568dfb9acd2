// The results screen: headline figures, the plots of hydraulics and supply, and the tables behind them.
#pragma once

#include "platform/Controls.h"
#include "platform/DrawingSurface.h"
#include "platform/Grid.h"
#include "platform/Screen.h"
#include "screens/Surfaces.h"

namespace velorix {

struct ResultsScreen : Screen {
    ResultsScreen();

    TabControl sstResults{{"Hydraulic analysis", "System analysis", "Cost analysis"}};
    CommandButton sscInput{"&Input data", "Click to return to the input data"};
    CommandButton sscHelp1{"", "Step-by-step guide: hydraulic analysis"};
    CommandButton sscHelp2{"", "Step-by-step guide: system analysis"};
    CommandButton sscHelp3{"", "Step-by-step guide: cost analysis"};

    // Headline figures
    Label lblDesignLife;
    Label lblNPVE;
    Label lblNPVI;
    Label lblIRR;

    // Hydraulic analysis
    DrawingSurface picHydraulic{GraphWidth, GraphHeight, "Profile and hydraulic gradeline"};
    Label lblMaxFlow;
    Label lblPumping;
    Label lblX; // what the pointer is at
    Label lblY;
    ComboBox comBegin{{}, "Select the begin distance of the plot"};
    ComboBox comEnd{{}, "Select the end distance of the plot"};
    ScrollBar hscYears{1, 100, 5, "Select the year of the plot"};
    Label lblYear;
    CommandButton sscView{"&View", "Click to redraw the plot for the chosen distances"};
    CommandButton sscChangeView{"&Change view", "Click to redraw the plot for the chosen year"};
    CommandButton sscComponents{"C&omponents", "Click to choose what the plot shows"};
    Frame fraComponents{"Show"};
    CheckBox chkComponents{"Node components", "Tick to show the symbols of the components"};
    CheckBox chkGradeline{"Hydraulic gradeline", "Tick to show the hydraulic gradeline"};
    CommandButton sscHide{"Hid&e", "Click to hide the choice"};
    CommandButton sscViewHydraulicTable{"&Table", "Click to view the hydraulic analysis as a table"};
    Frame fraTable{"Hydraulic analysis"};
    Label lblYear1;
    Grid msgHydraulic{2, 6, "Hydraulic analysis of the year"};
    CommandButton sscHideHydraulicTable{"Hid&e table", "Click to hide the table"};
    CommandButton sscDutypoint{"&Duty points", "Click to view the duty points"};
    CommandButton sscPrintView{"Pri&nt", "Click to print the plot"};

    Frame fraDuty{"Duty points"};
    Grid msgDuty{3, 4, "Duty point of each year"};
    DrawingSurface picDuty{GraphWidth, GraphHeight, "Pump curve and system curve"};
    ScrollBar hscDuty{1, 100, 5, "Select the year of the system curve"};
    Label lblDutyYear;
    Label lblGridColor; // hidden: its colour is that of the grid
    CommandButton sscPrintDutyYear{"Pri&nt", "Click to print the curves of the year"};
    CommandButton sscHideDuty{"Hid&e", "Click to hide the duty points"};

    // System analysis
    OptionButton ssoDemandCapacity{"Demand && capacity", "Click to view demand and capacity of each year"};
    OptionButton ssoIncomeExpenditure{"Income && expenditure",
                                      "Click to view income and expenditure of each year"};
    DrawingSurface picSystem{GraphWidth, GraphHeight, "Demand and capacity, or income and expenditure"};
    Frame fraDemandLegend{"Legend"};
    Label lblDemandColor;
    Label lblShortageColor;
    Label lblDemandText{"Demand (Supplied + shortage"};
    Label lblDemand;
    Label lblYieldColor;
    Label lblYield;
    Frame fraIncomeLegend{"Legend"};
    Label picIncomeColor;
    Label lblIncome;
    Label picCapitalColor;
    Label lblCapitalExpenditure;
    Label picEnergyColor;
    Label lblEnergy;
    Label picOperationalColor;
    Label lblOperational;
    Label picMaintenanceColor;
    Label lblMaintenance;
    CommandButton sscViewTable{"&Table", "Click to view the figures as a table"};
    Frame fraViewTable{"Table"};
    Grid msgSystem{3, 7, "Figures of each year"};
    CommandButton sscHideTable{"Hid&e table", "Click to hide the table"};
    CommandButton sscPrintSystem{"Pri&nt", "Click to print the graph"};

    // Cost analysis
    Grid msgCost{15, 2, "Capital cost"};
    Grid msgAnnualCost{6, 3, "Annual cost of the year"};
    ScrollBar hsbAnnual{1, 100, 5, "Select the year of the annual cost"};
    Label lblAnnual;
    CommandButton sscIRR{"IRR &graph", "Click to view the graph of the internal rate of return"};
};

inline ResultsScreen frmResults;

} // namespace velorix
