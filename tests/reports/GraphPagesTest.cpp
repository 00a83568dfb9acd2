// Where picture, facts and legend stand on the graph pages. All lengths are millimetres.
#include "reports/GraphPages.h"

#include "analysis/AnalysisTest.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "platform/Printer.h"
#include "results/CurvePlots.h"
#include "results/IrrPlot.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "results/SupplyPlots.h"
#include "screens/Viewers.h"

#include <algorithm>

namespace velorix {
namespace {

// A text, or a symbol by its name.
struct Placed {
    double Left, Top, Right, Bottom;
    std::string Text;
    bool OfGraph;
};

void AddItems(std::vector<Placed>& All, const DisplayList& List, const PlacedDrawing& Place, bool OfGraph)
{
    const double Scale = Place.Height / List.Height / TwipsPerMillimetre;
    const double X = Place.X / TwipsPerMillimetre;
    const double Y = Place.Y / TwipsPerMillimetre;
    const auto Add = [&](const auto& Item, double Height, const std::string& Text) {
        All.push_back({X + Item.X * Scale, Y + Item.Y * Scale, X + (Item.X + Item.Width) * Scale,
                       Y + (Item.Y + Height) * Scale, Text, OfGraph});
    };
    for (const DisplayItem& Each : List.Items)
        if (const auto* Text = std::get_if<TextItem>(&Each))
            Add(*Text, FixedTextHeight(Text->Face), Text->Text);
        else if (const auto* Picture = std::get_if<PictureItem>(&Each))
            Add(*Picture, Picture->Height, Picture->Name);
}

// No text on another, be it the graph's, and none off the paper. The graph's own are its own affair.
void ExpectReadable(const std::vector<Placed>& Items, double PaperWidth)
{
    constexpr double Touch = 0.01;
    constexpr double Leading = 1.4; // white between the letters of two lines
    for (const Placed& One : Items) {
        EXPECT_LE(One.Right, PaperWidth) << One.Text;
        for (const Placed& Other : Items) {
            const double Across = std::min(One.Right, Other.Right) - std::max(One.Left, Other.Left);
            const double Down = std::min(One.Bottom, Other.Bottom) - std::max(One.Top, Other.Top);
            EXPECT_FALSE(&One != &Other && !One.OfGraph && Across > Touch && Down > Leading &&
                         !Other.Text.starts_with("imgCPP"))
                << One.Text << " on " << Other.Text;
        }
    }
}

class GraphPagesTest : public AnalysisTest {
protected:
    // An analysed project with every graph drawn as its screen opens.
    void DrawAll(const ProjectFields& Record)
    {
        Analyse(Record);
        FillCombos();
        frmResults.ssoDemandCapacity.Value = true;
        for (ProfileViewer* Each : std::initializer_list<ProfileViewer*>{&frmView, &frmViewRoughness}) {
            Each->LoadHidden();
            FillDistances(Each->comBegin, Each->comEnd);
        }
        DrawProfilePlot();
        DrawRoughnessProfilePlot();
        frmPumpView.LoadHidden();
        if (IsPumping()) DrawPumpCurve();
        OpenIrrGraphForPaper();
    }

    // Prints the page, which is one, and examines it.
    const PrintedPage& Print(void (*Page)())
    {
        Windows.Pages.clear();
        Page();
        EXPECT_EQ(Windows.Pages.size(), 1U);
        const PrintedPage& Result = Windows.Pages.back();
        Items.clear();
        AddItems(Items, Result.Print, {0, 0, 0, double(Result.Print.Height), {}}, false);
        std::vector<Placed> All = Items;
        AddItems(All, Result.Drawings.at(0).Drawn, Result.Drawings[0], true);
        ExpectReadable(All, Result.Print.Width / TwipsPerMillimetre);
        return Result;
    }

    const Placed* Find(const std::string& Text, std::size_t Behind = 0) const
    {
        for (const Placed& Each : Items)
            if (Each.Text.find(Text) != std::string::npos) return &Each + Behind;
        return nullptr;
    }
    std::string FactOf(const std::string& Caption) const
    {
        return Find(Caption) ? Find(Caption, 1)->Text : "";
    }

    std::vector<Placed> Items; // of the page printed last
};

TEST_F(GraphPagesTest, EachPictureStandsInItsPlaceUnderItsTitleAndHidesNothing)
{
    DrawAll(PumpCurveRecord());
    for (ComboBox* Each : {&frmResults.comEnd, &frmView.comEnd, &frmViewRoughness.comEnd})
        Each->List = std::vector<std::string>(Each->List.Get().size(), "128600.500");
    frmLCC.comFlowUnits.ListIndex = static_cast<int>(frmLCC.comFlowUnits.List.Get().size()) - 1;
    const struct {
        void (*Page)();
        const DrawingSurface& Surface;
        const char* Title;
        double X, Y, Width, Height;
    } Expected[] = {{PrintHydraulicGraph, frmResults.picHydraulic, "PROFILE PLOT:", 16, 115, 170, 90},
                    {PrintPumpCurveGraph, frmPumpView.picGraph, "PUMP CURVE:", 16, 100, 170, 90},
                    {PrintProfileGraph, frmView.picGraph, "PROFILE PLOT:", 50, 55, 215, 98},
                    {PrintRoughnessProfileGraph, frmViewRoughness.picGraph, "PROFILE PLOT:", 50, 55, 215, 98},
                    {PrintIrrGraph, frmIRRView.picIRR, "IRR GRAPH:", 50, 55, 190, 100},
                    {PrintSystemGraph, frmResults.picSystem, "Demand & Capacity", 10, 57, 97 * 17 / 9.0, 97}};
    for (int Case = 0; Case < 2 * std::ssize(Expected); ++Case) {
        const auto& [Page, Surface, Title, X, Y, Width, Height] = Expected[Case / 2];
        SCOPED_TRACE(Surface.ToolTip);
        FileName = std::string(Case % 2 == 0 ? 120 : 520, 'x'); // on two lines, on as many as there may be
        frmLCC.lblFileName.Caption = FileName;
        const PlacedDrawing Graph = Print(Page).Drawings[0];
        EXPECT_EQ(Graph.Drawn, Surface.Image());
        EXPECT_GT(Graph.Drawn.Items.size(), 20U);
        EXPECT_NEAR(Graph.X, X * TwipsPerMillimetre, 1);
        EXPECT_NEAR(Graph.Y, Y * TwipsPerMillimetre, 1);
        EXPECT_NEAR(Graph.Width, Width * TwipsPerMillimetre, 1);
        EXPECT_NEAR(Graph.Height, Height * TwipsPerMillimetre, 1);
        EXPECT_TRUE(Find(Title));
        EXPECT_GT(Find("The software program")->Top, Y + Height);
    }
}

// The facts are those of the picture, whatever the bar says since; the captions of a legend are the screen's.
TEST_F(GraphPagesTest, FactsAndLegendsFollowWhatIsDrawn)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        DrawAll(Record);
        Print(PrintSystemGraph);
        EXPECT_EQ(FactOf("Demand (Supplied + shortage") + FactOf("(l/s)"), ") (l/s)Yield (l/s)");
        frmResults.ssoIncomeExpenditure.Value = true;
        DrawIncomeExpenditure();
        Print(PrintSystemGraph);
        EXPECT_TRUE(Find("Income & Expenditure") && Find("Maintenance costs (R/year)"));
        EXPECT_EQ(Find("Energy costs") != nullptr, IsPumping());

        PlotYear = 4;
        DrawHydraulicPlot();
        PlotYear = 9;
        HideGradeline = 1; // leaves this legend
        Print(PrintHydraulicGraph);
        EXPECT_EQ(FactOf("End distance:"), frmResults.comEnd.List.Get().back() + " m");
        EXPECT_EQ("Flow rate: " + FactOf("Flow rate:"), frmResults.lblMaxFlow.Caption.Get());
        ASSERT_TRUE(Find("Year: 2006") && Find("imgCPP(5)") && Find("- Pumpstation"));
        EXPECT_EQ(Find("Year: 2006")->Top, Find(IsPumping() ? "Pumping head:" : "Flow rate:")->Top);

        KsYear[1] = 0.00015; // m
        for (const std::int16_t Hidden : {0, 1}) {
            HideGradeline = wUnits = Hidden;
            Print(PrintProfileGraph);
            EXPECT_EQ(FactOf("Absolute roughness:"), Hidden ? "" : "0.150 mm");
            for (const char* Each : {"Year: 2003", "Flow rate:", "Hydraulic", "gradeline"})
                EXPECT_EQ(Find(Each) == nullptr, Hidden == 1) << Each;
            EXPECT_TRUE(Find("LEGEND:") && Find("Pipeline"));
        }
        HideGradeline = 0;
        Print(PrintRoughnessProfileGraph);
        EXPECT_EQ(FactOf("Absolute roughness:"), "0.006 ''");
    }
}

// Amounts that span more than the axis has steps for leave out what is far from the rate of return.
TEST_F(GraphPagesTest, TheGraphOfRatesShowsTheReturnWithWhatFits)
{
    for (const double Times : {0.01, 1.0, 10.0}) { // the tariff; all fits the first
        ProjectFields Record = GravityRecord();
        Record.WaterSales = Times * Record.WaterSales;
        DrawAll(Record);
        EXPECT_FALSE(Print(PrintIrrGraph).Drawings[0].Drawn.Items.empty());
        EXPECT_EQ(FactOf("Begin IRR:") + FactOf("End IRR:") == "0 %200 %", Times < 1);
        EXPECT_TRUE(frmIRRView.hsbBegin.Value <= 100 * Irr && 100 * Irr <= frmIRRView.hsbEnd.Value);
    }
}

} // namespace
} // namespace velorix
