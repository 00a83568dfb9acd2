// The input screen: everything that describes a project, on four pages.
#pragma once

#include "base/Arrays.h"
#include "model/Fields.h"
#include "platform/Controls.h"
#include "platform/Grid.h"
#include "platform/Screen.h"

#include <array>

namespace velorix {

// The caption of a project that has no file yet; the Save command tells the two cases apart by it.
inline const std::string NewProjectCaption = "Velorix (New project file)";

// Rate classes of an hour, as the hour labels show them.
constexpr Color OffpeakColor = PureYellow;
constexpr Color StandardColor = PureGreen;
constexpr Color PeakColor = PureRed;
inline constexpr std::array<const char*, 3> RateClassNames = {"Off-peak", "Standard", "Peak"}; // by class

// Over the range of the field, and with the units that the field can stand in.
ScrollBar BarOf(const FieldRule& Field, int LargeStep, const std::string& Hint);
ComboBox SelectorOf(const FieldRule& Field, const std::string& Hint);

struct LccScreen : Screen {
    LccScreen();

    TabControl sstInput{{"General Data", "Profile Data", "Energy Data", "Rates and Sales"}};
    CommandButton sscHelp{"", "Help"};
    CommandButton sscHelp1{"", "Help"};
    CommandButton sscHelp2{"", "Help"};
    CommandButton sscHelp3{"", "Help"};

    // General data
    Label lblFileName{NewProjectCaption};
    TextBox txtProject{"Enter the project name", Fields::Project.Count};
    TextBox txtDesigner{"Enter the designer", Fields::Designer.Count};
    DatePicker dtpDate{"Select the project date"};
    TextBox txtDescription{"Enter a description of the project", Fields::Description.Count};
    ScrollBar hscLife = BarOf(Fields::Life, 5, "Select the analysis life in years");
    Label lblLife;
    ScrollBar hscBaseYear = BarOf(Fields::BaseYear, 5, "Select the base year of the cost analysis");
    Label lblBaseYear;
    ScrollBar hscSupplyStart = BarOf(Fields::SupplyStart, 10, "Select the year in which supply starts");
    Label lblSupplyStart;

    // General data of a gravity system
    Frame fraGravityOption{"Preferred option"};
    OptionButton optGSpecifiedFlowrate{"Fixed demand", "Click for the same demand in every year"};
    OptionButton optGCalculatedFlowrate{"Varying demand", "Click to enter a demand for each year"};
    Frame fraGravityFlowrate{"Fixed demand"};
    Label Label52{"Demand"};
    TextBox txtGFlowrate{"Enter the fixed demand"};
    ComboBox comGFlowrateUnits = SelectorOf(Fields::FlowrateUnits, "Select the demand units");
    Frame fraVaryingDemand{"Varying demand"};
    Label Label53{"Demand units"};
    ComboBox comVaryingDemandUnits = SelectorOf(Fields::DemandUnits, "Select the demand units");
    Grid msgDemand{2, 2, "Enter the demand of each year"};
    TextBox txtDemand{"Enter the demand of the year"};
    Frame fraGravityReservoirs{"Reservoir levels"};
    TextBox txtTRWL{"Enter the top reservoir water level"};
    ComboBox comTRWLUnits = SelectorOf(Fields::TRWLUnits, "Select the water level units");
    TextBox txtBRWL{"Enter the bottom reservoir water level"};
    ComboBox comBRWLUnits = SelectorOf(Fields::BRWLUnits, "Select the water level units");

    // General data of a pumping system
    Frame fraPumpOption{"Demand"};
    OptionButton optPumpFixed{"Fixed demand", "Click for the same demand in every year"};
    OptionButton optPumpVarying{"Varying demand", "Click to enter a demand for each year"};
    Frame FraPumpFixedDemand{"Fixed demand"};
    TextBox txtPFlowrate{"Enter the fixed demand"};
    ComboBox comPFlowrateUnits = SelectorOf(Fields::FlowrateUnits, "Select the demand units");
    Frame fraPumpVaryingDemand{"Varying demand"};
    ComboBox comPumpVaryingDemandUnits = SelectorOf(Fields::DemandUnits, "Select the demand units");
    Grid msgPumpDemand{2, 2, "Enter the demand of each year"};
    TextBox txtPumpDemand{"Enter the demand of the year"};
    Frame fraPumpReservoir{"Reservoir levels"};
    TextBox txtPPRWL{"Enter the pumpstation reservoir water level"};
    ComboBox comPPRWLUnits = SelectorOf(Fields::TRWLUnits, "Select the water level units");
    TextBox txtPERWL{"Enter the end reservoir water level"};
    ComboBox comPERWLUnits = SelectorOf(Fields::BRWLUnits, "Select the water level units");
    Frame FraPumpingOption{"Pumping system"};
    OptionButton optFlowrate{"Specified operating flow rate", "Click to enter the operating flow rate"};
    OptionButton optPumpDetails{"Specified pump curve", "Click to enter the pump curve"};
    Frame fraPumpingFlowrate{"Specified operating flow rate"};
    TextBox txtPumpOperatingFlowrate{"Enter the operating flow rate"};
    ComboBox comPumpOperatingFlowrateUnits =
        SelectorOf(Fields::PumpOperatingFlowrateUnits, "Select the operating flow rate units");
    TextBox txtPumpEfficiency{"Enter the pump efficiency at the operating point"};
    Frame fraPumpcurve{"Specified pump curve"};
    CommandButton sscPumpcurve{"Pump &details", "Click to enter the pump details"};

    // Pump details
    Frame fraPumpDetails{"Pump details"};
    ComboBox comHeadUnits = SelectorOf(Fields::HeadUnits, "Select the pump head units");
    ComboBox comFlowUnits = SelectorOf(Fields::FlowUnits, "Select the pump flow rate units");
    Array0<TextBox, 6> txtH;
    Array0<TextBox, 6> txtQ;
    Array0<TextBox, 6> txtEfficiency;
    TextBox txtPumptype{"Enter the pump type", Fields::Pumptype.Count};
    TextBox txtPumpDescription{"Enter a description of the pump configuration",
                               Fields::PumpDescription.Count};
    CommandButton sscViewCurve{"&View curve", "Click to view the pump curve"};
    CommandButton sscOK{"&OK", "Click to return to the general data"};

    // Profile data
    ComboBox comElevationUnits = SelectorOf(Fields::ElevationUnits, "Select the elevation units");
    ComboBox comLengthUnits = SelectorOf(Fields::LengthUnits, "Select the accumulated length units");
    ComboBox comDiameterUnits = SelectorOf(Fields::DiameterUnits, "Select the pipe diameter units");
    ComboBox comWallThicknessUnits =
        SelectorOf(Fields::WallThicknessUnits, "Select the wall thickness units");
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
    ComboBox comLiningThicknessUnits =
        SelectorOf(Fields::LiningThicknessUnits, "Select the lining thickness units");
    TextBox txtKsNew{"Enter the absolute roughness of a new pipe"};
    ComboBox comKsNewUnits = SelectorOf(Fields::KsNewUnits, "Select the roughness units of a new pipe");
    TextBox txtKsOld{"Enter the absolute roughness of an old pipe"};
    ComboBox comKsOldUnits = SelectorOf(Fields::KsOldUnits, "Select the roughness units of an old pipe");
    TextBox txtKsOldYears{"Enter the number of years it takes the pipe to deteriorate"};

    // Energy data
    Frame fraSummer{"Summer"};
    ScrollBar fsbSummer = BarOf(Fields::Summer, 1, "Select the number of summer months");
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
    ScrollBar fsbPumpingHours = BarOf(Fields::PumpingHours, 1, "Select the pumping hours per day");
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
    ScrollBar hscMPipeline = BarOf(Fields::MPipeline, 5, "Select the annual maintenance of the pipeline");
    Label lblMPipeline;
    ScrollBar hscMMechanical =
        BarOf(Fields::MMechanical, 5, "Select the annual maintenance of the mechanical works");
    Label lblMMechanical;
    ScrollBar hscMElectrical =
        BarOf(Fields::MElectrical, 5, "Select the annual maintenance of the electrical works");
    Label lblMElectrical;
    Frame fraIncome{"Income"};
    TextBox txtWaterSales{"Enter the current water sales unit tariff"};
    ComboBox comWaterSalesUnits = SelectorOf(Fields::WaterSalesUnits, "Select the water tariff units");
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
