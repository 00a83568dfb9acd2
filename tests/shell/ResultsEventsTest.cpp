// The results screen and the viewers, by what their surfaces, labels and tables hold.
#include "ShellTest.h"
#include "cost/CostResults.h"
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
    static std::ptrdiff_t LinesIn(const DrawingSurface& Surface, Color Ink)
    {
        const auto& Items = Surface.Image().Items;
        return std::count_if(Items.begin(), Items.end(), [Ink](const DisplayItem& Each) {
            const auto* const Line = std::get_if<LineItem>(&Each);
            return Line && Line->Ink == Ink;
        });
    }

    static std::string LastText(const DrawingSurface& Surface)
    {
        std::string Text;
        for (const DisplayItem& Each : Surface.Image().Items)
            if (const auto* const Item = std::get_if<TextItem>(&Each)) Text = Item->Text;
        return Text;
    }
};

TEST_F(ResultsEventsTest, TheHydraulicPlotFollowsItsCommandsAndTheYearItsBar)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        Analyse(Record);
        const DrawingSurface& Plot = frmResults.picHydraulic;
        EXPECT_EQ(LastText(Plot), "Accumulated length ( m )");
        EXPECT_EQ(LinesIn(Plot, Blue), NodeCount - (IsPumping() ? 0 : 1)); // with the riser at the station
        EXPECT_EQ(frmResults.lblPumping.Caption.Get().starts_with("Pumping head: "), IsPumping());

        const DisplayList Before = Plot.Image();
        frmResults.hscYears.Value = 15;
        EXPECT_EQ(frmResults.lblYear.Caption.Get(), std::to_string(wSupplyStart + 14));
        EXPECT_EQ(Plot.Image(), Before);
        frmResults.sscChangeView.Click();
        EXPECT_NE(Plot.Image(), Before);
        frmResults.chkGradeline.Value = false;
        EXPECT_EQ(LinesIn(Plot, Blue), 0);
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
    EXPECT_EQ(LinesIn(frmResults.picHydraulic, Rgb(0, 64, 0)), 3);
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
    EXPECT_EQ(frmResults.msgDuty.Rows(), wLife + 2);
    frmResults.hscDuty.Value = 4;
    EXPECT_EQ(AnalysisYear, 4);
    EXPECT_EQ(frmResults.lblDutyYear.Caption.Get(), "Year " + std::to_string(wSupplyStart + 3));
    frmResults.sscView.Click();
    EXPECT_EQ(ResultsFrame, Scale);
}

// The same screen shows water and money, each with its plot, its legend and its table.
TEST_F(ResultsEventsTest, TheSystemPlotHasItsTable)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        Analyse(Record);
        const DisplayList Water = frmResults.picSystem.Image();
        EXPECT_EQ(frmResults.lblYield.Caption.Get(), "Yield (l/s)");
        frmResults.sscViewTable.Click();
        EXPECT_EQ(frmResults.msgSystem.Cols(), IsPumping() ? 5 : 4);
        EXPECT_EQ(frmResults.msgSystem.Text(2, 0), std::to_string(wSupplyStart));

        frmResults.ssoIncomeExpenditure.Value = true;
        EXPECT_NE(frmResults.picSystem.Image(), Water);
        EXPECT_EQ(frmResults.picEnergyColor.Visible, IsPumping());
        frmResults.sscViewTable.Click();
        EXPECT_EQ(frmResults.msgSystem.Rows(), wSupplyStart - wBaseYear + wLife + 2);
        EXPECT_EQ(frmResults.msgSystem.Cols(), IsPumping() ? 7 : 6);
        EXPECT_EQ(frmResults.msgSystem.Text(2, 1), "0") << "no income while it is being built";
        EXPECT_NE(frmResults.msgSystem.Text(2, 3), "0");
        frmResults.ssoDemandCapacity.Value = true;
        EXPECT_EQ(frmResults.picSystem.Image(), Water);
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
    PlotYear = 1; // which all profile plots share
    HideGradeline = 1;
    MDIProject.mnuResults.Click();
    frmResults.sscViewHydraulicTable.Click();
    EXPECT_EQ(frmResults.lblYear1.Caption.Get(), "Year: " + std::to_string(wSupplyStart));
    EXPECT_TRUE(frmResults.hscYears.Value == 1 && !frmResults.chkGradeline.Value);
}

TEST_F(ResultsEventsTest, TheGraphOfRatesComesAndGoes)
{
    Analyse(GravityRecord());
    frmResults.sscIRR.Click();
    EXPECT_EQ(Shown(), std::set<std::string>{"frmIRRView"});
    EXPECT_EQ(frmIRRView.lblEndIRR.Caption.Get(), "200.00%");
    frmIRRView.hsbBegin.Value = 500;
    frmIRRView.hsbEnd.Value = 2500;
    frmIRRView.sscView.Click();
    EXPECT_EQ(LinesIn(frmIRRView.picIRR, Blue), 2000);
    frmIRRView.hsbEnd.Value = 500;
    frmIRRView.sscView.Click();
    EXPECT_EQ(LastMessage(), "The begin IRR value should be smaller than the end IRR value !");
    EXPECT_EQ(LinesIn(frmIRRView.picIRR, Blue), 2000);
    frmIRRView.sscOK.Click();
    EXPECT_EQ(Shown(), std::set<std::string>{"frmResults"});

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
    EXPECT_EQ(LinesIn(frmPumpView.picGraph, Blue), 5);
    EXPECT_EQ(LinesIn(frmPumpView.picGraph, PureGreen), 5);
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
