// State of the plots.
#include "results/PlotState.h"

#include "base/Format.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

namespace velorix {

ByRow Chainage;
ByRow GroundLevel;
std::int16_t PlotYear = 1;
std::int16_t HydraulicYearDrawn = 1;
std::int16_t ProfileYearDrawn = 1;
std::int16_t RoughnessYearDrawn = 1;
std::int16_t HideGradeline = 0;
std::int16_t HideComponents = 0;

int GradelinePoint(int Node)
{
    return IsPumping() ? Node : Node - 1;
}

std::vector<std::string> DistanceEntries()
{
    std::vector<std::string> Distances;
    for (int Row = 1; Row <= NodeCount; ++Row) Distances.push_back(Format(Chainage[Row], "#0.000"));
    return Distances;
}

void FillDistances(ComboBox& Begin, ComboBox& End)
{
    Begin.List = DistanceEntries();
    End.List = DistanceEntries();
    Begin.ListIndex = 0;
    End.ListIndex = NodeCount - 1;
}

void FillCombos()
{
    FillDistances(frmResults.comBegin, frmResults.comEnd);
    PlotYear = 1;
    HideGradeline = 0;
    HideComponents = 0;
}

void TakeProfileForPlot()
{
    NodeCount = frmLCC.msgProfile.Rows() - 1;
    for (int Row = 1; Row <= NodeCount; ++Row) {
        Chainage[Row] = wAccLength[Row];
        GroundLevel[Row] = wElevation[Row];
    }
}

void ShowPlotState(ScrollBar& Years, Label& Year, CheckBox& GradelineTick)
{
    Years.Max = wLife;
    Years.Value.Restore(PlotYear);
    Year.Caption = std::to_string(CalendarYear(PlotYear));
    GradelineTick.Value.Restore(HideGradeline == 0);
}

void ResetPlotState()
{
    Chainage.Fill(0.0);
    GroundLevel.Fill(0.0);
    PlotYear = HydraulicYearDrawn = ProfileYearDrawn = RoughnessYearDrawn = 1;
    HideGradeline = 0;
    HideComponents = 0;
}

} // namespace velorix
