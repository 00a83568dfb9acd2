// One drawing for the three places of the profile plot.
#include "results/ProfilePlot.h"

#include "base/Arithmetic.h"
#include "base/Text.h"
#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "results/ChartPen.h"
#include "results/FlowCaptions.h"
#include "results/PlotState.h"
#include "results/ScenarioLines.h"
#include "screens/Lcc.h"
#include "screens/Pictures.h"
#include "screens/Results.h"
#include "screens/Viewers.h"

#include <algorithm>
#include <array>
#include <optional>

namespace velorix {
namespace {

// What differs between the three places.
struct PlotPlace {
    DrawingSurface& Surface;
    ComboBox& Begin;
    ComboBox& End;
    Label& FlowCaption;
    Label& HeadCaption;
    std::int16_t& YearDrawn;
    int YTitleTop;
    std::string LengthUnit; // as the x title shows it
    void (*StoreFrame)(const ChartFrame&);
};

struct NodeRange {
    int First;
    int Last;
};

// The nodes chosen in the lists; nothing when they make no range, which the user is told.
std::optional<NodeRange> ChosenRange(const PlotPlace& Place)
{
    const NodeRange Chosen{Place.Begin.ListIndex + 1, Place.End.ListIndex + 1};
    if (Ordered(Chainage[Chosen.First]) < Ordered(Chainage[Chosen.Last])) return Chosen;
    Warn("The begin distance should be less than the end distance !", "Velorix ERROR !");
    return std::nullopt;
}

// The gradeline raises the range by the points of the nodes less one, and never lowers it.
DataRange LevelsOf(NodeRange Nodes)
{
    DataRange Levels{GroundLevel[Nodes.First], GroundLevel[Nodes.First]};
    for (int i = Nodes.First; i <= Nodes.Last; ++i) Levels.Take(GroundLevel[i]);
    if (HideGradeline == 0)
        for (int i = Nodes.First; i <= Nodes.Last; ++i)
            Levels.Most = std::max<double>(Levels.Most, Ordered(Gradeline(i - 1, PlotYear)));
    return Levels;
}

// A reservoir stands on its ground point, at the first node of the project on the side away from the line.
// The others lie over the point, an air valve on top of it.
void DrawSymbol(DrawingSurface& Surface, int Node, int x, int y)
{
    const auto Draw = [&](int Picture, auto Place) {
        const StoredPicture& Symbol = imgCPP.at(static_cast<std::size_t>(Picture - 1));
        const auto [Left, Top] = Place(Symbol.Width, Symbol.Height);
        Surface.DrawPicture(Symbol, Left, Top);
    };
    using Corner = std::pair<int, int>;
    const auto Standing = [&](int w, int h) { return Corner(Node == 1 ? x - w : x, y - h); };
    const auto Over = [&](int w, int h) { return Corner(x - w / 2, y - h / 2); };
    const auto OnTop = [&](int w, int h) { return Corner(x - w / 2, y - h); };
    switch (wNodeDesc[Node]) {
    case 1: return Draw(4, Standing);
    case 2: return Draw(5, Over);
    case 3: return Draw(3, Over);
    case 4: return Draw(2, Over);
    case 5: return Draw(1, OnTop);
    default: return;
    }
}

void DrawSymbols(Chart& Plot, NodeRange Nodes)
{
    for (int i = Nodes.First; i <= Nodes.Last; ++i)
        DrawSymbol(Plot.Surface, i, Plot.Frame.X(Chainage[i]), Plot.Frame.Y(GroundLevel[i]));
}

void DrawGround(Chart& Plot, NodeRange Nodes)
{
    TakePen(Plot.Surface, GroundInk);
    DrawCurve(
        Plot.Surface, Nodes.First, Nodes.Last, [&](int i) { return Plot.Frame.X(Chainage[i]); },
        [&](int i) { return Plot.Frame.Y(GroundLevel[i]); });
}

void DrawTitles(Chart& Plot, const PlotPlace& Place)
{
    Plot.Surface.SetFontSize(10);
    Plot.Surface.SetFontBold(false);
    DrawXTitle(Plot, "Accumulated length " + Place.LengthUnit);
    constexpr std::array Titles = {&imgM, &imgKm, &imgFt, &imgMiles};
    if (wElevationUnits >= 0 && wElevationUnits < static_cast<int>(Titles.size()))
        Plot.Surface.DrawPicture(*Titles.at(static_cast<std::size_t>(wElevationUnits)), YTitleLeft,
                                 Place.YTitleTop);
}

void DrawGradeline(Chart& Plot, NodeRange Nodes)
{
    if (HideGradeline != 0) return;
    TakePen(Plot.Surface, GradelineInk);
    DrawCurve(
        Plot.Surface, Nodes.First, Nodes.Last, [&](int i) { return Plot.Frame.X(Chainage[i]); },
        [&](int i) { return Plot.Frame.Y(Gradeline(GradelinePoint(i), PlotYear)); });
}

// The riser at the pump station, from the ground up to the head of the first row.
void DrawLift(Chart& Plot, NodeRange Nodes)
{
    if (HideGradeline != 0 || Nodes.First != 1 || !IsPumping()) return;
    TakePen(Plot.Surface, GradelineInk);
    const int x = Plot.Frame.X(Chainage[1]);
    Plot.Surface.Line(x, Plot.Frame.Y(GroundLevel[1]), x, Plot.Frame.Y(Gradeline(1, PlotYear)));
}

// Frame, symbols, ground and axes; each layer paints over the one before it.
void DrawProfile(Chart& Plot, const PlotPlace& Place, NodeRange Nodes, bool Symbols)
{
    StartChart(Plot);
    SetXTicks(Plot, Chainage[Nodes.First], Chainage[Nodes.Last]);
    SetYTicks(Plot, LevelsOf(Nodes));
    Plot.Frame.SetAxes(Plot.X, Plot.Y);
    Place.StoreFrame(Plot.Frame);

    if (Symbols) DrawSymbols(Plot, Nodes);
    StartGrid(Plot);
    DrawHorizontalGrid(Plot);
    DrawVerticalGrid(Plot);
    DrawGround(Plot, Nodes);
    DrawAxes(Plot);
    DrawYLabels(Plot);
    DrawXLabels(Plot, Chainage[Nodes.Last]);
    DrawTitles(Plot, Place);
}

void ShowCaptions(const PlotPlace& Place)
{
    const FlowFacts Facts = FactsOfYear(PlotYear);
    Place.FlowCaption.Caption = Facts.Flow.empty() ? Facts.Flow : "Flow rate: " + Facts.Flow;
    Place.HeadCaption.Caption = Facts.Head.empty() ? Facts.Head : "Pumping head: " + Facts.Head;
}

// The whole drawing; Overlay comes upon the gradeline. A viewer of the input stops after the axes when the
// hydraulics has failed, once.
template <typename LastLayer>
void DrawOn(const PlotPlace& Place, bool Symbols, bool StopsWhenFailed, LastLayer Overlay)
{
    const std::optional<NodeRange> Nodes = ChosenRange(Place);
    if (!Nodes) return;
    Chart Plot{Place.Surface, ProfilePlot};
    Place.YearDrawn = PlotYear;
    DrawProfile(Plot, Place, *Nodes, Symbols);
    if (StopsWhenFailed && HydraulicsFailed == 1) {
        HydraulicsFailed = 0;
        return;
    }
    DrawGradeline(Plot, *Nodes);
    Overlay(Plot, *Nodes);
    DrawLift(Plot, *Nodes);
    ShowCaptions(Place);
}

// What the viewers of the input show above their plot. False when a list has no entry chosen, which the user
// is told; the lists then span the whole profile.
bool ViewerIsReady(ProfileViewer& Viewer)
{
    const std::string Roughness = FigureText(KsYear[PlotYear] / KsNewFactor(), "#0.00000");
    Viewer.lblKs.Caption =
        Roughness.empty() ? "" : "Roughness: " + Roughness + " " + Trim(frmLCC.comKsNewUnits.Text());
    if (Viewer.comBegin.ListIndex >= 0 && Viewer.comEnd.ListIndex >= 0) return true;
    Warn("Select distance values from the list !", "Velorix ERROR !");
    Viewer.comBegin.ListIndex = 0;
    Viewer.comEnd.ListIndex = NodeCount - 1;
    return false;
}

template <typename LastLayer>
void DrawInViewer(ProfileViewer& Viewer, Label& FlowCaption, std::int16_t& YearDrawn, LastLayer Overlay)
{
    Stands([&] { // a fault ends the drawing and nothing else
        TakeProfileForPlot();
        if (!ViewerIsReady(Viewer)) return;
        const PlotPlace Place{Viewer.picGraph,
                              Viewer.comBegin,
                              Viewer.comEnd,
                              FlowCaption,
                              Viewer.lblPumping,
                              YearDrawn,
                              2300,
                              "(" + LengthUnit() + ")",
                              [](const ChartFrame& Frame) { ProfileFrame = Frame; }};
        DrawOn(Place, true, true, Overlay);
    });
}

// The measured gradelines of the ticked scenarios, as far as their rows lie in the range; a circle marks the
// end of each stretch.
void DrawScenarios(Chart& Plot, NodeRange Nodes)
{
    constexpr int CircleRadius = 50;
    for (int s = 1; s <= MaxScenarios; ++s) {
        if (!frmViewRoughness.chkScenario[s - 1].Value) continue;
        const Color Ink = frmViewRoughness.linScenario[s - 1].BackColor;
        for (int j = 1; j <= MaxStretches; ++j) {
            if (StretchValid[s][j] == 0) continue;
            const int First = std::max<int>(StretchStart[s][j], Nodes.First);
            const int Last = std::min<int>(StretchEnd[s][j], Nodes.Last);
            TakePen(Plot.Surface, Ink);
            Plot.Surface.SetDrawWidth(2);
            const auto X = [&](int k) { return Plot.Frame.X(Chainage[k]); };
            const auto Y = [&](int k) { return Plot.Frame.Y(MeasuredGradeline[s][j][k]); };
            DrawCurve(Plot.Surface, First, Last, X, Y);
            const int End = StretchEnd[s][j];
            if (End >= Nodes.First && End <= Nodes.Last)
                Plot.Surface.Circle(X(End), Y(End), CircleRadius, Ink);
        }
    }
}

void NoOverlay(Chart&, NodeRange) {}

} // namespace

void DrawHydraulicPlot()
{
    Stands([] { // a fault ends the drawing and nothing else
        TakeProfileForPlot();
        frmResults.hscYears.Max = wLife;
        const PlotPlace Place{frmResults.picHydraulic,
                              frmResults.comBegin,
                              frmResults.comEnd,
                              frmResults.lblMaxFlow,
                              frmResults.lblPumping,
                              HydraulicYearDrawn,
                              1800,
                              "( " + LengthUnit() + " )",
                              [](const ChartFrame& Frame) {
                                  ResultsFrame = Frame;
                                  HydraulicOrigin = Frame;
                              }};
        DrawOn(Place, HideComponents == 0, false, NoOverlay);
    });
}

void DrawProfilePlot()
{
    DrawInViewer(frmView, frmView.lblFlowrate, ProfileYearDrawn, NoOverlay);
}

void DrawRoughnessProfilePlot()
{
    DrawInViewer(frmViewRoughness, frmViewRoughness.lblMaxFlow, RoughnessYearDrawn, DrawScenarios);
}

} // namespace velorix
