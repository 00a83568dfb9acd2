// The roughness screen as it opens.
#include "screens/RoughnessScreen.h"

#include "model/Units.h"

namespace velorix {

RoughnessScreen::RoughnessScreen()
    : Screen("frmRoughness", "  ROUGHNESS CALCULATION")
    , comFlowrateUnits(NamesOf(FlowUnitList), "Select the flow rate units")
    , comPressureUnits(NamesOf(PressureUnitList), "Select the pressure units")
{
    constexpr int Preselected = 2; // m³/s and kPa
    comFlowrateUnits.ListIndex = comPressureUnits.ListIndex = Preselected;

    constexpr std::array Rows = {"Pressure measuring point", "Accumulated length", "Elevation",
                                 "Measured pressure"};
    msgRoughness.ColWidth = {2000, 1200, 1200, 1200, 1200, 1200};
    msgRoughness.HeaderHeight = 500;
    for (int Row = 0; Row < msgRoughness.Rows(); ++Row)
        msgRoughness.SetText(Row, 0, Rows.at(static_cast<std::size_t>(Row)));
    for (int Point = 1; Point < msgRoughness.Cols(); ++Point)
        msgRoughness.SetText(0, Point, std::to_string(Point));

    msgRoughnessResults.ColWidth = {2800, 1000, 1000, 1000, 1000};
    msgRoughnessResults.HeaderHeight = 350;
    for (int Row = 0; Row < msgRoughnessResults.Rows(); ++Row)
        msgRoughnessResults.SetText(Row, 0, RoughnessResultNames.at(static_cast<std::size_t>(Row)));
    for (int Stretch = 1; Stretch < msgRoughnessResults.Cols(); ++Stretch)
        msgRoughnessResults.SetText(0, Stretch,
                                    std::to_string(Stretch) + " to " + std::to_string(Stretch + 1));

    for (Grid* Each : {&msgRoughness, &msgRoughnessResults}) {
        Each->FixedCols = 1;
        Each->DataRowHeight = 350;
        Each->Select(1, 1);
    }
    constexpr int LongestCell = 40;
    txtCell.MaxLength = LongestCell;
    txtCell.Visible = comAccLength.Visible = false;
    for (CheckBox* Each : {&chkColebrook, &chkHazen, &chkBarr, &Check1}) Each->Value = true;
    DesignEnds();
}

} // namespace velorix
