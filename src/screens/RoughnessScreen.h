// The screen of the roughness scenarios: what was measured, and what follows from it.
#pragma once

#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"
#include "screens/Viewers.h"

#include <array>

namespace velorix {

// The names of the rows of the results, the first over their headings.
inline constexpr std::array<const char*, 8> RoughnessResultNames = {
    "Calculated between", "Colebrook-White (ks in mm)", "Barr (ks in mm)",       "Karman-Prandtl (ks in mm)",
    "Hazen Williams (C)", "Average diameter (mm)",      "Average velocity (mm)", "Reynolds number"};

struct RoughnessScreen : Screen {
    RoughnessScreen();

    ScrollBar hscScenario{1, ScenarioCount, 1, "Select the scenario"};
    Label lblScenario{"Scenario 1"};

    Frame fraScenario{"Measuring data (for scenario 1)"};
    Grid msgRoughness{4, 6, "Enter the measured pressures for this scenario"};
    TextBox txtCell{"Enter the value of the cell"};
    ComboBox comAccLength{{}, "Select the measuring point accumulated length"};
    TextBox txtFlowrate{"Enter the flow rate for this scenario "};
    ComboBox comFlowrateUnits;
    ComboBox comPressureUnits;

    Frame fraParameters{"Roughness parameters to calculate"};
    CheckBox chkColebrook{"ks (Colebrook-White)", "The roughness by Colebrook and White"};
    CheckBox chkHazen{"C-value  (Hazen-Williams)", "The coefficient of Hazen and Williams"};
    CheckBox chkBarr{"ks (Barr)", "The roughness by Barr"};
    CheckBox Check1{"ks (Karman-Prandtl)", "The roughness by Karman and Prandtl"};

    Frame fraResults{"Results (for Scenario 1)"};
    Grid msgRoughnessResults{8, 5, "Roughness between the measuring points"};

    CommandButton sscCalculate{"&Calculate", "Click to calculate yhe roughness parameters"};
    CommandButton sscViewGraph{"&View graph", "Click to view the pipeline profile graph with measured data "};
    CommandButton sscPrint{"Prin&t", "Click to print the results"};
    CommandButton sscPrevious{"&Previous screen", "Click to return to the profile viewing screen"};
    CommandButton sscHelp{"", "Help"};
};

inline RoughnessScreen frmRoughness;

} // namespace velorix
