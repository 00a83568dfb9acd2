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

// What stands on a page, with the graph's texts where they come to lie.
struct Placed {
    double Left, Top, Right, Bottom;
    std::string Text; // or the name of a picture
    Font Face;
};

void AddItems(std::vector<Placed>& All, const DisplayList& List, double X, double Y, double Scale)
{
    const auto Add = [&](double Left, double Top, double Width, double Height, const std::string& Text,
                         const Font& Face) {
        All.push_back({X + Left * Scale, Y + Top * Scale, X + (Left + Width) * Scale,
                       Y + (Top + Height) * Scale, Text, Face});
    };
    for (const DisplayItem& Each : List.Items) {
        if (const auto* Text = std::get_if<TextItem>(&Each))
            Add(Text->X, Text->Y, Text->Width, FixedTextHeight(Text->Face), Text->Text, Text->Face);
        if (const auto* Picture = std::get_if<PictureItem>(&Each))
            Add(Picture->X, Picture->Y, Picture->Width, Picture->Height, Picture->Name, {});
    }
}

std::vector<Placed> Print(const PrintedPage& Page)
{
    std::vector<Placed> All;
    AddItems(All, Page.Print, 0, 0, 1 / TwipsPerMillimetre);
    return All;
}

class GraphPagesTest : public AnalysisTest {
protected:
    // An analysed project with every graph drawn as its screen opens.
    void DrawAll(const ProjectFields& Record)
    {
        Analyse(Record);
        FillCombos();
        frmLCC.lblFileName.Caption = "sample.vlx";
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

    // The page's own items; nothing when it isn't one page.
    std::vector<Placed> Printed(void (*Page)())
    {
        Windows.Pages.clear();
        Page();
        EXPECT_EQ(Windows.Pages.size(), 1U);
        return Print(Windows.Pages.back());
    }

    static const Placed* Find(const std::vector<Placed>& All, const std::string& Text)
    {
        const auto Found = std::find_if(All.begin(), All.end(), [&](const Placed& Each) {
            return Each.Text.find(Text) != std::string::npos;
        });
        return Found == All.end() ? nullptr : &*Found;
    }

    // The text behind it on its line.
    static std::string Behind(const std::vector<Placed>& All, const std::string& Caption)
    {
        const Placed* const Found = Find(All, Caption);
        return Found ? (Found + 1)->Text : "nowhere";
    }
};

constexpr void (*Pages[])() = {PrintHydraulicGraph,        PrintPumpCurveGraph, PrintProfileGraph,
                               PrintRoughnessProfileGraph, PrintIrrGraph,       PrintSystemGraph};

TEST_F(GraphPagesTest, EachPictureStandsInItsPlaceUnderItsTitle)
{
    DrawAll(PumpCurveRecord());
    const struct {
        const DrawingSurface& Surface;
        const char* Title;
        bool Upright;
        double X, Y, Width, Height;
    } Expected[] = {
        {frmResults.picHydraulic, "PROFILE PLOT:", true, 16, 115, 170, 90},
        {frmPumpView.picGraph, "PUMP CURVE:", true, 16, 100, 170, 90},
        {frmView.picGraph, "PROFILE PLOT:", false, 50, 55, 215, 98},
        {frmViewRoughness.picGraph, "PROFILE PLOT:", false, 50, 55, 215, 98},
        {frmIRRView.picIRR, "IRR GRAPH:", false, 50, 55, 190, 100},
        {frmResults.picSystem, "System Analysis: Demand & Capacity", false, 10, 57, 97 * 17 / 9.0, 97}};
    std::size_t Index = 0;
    for (const auto& [Surface, Title, Upright, X, Y, Width, Height] : Expected) {
        SCOPED_TRACE(Index);
        const auto Items = Printed(Pages[Index++]);
        const PrintedPage& Page = Windows.Pages.back();
        EXPECT_EQ(Page.Print.Width < Page.Print.Height, Upright);
        ASSERT_EQ(Page.Drawings.size(), 1U);
        EXPECT_EQ(Page.Drawings[0].Drawn, Surface.Image());
        EXPECT_GT(Surface.Image().Items.size(), 20U);
        EXPECT_DOUBLE_EQ(Page.Drawings[0].X, X * TwipsPerMillimetre);
        EXPECT_DOUBLE_EQ(Page.Drawings[0].Y, Y * TwipsPerMillimetre);
        EXPECT_NEAR(Page.Drawings[0].Width, Width * TwipsPerMillimetre, 1);
        EXPECT_NEAR(Page.Drawings[0].Height, Height * TwipsPerMillimetre, 1);
        const Placed* const Found = Find(Items, Title);
        ASSERT_TRUE(Found);
        EXPECT_TRUE(Found->Face.Bold && Found->Face.Size == 13);
        EXPECT_GT(Find(Items, "The software program")->Top, Y + Height);
    }
}

// No text on another, be it of the graph, on a symbol or off the paper: with long names, lengths and units.
TEST_F(GraphPagesTest, NothingOnAPageHidesAText)
{
    for (ProjectFields Record : {GravityRecord(), PumpCurveRecord()}) {
        SetProfile(Record, 12, 120, 190, 128600.5);
        SetText(Record.Project, "A main of some length for the regional scheme");
        DrawAll(Record);
        frmLCC.comVaryingDemandUnits.ListIndex = frmLCC.comGFlowrateUnits.ListIndex =
            frmLCC.comFlowUnits.ListIndex = static_cast<int>(frmLCC.comFlowUnits.List.Get().size()) - 1;
        for (const std::size_t NameLength : {20, 130}) {
            frmLCC.lblFileName.Caption = std::string(NameLength, 'x');
            for (int Index = 0; Index < 7; ++Index) {
                if (Index == 6) DrawIncomeExpenditure(), frmResults.ssoIncomeExpenditure.Value = true;
                std::vector<Placed> Items = Printed(Pages[std::min(Index, 5)]);
                const PrintedPage& Page = Windows.Pages.back();
                const PlacedDrawing& Graph = Page.Drawings[0];
                const double Scale = Graph.Height / Graph.Drawn.Height / TwipsPerMillimetre;
                AddItems(Items, Graph.Drawn, Graph.X / TwipsPerMillimetre, Graph.Y / TwipsPerMillimetre,
                         Scale);
                for (const Placed& One : Items) {
                    if (One.Text.starts_with("img")) continue; // symbols lie on labels of the graph
                    EXPECT_LE(One.Right, Page.Print.Width / TwipsPerMillimetre) << One.Text;
                    for (const Placed& Other : Items) {
                        constexpr double Leading = 0.7; // white above and below the letters of a line
                        const bool GraphsOwn = &Other - Items.data() > &One - Items.data() &&
                                               Other.Face.Name.empty() && One.Face.Name.empty();
                        if (&One == &Other || GraphsOwn || Other.Text.starts_with("imgCPP")) continue;
                        EXPECT_FALSE(One.Left < Other.Right && Other.Left < One.Right &&
                                     One.Top + Leading < Other.Bottom - Leading &&
                                     Other.Top + Leading < One.Bottom - Leading)
                            << Index << ": " << One.Text << " on " << Other.Text;
                    }
                }
            }
        }
        frmResults.ssoDemandCapacity.Value = true;
    }
}

// The facts are those of the picture, whatever the bar says since. By hand: the distances of the sample's
// ends.
TEST_F(GraphPagesTest, TheHydraulicPageTellsTheYearThatIsDrawn)
{
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        DrawAll(Record);
        PlotYear = 4;
        DrawHydraulicPlot();
        PlotYear = 9;
        HideGradeline = 1; // changes nothing in the legend
        const auto Items = Printed(PrintHydraulicGraph);
        EXPECT_EQ(Behind(Items, "Begin distance:"), "0.000 m");
        EXPECT_EQ(Behind(Items, "End distance:"), frmResults.comEnd.List.Get().back() + " m");
        EXPECT_EQ("Flow rate: " + Behind(Items, "Flow rate:"), frmResults.lblMaxFlow.Caption.Get());
        const Placed* const Year = Find(Items, "Year: 2006");
        ASSERT_TRUE(Year);
        EXPECT_EQ(Year->Top, Find(Items, IsPumping() ? "Pumping head:" : "Flow rate:")->Top);
        EXPECT_EQ(Find(Items, "Pumping head:") != nullptr, IsPumping());
        const double Left[] = {15, 65, 115, 15, 65};
        for (int Symbol = 1; Symbol <= 5; ++Symbol) {
            const Placed* const Found = Find(Items, "imgCPP(" + std::to_string(Symbol) + ")");
            ASSERT_TRUE(Found);
            EXPECT_NEAR(Found->Left, Left[Symbol - 1], 0.01);
            EXPECT_NEAR(Found->Top, Symbol <= 3 ? 206 : 213, 0.01);
        }
    }
}

TEST_F(GraphPagesTest, TheProfilePageDropsWhatTellsOfAHiddenGradeline)
{
    DrawAll(GravityRecord());
    KsYear[1] = 0.00015; // m
    auto Items = Printed(PrintProfileGraph);
    EXPECT_EQ(Behind(Items, "Absolute roughness:"), "0.150 mm");
    EXPECT_TRUE(Find(Items, "Year: 2003") && Find(Items, "Hydraulic") && Find(Items, "gradeline"));
    EXPECT_LT(Find(Items, "Year: 2003")->Right, 50);
    const double Legend = Find(Items, "LEGEND:")->Top;
    EXPECT_NEAR(Legend, 102, 0.01);
    wUnits = 1;
    EXPECT_EQ(Behind(Printed(PrintRoughnessProfileGraph), "Absolute roughness:"), "0.006 ''");

    HideGradeline = 1;
    Items = Printed(PrintProfileGraph);
    for (const char* Each : {"Absolute roughness:", "Year: 2003", "Flow rate:", "Hydraulic", "gradeline"})
        EXPECT_FALSE(Find(Items, Each)) << Each;
    EXPECT_TRUE(Find(Items, "Pipeline"));
    EXPECT_NEAR(Find(Items, "LEGEND:")->Top, Legend, 0.01);
}

// The captions are the screen's own; a gravity system has no energy.
TEST_F(GraphPagesTest, TheLegendOfASystemGraphFollowsTheOption)
{
    constexpr Color Violet = Rgb(255, 10, 240);
    for (const ProjectFields& Record : {GravityRecord(), PumpCurveRecord()}) {
        DrawAll(Record);
        auto Items = Printed(PrintSystemGraph);
        EXPECT_EQ(Behind(Items, "Demand (Supplied + shortage"), ") (l/s)");
        EXPECT_TRUE(Find(Items, "Yield (l/s)"));
        frmResults.ssoIncomeExpenditure.Value = true;
        DrawIncomeExpenditure();
        Items = Printed(PrintSystemGraph);
        EXPECT_TRUE(Find(Items, "System Analysis: Income & Expenditure"));
        for (const char* Each :
             {"Income (R/year)", "Capital expenditure (R/year)", "Maintenance costs", "Operational costs"})
            EXPECT_TRUE(Find(Items, Each)) << Each;
        EXPECT_EQ(Find(Items, "Energy costs") != nullptr, IsPumping());
        std::vector<std::pair<int, int>> Boxes;
        bool Energy = false;
        for (const DisplayItem& Each : Windows.Pages.back().Print.Items)
            if (const auto* Box = std::get_if<BoxItem>(&Each)) {
                Boxes.emplace_back(Box->X1, Box->Y1);
                Energy = Energy || Box->Fill == Violet;
            }
        std::vector<std::pair<int, int>> Expected = {{1701, 8787}, {5669, 8787}, {9638, 8787}, {1701, 9071}};
        if (IsPumping()) Expected.emplace_back(5669, 9071); // twips of 100, 160
        EXPECT_EQ(Boxes, Expected);
        EXPECT_EQ(Energy, IsPumping());
        frmResults.ssoDemandCapacity.Value = true;
    }
}

// Amounts that span more than the axis has steps for leave out what is far from the rate of return, and the
// facts say so.
TEST_F(GraphPagesTest, TheGraphOfRatesShowsTheReturnWithWhatFits)
{
    const std::pair<double, bool> Cases[] = {
        {0.01, true}, {1, false}, {10, false}}; // factor, whether all fits
    for (const auto& [Times, All] : Cases) {
        ProjectFields Record = GravityRecord();
        Record.WaterSales = Times * Record.WaterSales;
        DrawAll(Record);
        const auto Items = Printed(PrintIrrGraph);
        EXPECT_EQ(Behind(Items, "Begin IRR:") == "0 %" && Behind(Items, "End IRR:") == "200 %", All);
        EXPECT_LE(frmIRRView.hsbBegin.Value, 100 * Irr);
        EXPECT_GE(frmIRRView.hsbEnd.Value, 100 * Irr);
        EXPECT_FALSE(Windows.Pages.back().Drawings[0].Drawn.Items.empty());
        EXPECT_EQ(LastMessage().find("Could not show"), std::string::npos);
        EXPECT_TRUE(Behind(Items, "Calculated IRR:").ends_with(" %"));
    }
}

} // namespace
} // namespace velorix
