// Plots drawn from the command line: what stands on them against the figures of the analysis, the formats,
// and what is told in place of a picture.
#include "BatchTest.h"
#include "batch/Plots.h"

#include <cmath>

namespace velorix {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;
using Numbers = std::vector<double>;

struct Points {
    Numbers X, Y;
    void Add(double x, double y) { X.push_back(x), Y.push_back(y); }
};

// What was drawn, read back in the units of its axes: by the labels at the left and the ticks that belong to
// them, and by those below.
class Sheet {
public:
    explicit Sheet(const std::string& Bytes)
        : Drawn(json::parse(Bytes))
    {
        Points Left;
        Points Below;
        Numbers Ticks;
        for (const json& Each : Drawn["items"])
            if (Each["kind"] == "line" && Each["dashed"] && Each["x1"] == Each["x2"])
                Ticks.push_back(Each["x1"]);
        for (const json& Each : Drawn["items"]) {
            if (Each["kind"] != "text" || Each["size"] != 8.0) continue;
            const std::string Text = Each["text"];
            if (Text.back() == '%') continue; // of the second axis
            const double Value = std::atof(Text.c_str());
            if (Each["x"] == 300 || Each["x"] == 100 || Each["x"] == 500)
                Left.Add(Value, Each["y"].get<double>() + 85);
            else if (Below.X.size() < Ticks.size())
                Below.Add(Value, Ticks[Below.X.size()]);
        }
        Y = AxisOf(Left);
        X = AxisOf(Below);
        StepX = 1.01 * std::fabs(X.PerTwip);
        StepY = 1.01 * std::fabs(Y.PerTwip);
    }

    // The curve or curves of that colour.
    Points Curve(const std::string& Color) const
    {
        Points Found;
        for (const json& Each : Drawn["items"]) {
            if (Each["kind"] != "line" || Each["color"] != Color) continue;
            if (Found.X.empty()) Found.Add(X.Value(Each["x1"]), Y.Value(Each["y1"]));
            Found.Add(X.Value(Each["x2"]), Y.Value(Each["y2"]));
        }
        return Found;
    }

    // What the bars of that colour reach to.
    Numbers Bars(const std::string& Color) const
    {
        Numbers Found;
        for (const json& Each : Drawn["items"])
            if (Each["kind"] == "box" && Each["color"] == Color) Found.push_back(Y.Value(Each["y2"]));
        return Found;
    }

    double StepX = 0; // a twip, and a little more
    double StepY = 0;

private:
    struct Axis {
        double Origin = 0;
        double PerTwip = 0;
        double Value(double Place) const { return Origin + Place * PerTwip; }
    };

    // From labels and their places.
    static Axis AxisOf(const Points& Labels)
    {
        if (Labels.X.size() < 2) return {};
        const double PerTwip = (Labels.X.back() - Labels.X.front()) / (Labels.Y.back() - Labels.Y.front());
        return {Labels.X.front() - Labels.Y.front() * PerTwip, PerTwip};
    }

    json Drawn;
    Axis X;
    Axis Y;
};

class PlotTest : public BatchTest {
protected:
    Sheet SheetOf(const std::string& Words) const
    {
        const Run Drawn = Batch("plot " + Words + " --format json --out -");
        EXPECT_EQ(Drawn.Status, 0) << Words << "\n" << Drawn.Errors;
        return Sheet(Drawn.Output);
    }
};

void ExpectNear(const Numbers& Drawn, const Numbers& Figures, double Within)
{
    ASSERT_EQ(Drawn.size(), Figures.size());
    for (std::size_t i = 0; i < Drawn.size(); ++i) EXPECT_NEAR(Drawn[i], Figures[i], Within) << "entry " << i;
}

// The level of the curve of x, between its points.
double At(const Numbers& X, const Numbers& Y, double x)
{
    for (std::size_t i = 1; i < X.size(); ++i)
        if ((X[i - 1] - x) * (X[i] - x) <= 0 && X[i - 1] != X[i])
            return Y[i - 1] + (Y[i] - Y[i - 1]) * (x - X[i - 1]) / (X[i] - X[i - 1]);
    return NAN;
}

class EachPlot : public OfEachExample<PlotTest> {
protected:
    const json Figures = json::parse(Batch("analyse --json - " + File).Output);
    const int Life = Project["Life"];
    const int Construction = Project["SupplyStart"].get<int>() - Project["BaseYear"].get<int>();

    double Of(const char* Series, int Year) const
    {
        return Figures[Series][static_cast<std::size_t>(Year - 1)];
    }
};

// Node by node, for the first and the last year: the gradeline of a gravity main at the point before the
// node, that of a pumping main at the node itself, with the riser at the station.
TEST_P(EachPlot, ProfilesShowGroundAndGradeline)
{
    const Numbers Ground = Project["Elevation"];
    for (const char* Name : {"profile", "hydraulic"})
        for (const int Year : {1, Life}) {
            Numbers Gradeline = Figures["Gradeline"][static_cast<std::size_t>(Year - 1)];
            if (Pumping) {
                Gradeline.erase(Gradeline.begin());
                Gradeline.push_back(Gradeline.front());
            } else
                Gradeline.pop_back();
            const Sheet Drawn = SheetOf(File + " " + Name + " --year " + std::to_string(Year));
            ExpectNear(Drawn.Curve("#004000").Y, Ground, Drawn.StepY);
            ExpectNear(Drawn.Curve("#004000").X, Project["AccLength"], Drawn.StepX);
            ExpectNear(Drawn.Curve("#0000ff").Y, Gradeline, Drawn.StepY);
        }
}

TEST_P(EachPlot, BarsReachTheFiguresOfTheirYears)
{
    const Sheet Demand = SheetOf(File + " demand");
    const Sheet Income = SheetOf(File + " income");
    const json& Varying = Project["Demand"];
    const double Hours = Pumping ? Project["PumpingHours"].get<double>() : 24;
    const double PerFlow = Hours / 24 / Figures["DemandFactor"].get<double>();
    std::map<std::string, Numbers> Bars, Amounts; // by colour
    for (int y = 1; y <= Life; ++y) {
        const bool Varies = Project["VaryingDemand"] == "Varying demand";
        const double Wanted = Varies ? Varying[static_cast<std::size_t>(y - 1)] : Project["Flowrate"];
        Bars["#00ff00"].push_back(Of("Flow", y) * PerFlow);
        Bars["#ff0000"].push_back(Wanted - Of("Shortage", y));
        if (Of("Shortage", y) != 0) Bars["#0000ff"].push_back(Wanted);
        Amounts["#0000ff"].push_back(Of("IncomeSeries", y));
        Amounts["#00ff00"].push_back(Of("MaintTotal", y));
        Amounts["#ffff00"].push_back(Amounts["#00ff00"].back() + Of("OperationalCost", y));
        if (Pumping) Amounts["#ff0af0"].push_back(Amounts["#ffff00"].back() + Of("EnergyCost", y));
        if (y <= Construction) Amounts["#ff0000"].push_back(Of("CostSeries", y));
    }
    for (const char* Color : {"#00ff00", "#ff0000", "#0000ff", "#ffff00", "#ff0af0"}) {
        ExpectNear(Demand.Bars(Color), Bars[Color], Demand.StepY);
        ExpectNear(Income.Bars(Color), Amounts[Color], Income.StepY);
    }
}

// The difference of income and cost is 0 at the rate of return.
TEST_P(EachPlot, TheGraphOfRatesCrossesAtTheRateOfReturn)
{
    const double Irr = Figures["Irr"];
    const Sheet Drawn =
        SheetOf(File + " irr --begin " + std::to_string(Irr - 1) + " --end " + std::to_string(Irr + 1));
    const Points Differences = Drawn.Curve("#0000ff");
    EXPECT_EQ(Differences.X.size(), 201U); // each hundredth of a percent
    EXPECT_NEAR(At(Differences.Y, Differences.X, 0), Irr, 0.005);
}

// All that apply, by their names; only the smallest project's money fits the whole range of rates.
TEST_P(EachPlot, AllLeavesOutWhatDoesNotApply)
{
    const bool HasCurve = Figures["PumpFlow"][0] != 0;
    const bool IsSmall = Example == "kloofsig-village-main";
    const Run All = Batch("plot " + File + " all --out plots/new --format json");
    EXPECT_EQ(All.Status, IsSmall ? 0 : 2);
    EXPECT_EQ(All.Errors.find("irr: Could not show the Internal") == std::string::npos, IsSmall);
    for (const Plot& Each : AllPlots()) {
        const std::string Name = Each.Name;
        const auto Single = Batch("plot " + File + " " + Name + " --out - --format json");
        const bool Stands = Name == "pump-curve" || Name == "duty" ? HasCurve : Name != "irr" || IsSmall;
        EXPECT_EQ(Single.Status, Stands ? 0 : 2) << Name;
        EXPECT_TRUE(ReadFile(Folder / "plots/new" / (Example + "-" + Name + ".json")) == Single.Output)
            << Name;
        EXPECT_EQ(Single.Output.find("{\"plot\":\"" + Name) == 0, Stands) << Name;
    }
}

INSTANTIATE_TEST_SUITE_P(PlotTest, EachPlot, testing::ValuesIn(ExampleNames()));

// The system curve passes through each year's duty point, and the pump curve through its six points.
TEST_F(PlotTest, CurvesMeetInTheDutyPoint)
{
    WriteExample("pump.vlx", "hoekfontein-pumping-main");
    const json Project = json::parse(Batch("export pump.vlx").Output);
    const json Figures = json::parse(Batch("analyse --json - pump.vlx").Output);
    for (const std::size_t Year : {1, 15, 30}) {
        const Sheet Drawn = SheetOf("pump.vlx duty --year " + std::to_string(Year));
        const double Flow = Figures["PumpFlow"][Year - 1].get<double>() * 3600; // m3/h
        const double Head = Figures["Gradeline"][Year - 1][1].get<double>() - Project["TRWL"].get<double>();
        for (const char* Color : {"#0000ff", "#00ff00"}) {
            const Points Curve = Drawn.Curve(Color);
            EXPECT_NEAR(At(Curve.X, Curve.Y, Flow), Head, 2 * Drawn.StepY);
        }
    }
    const Sheet Drawn = SheetOf("pump.vlx pump-curve");
    Points Rows;
    for (const json& Row : Project["PumpCurve"]) Rows.Add(Row[1], Row[0]);
    ExpectNear(Drawn.Curve("#0000ff").X, Rows.X, Drawn.StepX);
    ExpectNear(Drawn.Curve("#0000ff").Y, Rows.Y, Drawn.StepY);
}

// A chainage takes the nearest node, of two the lower: 250 of nodes at 0, 200, 300, 1000.
TEST_F(PlotTest, ARangeIsOfTheNearestNodes)
{
    json Four = {{"Elevation", {90, 80, 70, 60}},
                 {"AccLength", {0, 200, 300, 1000}},
                 {"Diameter", {150, 150, 150, 150}}};
    for (const char* List : {"NodeNr", "PipeCost", "SecondaryLoss", "NodeDesc", "WallThickness"})
        Four[List] = json::array();
    WriteExample("four.vlx", "kloofsig-village-main", Four);
    const std::pair<const char*, Numbers> Cases[] = {
        {"", {0, 200, 300, 1000}},
        {"--begin 250", {200, 300, 1000}},
        {"--begin 250.01 --end 1000", {300, 1000}},
        {"--end 649", {0, 200, 300}},
        {"--begin 99 --end 101", {0, 200}},
    };
    for (const char* Name : {"profile ", "hydraulic "})
        for (const auto& [Range, Nodes] : Cases) {
            SCOPED_TRACE(Range);
            const Sheet Drawn = SheetOf(std::string("four.vlx ") + Name + Range);
            ExpectNear(Drawn.Curve("#004000").X, Nodes, Drawn.StepX);
        }
}

TEST_F(PlotTest, WhatCannotBeDrawnIsToldAndWritesNothing)
{
    WriteExample("village.vlx", "kloofsig-village-main");
    WriteExample("high.vlx", "hoekfontein-pumping-main", {{"BRWL", 1700}});
    WriteExample("idle.vlx", "hoekfontein-pumping-main", {{"PumpCurve", json::array()}});
    json Steep(6, {1, 1, 80});
    Steep[0][0] = 2e7; // no tick is that wide
    WriteExample("steep.vlx", "hoekfontein-pumping-main", {{"PumpCurve", Steep}});
    ExpectRefused(
        "plot --out new.svg",
        {{"village.vlx duty", "village.vlx: duty: the system has no pump curve", 2},
         {"village.vlx hydraulic --year 26", "the year 26 is outside 1 to 25", 2},
         {"village.vlx profile --year 0", "the year 0 is outside 1 to 25", 2},
         {"village.vlx profile --end 3421", "the chainage 3421 is outside 0 to 3420", 2},
         {"village.vlx hydraulic --end nan", "the chainage NaN is outside", 2},
         {"village.vlx hydraulic --begin 2000 --end 1000", "The begin distance should be less", 2},
         {"village.vlx profile --begin 1000 --end 1000", "The begin distance should be less", 2},
         {"village.vlx irr --begin 7 --end 7", "The begin IRR value should be smaller", 2},
         {"village.vlx irr --end 1e300", "the rate 1E+300 is outside 0 to 200 %", 2},
         {"high.vlx duty", "The pump curve does not intersect the system curve for year 1", 2},
         {"high.vlx profile", "The pump curve does not intersect", 2},
         {"idle.vlx pump-curve", "All the pump data cannot be zero !", 2},
         {"steep.vlx pump-curve", "Could not show the pump curve.  Please check the pump data !", 2},
         {"village.vlx demand --year 1", "--year is for plots of one year"},
         {"village.vlx income --begin 1", "--begin and --end are for plots of a range"},
         {"village.vlx all --begin 1", "\"all\" takes none"},
         {"village.vlx cost", "PLOT"},
         {"village.vlx demand --format jpg", "--format"},
         {"missing.vlx demand", "missing.vlx\": No such file"}});
    ExpectRefused("plot village.vlx demand",
                  {{"--format svg --out village.vlx", "\"village.vlx\" is read by"},
                   {"--format svg --out high.vlx", "\"high.vlx\" is a project"},
                   {"--out new", "\"new\" doesn't end in the name of a format"}});
}

// By extension or by name, to a file or to standard output. Without the module only JSON can be had.
TEST_F(PlotTest, FormatsNeedTheModuleThatPaints)
{
    WriteExample("village.vlx", "kloofsig-village-main");
    const std::string Begins[][2] = {{"svg", "<?xml"},
                                     {"PNG", "\x89PNG"},
                                     {"pdf", "%PDF-"},
                                     {"json", "{\"plot\":\"demand\",\"width\":11900,"}};
    for (const auto& [Extension, Begin] : Begins) {
        const Run Drawn = Batch("plot village.vlx demand --out new." + Extension);
        EXPECT_EQ(Drawn.Status, 0) << Drawn.Errors;
        EXPECT_EQ(Drawn.Errors, "");
        EXPECT_THAT(ReadFile(Folder / ("new." + Extension)), StartsWith(Begin));
    }
    EXPECT_THAT(ReadFile(Folder / "new.svg"), HasSubstr("<title>Demand and capacity</title>"));
    EXPECT_THAT(Batch("plot - demand --out - --format svg <village.vlx").Output, StartsWith("<?xml"));

    std::filesystem::create_directories(Folder / "new/bin");
    std::filesystem::copy(VELORIX_BATCH, Folder / "new/bin");
    const std::string Line = "new/bin/velorix-batch plot village.vlx demand --out away.";
    const Run Alone = Shell(Line + "svg");
    EXPECT_EQ(Alone.Status, 1);
    EXPECT_THAT(Alone.Errors, HasSubstr("nor in \""));
    EXPECT_FALSE(std::filesystem::exists(Folder / "away.svg"));
    EXPECT_EQ(Shell(Line + "json").Status, 0);
}

} // namespace
} // namespace velorix
