// The results screen and the viewers, by what their surfaces, labels and tables hold.
#include "ShellTest.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "model/SampleRecords.h"
#include "results/ChartFrame.h"
#include "results/PlotState.h"
#include "screens/Viewers.h"
#include "shell/ViewerEvents.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr Color Blue = Rgb(0, 0, 255);

class ResultsEventsTest : public ShellTest {
protected:
    template <typename Item>
    static std::vector<Item> ItemsOf(const DrawingSurface& Surface)
    {
        std::vector<Item> Found;
        for (const DisplayItem& Each : Surface.Image().Items)
            if (const Item* One = std::get_if<Item>(&Each)) Found.push_back(*One);
        return Found;
    }

    static std::vector<LineItem> LinesIn(const DrawingSurface& Surface, Color Ink)
    {
        std::vector<LineItem> Found = ItemsOf<LineItem>(Surface);
        std::erase_if(Found, [Ink](const LineItem& Each) { return Each.Ink != Ink; });
        return Found;
    }

    static std::size_t BoxesIn(Color Fill)
    {
        const auto All = ItemsOf<BoxItem>(frmResults.picSystem);
        return static_cast<std::size_t>(
            std::count_if(All.begin(), All.end(), [Fill](const BoxItem& Each) { return Each.Fill == Fill; }));
    }
};

// Each kind of system: the ground from node to node, the gradeline over it with its own count of points, and
// in a pumping system a riser at the station.
TEST_F(ResultsEventsTest, TheHydraulicPlotShowsGroundAndGradeline)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        Analyse(Record);
        const DrawingSurface& Plot = frmResults.picHydraulic;
        const std::size_t Sections = static_cast<std::size_t>(NodeCount - 1);
        EXPECT_EQ(LinesIn(Plot, Rgb(0, 64, 0)).size(), Sections);
        const auto Gradelines = LinesIn(Plot, Blue);
        EXPECT_EQ(Gradelines.size(), Sections + (IsPumping() ? 1 : 0));

        ChartFrame Frame;
        static_cast<ChartScale&>(Frame) = ResultsFrame;
        static_cast<ChartOrigin&>(Frame) = HydraulicOrigin;
        EXPECT_EQ(Gradelines[0].X1, Frame.X(0));
        EXPECT_EQ(Gradelines[0].Y1, Frame.Y(Gradeline(IsPumping() ? 1 : 0, 1)));
        EXPECT_EQ(Gradelines[1].Y2, Frame.Y(Gradeline(IsPumping() ? 3 : 2, 1)));
        const TextItem Title = ItemsOf<TextItem>(Plot).back();
        EXPECT_EQ(Title.Text, "Accumulated length ( m )");
        EXPECT_EQ(Title.Face.Size, 10);
        EXPECT_TRUE(frmResults.lblMaxFlow.Caption.Get().starts_with("Flow rate: "));
        EXPECT_EQ(frmResults.lblPumping.Caption.Get().starts_with("Pumping head: "), IsPumping());

        // The year follows the bar at once, the plot only the command.
        const DisplayList Before = Plot.Image();
        frmResults.hscYears.Value = 15;
        EXPECT_EQ(frmResults.lblYear.Caption.Get(), std::to_string(wSupplyStart + 14));
        EXPECT_EQ(Plot.Image(), Before);
        frmResults.sscChangeView.Click();
        EXPECT_NE(Plot.Image(), Before);
        frmResults.chkGradeline.Value = false;
        EXPECT_TRUE(LinesIn(Plot, Blue).empty());
    }
}

TEST_F(ResultsEventsTest, ARangeWithoutLengthIsToldAndTheOldPictureStays)
{
    Analyse(GravityRecord());
    const DisplayList Before = frmResults.picHydraulic.Image();
    frmResults.comEnd.ListIndex = 0;
    frmResults.sscView.Click();
    EXPECT_EQ(LastMessage(), "The begin distance should be less than the end distance !");
    EXPECT_EQ(frmResults.picHydraulic.Image(), Before);
    frmResults.comBegin.ListIndex = 2;
    frmResults.comEnd.ListIndex = 5;
    frmResults.sscView.Click();
    EXPECT_EQ(LinesIn(frmResults.picHydraulic, Rgb(0, 64, 0)).size(), 3U);
}

TEST_F(ResultsEventsTest, ReadOutAndCopyAnswerThePointer)
{
    Analyse(GravityRecord());
    DrawingSurface& Plot = frmResults.picHydraulic;
    Plot.PointerMoved(ResultsFrame.XLeft + FrameInset, ResultsFrame.YBottom - FrameInset);
    EXPECT_EQ(Windows.Pointer, PointerShape::Cross);
    EXPECT_EQ(frmResults.lblX.Caption.Get(), "0.000 m");
    Plot.PointerMoved(ResultsFrame.XLeft + FrameInset, ResultsFrame.YBottom);
    EXPECT_EQ(frmResults.lblX.Caption.Get() + frmResults.lblY.Caption.Get(), "Out of rangeOut of range");
    frmResults.sscView.MouseMove();
    EXPECT_EQ(Windows.Pointer, PointerShape::Default);
    Plot.RightButtonPressed();
    EXPECT_EQ(Windows.ClipboardPicture, Plot.Image());
    EXPECT_EQ(LastMessage(), "The graph was copied to the clipboard");
}

// A duty plot takes the scale of the hydraulic plot's read-out, and leaves its origin.
TEST_F(ResultsEventsTest, ADutyPlotTakesTheScaleOfTheHydraulicPlot)
{
    Analyse(PumpCurveRecord());
    const ChartScale Scale = ResultsFrame;
    const ChartOrigin Origin = HydraulicOrigin;
    frmResults.sscDutypoint.Click();
    EXPECT_NE(ResultsFrame, Scale);
    EXPECT_EQ(HydraulicOrigin, Origin);
    EXPECT_EQ(LinesIn(frmResults.picDuty, PureGreen).size(), static_cast<std::size_t>(CurvePoints - 1));
    EXPECT_EQ(frmResults.msgDuty.Rows(), wLife + 2);
    frmResults.hscDuty.Value = 4;
    EXPECT_EQ(AnalysisYear, 4);
    EXPECT_EQ(frmResults.lblDutyYear.Caption.Get(), "Year " + std::to_string(wSupplyStart + 3));
    frmResults.sscView.Click();
    EXPECT_EQ(ResultsFrame, Scale);
}

// A bar a year for the capacity, one for the demand, and a head on those that are short; the same of money.
TEST_F(ResultsEventsTest, TheSystemPlotHasItsBarsAndItsTable)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        Analyse(Record);
        const std::size_t Life = static_cast<std::size_t>(wLife);
        const auto Short = static_cast<std::size_t>(
            std::count_if(Shortage.begin(), Shortage.begin() + wLife, [](Single Each) { return Each != 0; }));
        EXPECT_EQ(BoxesIn(PureGreen), Life);
        EXPECT_EQ(BoxesIn(PureRed), Life);
        EXPECT_EQ(BoxesIn(Blue), Short);
        EXPECT_EQ(frmResults.lblYield.Caption.Get(), "Yield (l/s)");
        frmResults.sscViewTable.Click();
        EXPECT_EQ(frmResults.msgSystem.Cols(), IsPumping() ? 5 : 4);
        EXPECT_EQ(frmResults.msgSystem.Text(2, 0), std::to_string(wSupplyStart));

        frmResults.ssoIncomeExpenditure.Value = true;
        EXPECT_EQ(BoxesIn(Blue), Life);
        EXPECT_EQ(BoxesIn(PureRed), static_cast<std::size_t>(wSupplyStart - wBaseYear));
        EXPECT_EQ(BoxesIn(Rgb(255, 10, 240)), IsPumping() ? Life : 0);
        EXPECT_EQ(frmResults.picEnergyColor.Visible, IsPumping());
        frmResults.sscViewTable.Click();
        EXPECT_EQ(frmResults.msgSystem.Rows(), wSupplyStart - wBaseYear + wLife + 2);
        EXPECT_EQ(frmResults.msgSystem.Cols(), IsPumping() ? 7 : 6);
        EXPECT_EQ(frmResults.msgSystem.Text(2, 1), "0") << "no income while it is being built";
        EXPECT_NE(frmResults.msgSystem.Text(2, 3), "0");
        frmResults.ssoDemandCapacity.Value = true;
    }
}

TEST_F(ResultsEventsTest, TheHydraulicTableFollowsTheYearOfTheBar)
{
    Analyse(GravityRecord());
    frmResults.hscYears.Value = 3;
    frmResults.sscViewHydraulicTable.Click();
    EXPECT_EQ(frmResults.lblYear1.Caption.Get(), "Year: " + std::to_string(wSupplyStart + 2));
    EXPECT_EQ(frmResults.msgHydraulic.Rows(), NodeCount + 1);
    EXPECT_EQ(frmResults.msgHydraulic.Text(0, 3), "Hydraulic gradeline (m)");
    EXPECT_EQ(frmResults.msgHydraulic.Text(1, 3), "160.000"); // the level of the upstream reservoir
    EXPECT_EQ(frmResults.msgHydraulic.Text(1, 4), "10.000");
}

TEST_F(ResultsEventsTest, TheGraphOfRatesComesAndGoes)
{
    Analyse(GravityRecord());
    frmResults.sscIRR.Click();
    EXPECT_TRUE(frmIRRView.Visible);
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_EQ(frmIRRView.lblEndIRR.Caption.Get(), "200.00%");
    frmIRRView.hsbBegin.Value = 500;
    frmIRRView.hsbEnd.Value = 2500;
    frmIRRView.sscView.Click();
    EXPECT_EQ(LinesIn(frmIRRView.picIRR, Blue).size(), 2000U);
    frmIRRView.hsbEnd.Value = 500;
    frmIRRView.sscView.Click();
    EXPECT_EQ(LastMessage(), "The begin IRR value should be smaller than the end IRR value !");
    EXPECT_EQ(LinesIn(frmIRRView.picIRR, Blue).size(), 2000U);
    frmIRRView.sscOK.Click();
    EXPECT_TRUE(frmResults.Visible);
    EXPECT_FALSE(frmIRRView.IsLoaded());

    IrrDifference[1] = 1e12; // no axis goes as far
    Windows.Messages.clear();
    frmResults.sscIRR.Click();
    EXPECT_EQ(LastMessage(), "Could not show the Internal Rate of Return graph.");
    EXPECT_EQ(Windows.Messages.size(), 1U);
}

TEST_F(ResultsEventsTest, ThePumpCurveNeedsItsData)
{
    Analyse(PumpCurveRecord());
    frmResults.sscInput.Click();
    EXPECT_FALSE(frmResults.Visible);
    ViewPumpCurve();
    EXPECT_TRUE(frmPumpView.Visible);
    EXPECT_EQ(LinesIn(frmPumpView.picGraph, Blue).size(), 5U);
    EXPECT_EQ(LinesIn(frmPumpView.picGraph, PureGreen).size(), 5U);
    frmPumpView.sscOK.Click();
    EXPECT_TRUE(frmLCC.Visible);

    for (auto* Column : {&frmLCC.txtH, &frmLCC.txtQ, &frmLCC.txtEfficiency})
        for (TextBox& Each : *Column) Each.Text = "0";
    ViewPumpCurve();
    EXPECT_EQ(LastMessage(), "All the pump data cannot be zero !");
    frmLCC.txtH[2].Text = "";
    ViewPumpCurve();
    EXPECT_EQ(LastMessage(), "The pump curve data must be completed before it can be viewed.");
    frmLCC.txtH[2].Text = "80"; // the flows still have no range
    ViewPumpCurve();
    EXPECT_EQ(LastMessage(), "Could not show the pump curve.  Please check the pump data !");
    EXPECT_FALSE(frmPumpView.IsLoaded());
    EXPECT_TRUE(frmLCC.Visible);
}

} // namespace
} // namespace velorix
