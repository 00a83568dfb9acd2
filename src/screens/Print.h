// What to print, and of which year.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct PrintScreen : Screen {
    PrintScreen();

    Label lblSelect{"Select what to print"};

    Frame fraInput{"Input data"};
    CheckBox chkGeneral{"  General Data", "Click to print the General data"};
    CheckBox chkProfile{"  Profile Data", "Click to print the Profile data"};
    CheckBox chkEnergy{"  Energy Data", "Click to print the Energy data"};
    CheckBox chkRates{"  Rates && Sales Data", "Click to print the Rates & Sales data"};

    Frame Frame1{"Results "};
    CheckBox chkTextHydraulic{"  Hydraulic Analysis", "Click to print the Hydraulic Analysis"};
    CheckBox chkTextDemand{"  System Analysis (Demand && Yield)",
                           "Click to print the System Analysis (Demand & Yield)"};
    CheckBox chkTextCost{"  System Analysis (Income && Expenditure)",
                         "Click to print the System Analysis (Income & Expenditure)"};
    CheckBox chkCost{"  Summary of Cost Analysis", "Click to print the Summary of the Cost Analysis"};
    Label lblGraphs{"Graphs"};
    CheckBox chkHydraulic{"  Hydraulic Analysis", "Click to print the Hydraulic Analysis graph"};
    CheckBox chkDemand{"  Demand && Capacity Analysis",
                       "Click to print the Demand & Capacity Analysis graph"};
    CheckBox chkIncome{"  Income && Expenditure Analysis",
                       "Click to print the Income & Expenditure Analysis graph"};
    CheckBox chkIRR{"  IRR graph", "Click to print the IRR graph"};

    CommandButton sscPrint{"&Print", "Print the selected"};
    CommandButton sscPrint1{"", "Print the selected"};
    CommandButton sscCancel{"&Cancel", "Cancel the printing screen"};
    CommandButton sscSetup{"Printer &Setup", "Printer setup"};
    CommandButton sscHelp{"&Help", "Help"};
    Timer tmrCheck{100};
};

// The years of supply, to choose one from.
struct SelectYearScreen : Screen {
    SelectYearScreen(std::string ScreenName, std::string Question);

    Label lblQuestion;
    ComboBox comYear{{}, "Select the year"};
    CommandButton sscOK{"&OK", "Click to print the chosen year"};
};

inline PrintScreen frmPrint;
inline SelectYearScreen frmSelectYear{"frmSelectYear",
                                      "Select the year for which the hydraulic analysis should be printed"};
inline SelectYearScreen frmSelectYear1{
    "frmSelectYear1", "Select the year for which the hydraulic analysis graph should be printed"};

} // namespace velorix
