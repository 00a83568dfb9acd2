// The input screen: everything that describes a project, on four pages.
#pragma once

#include "base/Arrays.h"
#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"
#include "screens/UnitLists.h" // ahead of frmLCC, whose construction reads the lists

namespace velorix {

// The caption of a project that has no file yet; the Save command tells the two cases apart by it.
inline const std::string NewProjectCaption = "Velorix (New project file)";

// Rate classes of an hour, as the hour labels show them.
constexpr Color OffpeakColor = PureYellow;
constexpr Color StandardColor = PureGreen;
constexpr Color PeakColor = PureRed;

struct LccScreen : Screen {
    LccScreen();

    TabControl sstInput{{"General Data", "Profile Data", "Energy Data", "Rates and Sales"}};
    CommandButton sscHelp{"", "Help"};
    CommandButton sscHelp1{"", "Help"};
    CommandButton sscHelp2{"", "Help"};
    CommandButton sscHelp3{"", "Help"};

    // General data
    Label lblFileName{NewProjectCaption};
    TextBox txtProject{"Enter the project name", 80};
    TextBox txtDesigner{"Enter the designer", 80};
    DatePicker dtpDate{"Select the project date"};
    TextBox txtDescription{"Enter a description of the project", 500};
    ScrollBar hscLife{2, 100, 5, "Select the analysis life in years"};
    Label lblLife;
    ScrollBar hscBaseYear{1950, 2500, 5, "Select the base year of the cost analysis"};
    Label lblBaseYear;
    ScrollBar hscSupplyStart{1950, 2500, 10, "Select the year in which supply starts"};
    Label lblSupplyStart;

    // General data of a gravity system
    Frame fraGravityOption{"Preferred option"};
    OptionButton optGSpecifiedFlowrate{"Fixed demand", "Click for the same demand in every year"};
    OptionButton optGCalculatedFlowrate{"Varying demand", "Click to enter a demand for each year"};
    Frame fraGravityFlowrate{"Fixed demand"};
    Label Label52{"Demand"};
    TextBox txtGFlowrate{"Enter the fixed demand"};
    ComboBox comGFlowrateUnits;
    Frame fraVaryingDemand{"Varying demand"};
    Label Label53{"Demand units"};
    ComboBox comVaryingDemandUnits;
    Grid msgDemand{2, 2, "Enter the demand of each year"};
    TextBox txtDemand{"Enter the demand of the year"};
    Frame fraGravityReservoirs{"Reservoir levels"};
    TextBox txtTRWL{"Enter the top reservoir water level"};
    ComboBox comTRWLUnits;
    TextBox txtBRWL{"Enter the bottom reservoir water level"};
    ComboBox comBRWLUnits;

    // General data of a pumping system
    Frame fraPumpOption{"Demand"};
    OptionButton optPumpFixed{"Fixed demand", "Click for the same demand in every year"};
    OptionButton optPumpVarying{"Varying demand", "Click to enter a demand for each year"};
    Frame FraPumpFixedDemand{"Fixed demand"};
    TextBox txtPFlowrate{"Enter the fixed demand"};
    ComboBox comPFlowrateUnits;
    Frame fraPumpVaryingDemand{"Varying demand"};
    ComboBox comPumpVaryingDemandUnits;
    Grid msgPumpDemand{2, 2, "Enter the demand of each year"};
    TextBox txtPumpDemand{"Enter the demand of the year"};
    Frame fraPumpReservoir{"Reservoir levels"};
    TextBox txtPPRWL{"Enter the pumpstation reservoir water level"};
    ComboBox comPPRWLUnits;
    TextBox txtPERWL{"Enter the end reservoir water level"};
    ComboBox comPERWLUnits;
    Frame FraPumpingOption{"Pumping system"};
    OptionButton optFlowrate{"Specified operating flow rate", "Click to enter the operating flow rate"};
    OptionButton optPumpDetails{"Specified pump curve", "Click to enter the pump curve"};
    Frame fraPumpingFlowrate{"Specified operating flow rate"};
    TextBox txtPumpOperatingFlowrate{"Enter the operating flow rate"};
    ComboBox comPumpOperatingFlowrateUnits;
    TextBox txtPumpEfficiency{"Enter the pump efficiency at the operating point"};
    Frame fraPumpcurve{"Specified pump curve"};
    CommandButton sscPumpcurve{"Pump &details", "Click to enter the pump details"};

    // Pump details
    Frame fraPumpDetails{"Pump details"};
    ComboBox comHeadUnits;
    ComboBox comFlowUnits;
    Array0<TextBox, 6> txtH;
    Array0<TextBox, 6> txtQ;
    Array0<TextBox, 6> txtEfficiency;
    TextBox txtPumptype{"Enter the pump type", 100};
    TextBox txtPumpDescription{"Enter a description of the pump configuration", 1000};
    CommandButton sscViewCurve{"&View curve", "Click to view the pump curve"};
    CommandButton sscOK{"&OK", "Click to return to the general data"};

    // Profile data
    ComboBox comElevationUnits;
    ComboBox comLengthUnits;
    ComboBox comDiameterUnits;
    ComboBox comWallThicknessUnits;
    Grid msgProfile{3, 8, "Enter the pipeline profile"};
    TextBox txtCell{"Enter the value of the cell"};
    ComboBox comNode{{}, "Select the component at the node"};
    CommandButton sscAdd{"&Insert row", "Click to insert a row before the current row"};
    CommandButton sscDelete{"&Delete row", "Click to delete the current row"};
    CommandButton sscViewProfile{"&View profile", "Click to view the pipeline profile"};
    CommandButton sscLaying{"Pipe &laying", "Click to enter the pipe laying costs and conditions"};
    Frame fraLaying{"Pipe laying"};
    Grid msgLaying{16, 2, "Enter the pipe laying costs and conditions"};
    TextBox txtLaying{"Enter the value of the cell"};
    CommandButton sscHideLaying{"&Save && Exit", "Click to keep the values and close the table"};
    CommandButton sscCancelLaying{"&Cancel", "Click to close the table"};
    Frame fraReservoir{"Lining system"};
    OptionButton optCopon{"Copon coated", "Click for a Copon coated pipe"};
    OptionButton optMortar{"Cement mortar/Other", "Click for a cement mortar or other lining"};
    Label Label51{"Lining thickness"};
    TextBox txtLiningThickness{"Enter the lining thickness"};
    ComboBox comLiningThicknessUnits;
    TextBox txtKsNew{"Enter the absolute roughness of a new pipe"};
    ComboBox comKsNewUnits;
    TextBox txtKsOld{"Enter the absolute roughness of an old pipe"};
    ComboBox comKsOldUnits;
    TextBox txtKsOldYears{"Enter the number of years it takes the pipe to deteriorate"};

    // Energy data
    Frame fraSummer{"Summer"};
    ScrollBar fsbSummer{0, 12, 1, "Select the number of summer months"};
    Label lblSummer;
    TextBox txtSPeak{"Enter the summer peak energy rate"};
    TextBox txtSStandard{"Enter the summer standard energy rate"};
    TextBox txtSOffpeak{"Enter the summer off-peak energy rate"};
    Array0<Label, 24> lblSummerHour;
    Frame fraWinter{"Winter"};
    TextBox txtWPeak{"Enter the winter peak energy rate"};
    TextBox txtWStandard{"Enter the winter standard energy rate"};
    TextBox txtWOffpeak{"Enter the winter off-peak energy rate"};
    Array0<Label, 24> lblWinterHour;
    ScrollBar fsbPumpingHours{1, 24, 1, "Select the pumping hours per day"};
    Label lblPumpingHours;

    // Rates and sales
    TextBox txtEscalation{"Enter the estimated escalation rate"};
    TextBox txtDiscountRate{"Enter the estimated discount rate"};
    Label lblEnergyEscalation{"Energy escalation rate"};
    TextBox txtEnergyEscalation{"Enter the estimated energy escalation rate"};
    Label lblEnergyEscalationUnit{"%"};
    TextBox txtMechanical{"Enter the estimated cost of the mechanical works"};
    TextBox txtElectrical{"Enter the estimated cost of the electrical works"};
    TextBox txtSupervision{"Enter the estimated cost of the project supervision"};
    CommandButton sscMechanical{"", "Help on the mechanical works"};
    CommandButton sscElectrical{"", "Help on the electrical works"};
    ScrollBar hscMPipeline{0, 2000, 5, "Select the annual maintenance of the pipeline"};
    Label lblMPipeline;
    ScrollBar hscMMechanical{0, 1000, 5, "Select the annual maintenance of the mechanical works"};
    Label lblMMechanical;
    ScrollBar hscMElectrical{0, 1000, 5, "Select the annual maintenance of the electrical works"};
    Label lblMElectrical;
    Frame fraIncome{"Income"};
    TextBox txtWaterSales{"Enter the current water sales unit tariff"};
    ComboBox comWaterSalesUnits;
    TextBox txtWaterIncrease{"Enter the annual increase in the water tariff"};
    Grid msgOperational{9, 3, "Enter the staff packages and percentages of time"};
    TextBox txtCellOperational{"Enter the value of the cell"};
    Grid msgOtherOperational{6, 2, "Enter the other operational expenses"};
    TextBox txtCellOtherOperational{"Enter the value of the cell"};

    // Currency signs beside the money fields
    Array0<Label, 4> lblCurrency;
    Array0<Label, 6> lblUnit;
};

inline LccScreen frmLCC;

} // namespace velorix
