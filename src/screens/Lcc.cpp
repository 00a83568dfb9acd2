// The input screen as it stands before a project is loaded.
#include "screens/Lcc.h"

namespace velorix {
namespace {

void SetPumpPoints(LccScreen& Screen)
{
    for (int Point = 0; Point < 6; ++Point) {
        const std::string Number = std::to_string(Point + 1);
        Screen.txtH[Point].ToolTip = "Enter the pump head of point " + Number;
        Screen.txtQ[Point].ToolTip = "Enter the flow rate of point " + Number;
        Screen.txtEfficiency[Point].ToolTip = "Enter the pump efficiency of point " + Number;
    }
}

void SetHours(Array0<Label, 24>& Hours)
{
    for (int Hour = 0; Hour < 24; ++Hour) {
        Hours[Hour].Caption = std::to_string(Hour + 1);
        Hours[Hour].BackColor = OffpeakColor;
        Hours[Hour].ToolTip = "Click to change applicable rate";
    }
}

void SetGrid(Grid& Table, std::vector<int> Widths)
{
    Table.HeaderHeight = 500;
    Table.DataRowHeight = 350;
    Table.FixedCols = 1;
    Table.ColWidth = std::move(Widths);
}

} // namespace

ScrollBar BarOf(const FieldRule& Field, int LargeStep, const std::string& Hint)
{
    return ScrollBar(Field.Allowed.Least, Field.Allowed.Most, LargeStep, Hint);
}

ComboBox SelectorOf(const FieldRule& Field, const std::string& Hint)
{
    return ComboBox(NamesOf(Field.Allowed.Units), Hint);
}

LccScreen::LccScreen()
    : Screen("frmLCC", "  LIFE CYCLE COSTING ANALYSIS INPUT DATA")
{
    SetPumpPoints(*this);
    SetHours(lblSummerHour);
    SetHours(lblWinterHour);
    SetGrid(msgProfile, {900, 1200, 1200, 1000, 1000, 1000, 1200, 1900});
    SetGrid(msgDemand, {1000, 1200});
    SetGrid(msgPumpDemand, {1000, 1200});
    SetGrid(msgLaying, {3600, 2400});
    SetGrid(msgOperational, {1600, 1900, 1900});
    SetGrid(msgOtherOperational, {2500, 1900});
    msgLaying.MergeEqualCells = true;
    msgLaying.HeadingRows = {9, 10};

    constexpr int LongestCell = 40;
    for (TextBox* Each :
         {&txtCell, &txtLaying, &txtDemand, &txtPumpDemand, &txtCellOperational, &txtCellOtherOperational})
        Each->MaxLength = LongestCell;

    GroupOptions({&optGSpecifiedFlowrate, &optGCalculatedFlowrate});
    GroupOptions({&optPumpFixed, &optPumpVarying});
    GroupOptions({&optFlowrate, &optPumpDetails});
    GroupOptions({&optCopon, &optMortar});
    for (Control* Each : std::initializer_list<Control*>{
             &comNode, &txtCell, &txtLaying, &txtDemand, &txtPumpDemand, &txtCellOperational,
             &txtCellOtherOperational, &fraLaying, &fraPumpDetails})
        Each->Visible = false;
    DesignEnds();
}

} // namespace velorix
