// The results screen: headline figures, and the tables and lists that an analysis fills.
#pragma once

#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"

namespace velorix {

struct ResultsScreen : Screen {
    ResultsScreen();

    TabControl sstResults{{"Hydraulic analysis", "System analysis", "Cost analysis"}};

    // Headline figures
    Label lblDesignLife;
    Label lblNPVE;
    Label lblNPVI;
    Label lblIRR;

    // Hydraulic analysis
    ComboBox comBegin{{}, "Select the begin distance of the plot"};
    ComboBox comEnd{{}, "Select the end distance of the plot"};
    ScrollBar hscYears{1, 100, 5, "Select the year of the plot"};
    Label lblYear;
    CommandButton sscDutypoint{"&Duty points", "Click to view the duty points"};
    Frame fraDuty{"Duty points"};

    // Cost analysis
    Grid msgCost{15, 2, "Capital cost"};
    Grid msgAnnualCost{6, 3, "Annual cost of the year"};
    ScrollBar hsbAnnual{1, 100, 5, "Select the year of the annual cost"};
    Label lblAnnual;
};

inline ResultsScreen frmResults;

} // namespace velorix
