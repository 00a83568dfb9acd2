// What stands where on the pages of the reports.
#include "analysis/AnalysisTest.h"
#include "base/Failure.h"
#include "cost/CostResults.h"
#include "hydraulics/HydraulicResults.h"
#include "platform/Printer.h"
#include "reports/InputReports.h"
#include "reports/PageFrame.h"
#include "reports/ResultReports.h"
#include "results/CurvePlots.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

namespace velorix {
namespace {

using PageLine = std::vector<TextItem>;
using Report = void (*)();

// The texts of a line, each behind the column that it begins at, as "[7]Design life:[30]20". A star stands
// before a line in bold.
std::string Shown(const PageLine& Line)
{
    Font Face = Line[0].Face;
    for (const TextItem& Each : Line) Face.Size = std::max(Face.Size, Each.Face.Size);
    std::string Result = Face.Bold ? "*" : "";
    for (const TextItem& Each : Line)
        Result +=
            "[" + std::to_string(1 + std::lround(Each.X / AverageCharacterWidth(Face))) + "]" + Each.Text;
    return Result;
}

std::vector<TextItem> TextsOf(const PrintedPage& Page)
{
    std::vector<TextItem> Texts;
    for (const DisplayItem& Each : Page.Print.Items)
        if (const auto* const Text = std::get_if<TextItem>(&Each)) Texts.push_back(*Text);
    return Texts;
}

// Plot and table as the results screen has them.
void PrintDuty()
{
    AnalysisYear = 1;
    FillDutyTable();
    DrawDutyCurves(frmResults.picDuty, Black);
    frmResults.lblDutyYear.Caption = "Year 2003";
    PrintPumpAndSystemCurve();
}

// No text over another, none beyond the paper, none too small.
void ExpectReadable(const PrintedPage& Page)
{
    const std::vector<TextItem> Texts = TextsOf(Page);
    for (const TextItem& One : Texts) {
        const double Below = One.Y + FixedTextHeight(One.Face);
        EXPECT_LE(One.X + One.Width, Page.Print.Width - 7.9 * TwipsPerMillimetre) << One.Text;
        EXPECT_LE(Below, Page.Print.Height) << One.Text;
        EXPECT_GE(One.Face.Size, 5) << One.Text;
        for (const TextItem& Other : Texts)
            EXPECT_FALSE(&One != &Other && One.Y <= Other.Y && Other.Y < Below - 1 &&
                         One.X < Other.X + Other.Width - 1 && Other.X < One.X + One.Width - 1)
                << One.Text << " lies over " << Other.Text;
    }
}

class ReportsTest : public AnalysisTest {
protected:
    void Print(Report Printed)
    {
        Windows.Pages.clear();
        Printed();
    }

    std::vector<PageLine> Lines(std::size_t Page) const
    {
        constexpr double Baselines = 50; // twips by which a text set smaller may begin lower
        std::vector<PageLine> All;
        for (const TextItem& Each : TextsOf(Windows.Pages.at(Page))) {
            if (All.empty() || Each.Y > All.back()[0].Y + Baselines) All.emplace_back();
            All.back().push_back(Each);
        }
        return All;
    }

    // The lines between head and foot.
    std::vector<PageLine> Body(std::size_t Page) const
    {
        const std::vector<PageLine> All = Lines(Page);
        const auto LineOf = [&](const char* Text) {
            return std::find_if(All.begin(), All.end(),
                                [=](const PageLine& Line) { return Line[0].Text.starts_with(Text); });
        };
        return {LineOf("Printed: ") + 1, LineOf("The software program")};
    }

    // Lines that follow each other, with a bar before and behind each and the page's number before its first;
    // what is told lies in this order on the pages of the report.
    void Expect(Report Printed, const std::vector<std::string>& Told)
    {
        Print(Printed);
        std::string Whole;
        for (std::size_t Page = 0; Page < Windows.Pages.size(); ++Page) {
            Whole += "(" + std::to_string(Page + 1) + ")|";
            for (const PageLine& Line : Body(Page)) Whole += Shown(Line) + "|";
        }
        std::size_t Place = 0;
        for (const std::string& Each : Told) {
            Place = Whole.find(Each, Place);
            ASSERT_NE(Place, std::string::npos) << Each << " is not next in\n" << Whole;
            Place += Each.size() - 1; // the last bar may be the next one's first
        }
    }

    // On each page the lines that begin with a number.
    std::vector<int> RowsOnPages() const
    {
        const auto IsRow = [](const PageLine& Line) {
            return Line[0].Text[0] >= '0' && Line[0].Text[0] <= '9';
        };
        std::vector<int> Counts;
        for (std::size_t Page = 0; Page < Windows.Pages.size(); ++Page) {
            const std::vector<PageLine> All = Body(Page);
            Counts.push_back(static_cast<int>(std::count_if(All.begin(), All.end(), IsRow)));
        }
        return Counts;
    }
};

// Capital cost by hand: 1 000 000 of pipeline and works, 10 % and then 20 % on top, 5000 of escalation,
// 145 000 of fees.
TEST_F(ReportsTest, PumpingProjectStandsAtItsColumns)
{
    ProjectFields Record = PumpCurveRecord();
    Record.Life = 31;
    Record.BRWLUnits = 2;
    SetText(Record.Pumptype, "Split case");
    SetText(Record.PumpDescription, "Two in parallel,\r\none standing by");
    Record.SummerHour[24] = 7; // no class
    Analyse(Record);
    Flow[1] = 0.108; // 90 l/s over the day when pumped for 20 hours
    Shortage[1] = 1.25;
    PumpingHours[1] = 19.5;
    Gradeline(1, 1) = 176.5;
    const std::pair<Single*, double> Figures[] = {{&LayingCost, 400000},
                                                  {&PipeSupplyCost, 300000},
                                                  {&wMechanical, 100000},
                                                  {&wElectrical, 200000},
                                                  {&wContingencies, 20},
                                                  {&EscalationAmount, 5000},
                                                  {&ConsultingFees, 145000},
                                                  {&SupervisionCost, 30000},
                                                  {&NpvCost, 45},
                                                  {&NpvIncome, 1234567},
                                                  {&Irr, 12.3456}};
    for (const auto& [Stored, Value] : Figures) *Stored = Value;
    CapitalSeries[2] = CostSeries[2] = 5000000.0;
    CostSeries[3] = 2000.0;
    IncomeSeries[1] = MaintTotal[1] = OperationalCost[1] = EnergyCost[1] = 1000.4;
    frmLCC.txtMechanical.Text = "1234567";
    frmLCC.txtElectrical.Text = "not yet";
    Expect(PrintGeneralData,
           {"(1)|*[7]GENERAL PROJECT DATA: PUMPING SYSTEM|[7]Design life:[30]31|[7]Starting year:[30]2001|"
            "[7]Supply start year:[30]2003|[7]Preferred option:[30]Fixed demand|[7]Demand: 90 l/s|"
            "*[7]Reservoir levels|[9]Pumpstation reservoir water level:[45]100 m|"
            "[9]End reservoir water level:[45]145 ft|*[7]Pumping system|"
            "[7]Preferred option:[30]Specified pump curve|[9]Head[30]Flow rate[51]Efficiency|"
            "[9]m[30]m³/s[51]%|[9]95[30]0[51]0|[9]92[30]0.05[51]55|",
            "|[7]Pump type: Split case|[7]Configuration:|[7]Two in parallel,|[7]one standing by|"});
    Expect(PrintEnergyData,
           {"(1)|*[7]ENERGY DATA: PUMPING SYSTEM|*[6]Energy details:|"
            "*[7]Tariff[24]Summer months[46]Winter months|[7]Peak rate:[30]R0.90/kW[55]R0.90/kW|",
            "[104]23[108]24|[7]Summer[16]O[20]O[24]O[28]O[32]O[36]O[40]O[44]P[48]P[52]P[56]S",
            "[104]O|[7]Winter[16]O",
            "|[7]Pumping hours per day - 20|[7]Number of summer months - 6 months|"});
    Expect(
        PrintRatesData,
        {"(1)|*[7]RATES AND SALES DATA: PUMPING SYSTEM|*[7]Capital cost|[8]Mechanical works - [35]R1,234,567|"
         "[8]Electrical works - [35]Rnot yet|*[7]Maintenance cost|[8]Pipeline -[35]0.25%|",
         "|[7]Staff[25]Annual package (R)[50]Percentage of time (%)|[8]Manager[32]300000[55]20|",
         "|[7]Description of expenses[35]Annual ammount (R)|[8]Transport[40]0|",
         "|*[7]Rates[52]Income|[8]Escalation rate - [35]6 %[56]Current water sales unit tariff - "
         "[90]R2.00/m³|[8]Discount rate - [35]8 %[56]Water tariff annual increase - [90]5 %|"
         "[8]Energy escalation rate - [35]7 %|"});
    Expect(PrintHydraulicAnalysis, {"|*[9]Flow rate: 0.108 m³/s[60]Pumping head: 76.500 m[110]Year: 2003|",
                                    "|[5]1[11] 0 [24] 98 [36]176.500[49]78.500[61]Node "});
    const std::string Demand =
        "|*[30]SYSTEM ANALYSIS (DEMAND & YIELD)|*[5]Year[15]Yield[30]Demand[45]Demand[60]Total";
    Expect(PrintDemandAndYield,
           {"(1)" + Demand +
                "[75]Pumping|*[30]supplied[45]shortage[60]demand[75]hours|"
                "*[5]2003[15]90.000[30]88.750[45]1.250[60]90.000[75]19.50|",
            "(2)" + Demand + "|*[30]supplied[45]shortage[60]demand|*[5]2030[", "|*[15]All units are: l/s|"});
    const std::string Income =
        "|*[27]SYSTEM ANALYSIS (INCOME & EXPENDITURE)|"
        "*[5]Year[12]Income[28]Total[44]Capital[60]Maintenance[76]Operational[92]Energy|"
        "*[28]expenditure[44]cost[60]cost[76]cost[92]cost|*[5]";
    Expect(PrintIncomeAndExpenditure, {"(1)" + Income + "2002[12]0[28]",
                                       "|*[5]2003[12]0[28]5,000,000[44]5,000,000[60]0[76]0[92]0|"
                                       "*[5]2004[12]1,000[28]2,000[44]0[60]1,000[76]1,000[92]1,000|",
                                       "|*[15]All units are: R|", "(2)" + Income + "2034[12]"});
    Expect(
        PrintCostAnalysis,
        {"(1)|*[40]COST ANALYSIS|*[6]Description|[7]Pipeline cost[50]R700,000|[7]Mechanical cost[50]R100,000|"
         "[7]Electrical cost[50]R200,000|[7]Sub total[50]R1,000,000|"
         "[7]Preliminary & General (10%)[50]R100,000|[7]Sub total[50]R1,100,000|"
         "[7]Contingencies (20%)[50]R220,000|[7]Escalation[50]R5,000|[7]Sub total[50]R1,325,000|"
         "[7]Consulting fees (SAACE 2002)[50]R145,000|[7]Administration and management[50]R30,000|"
         "[7]Total construction cost[50]R1,500,000|[7]VAT 14%[50]R210,000|"
         "*[6]Total capital cost[47]R1,710,000|[7]Design life:[30]31 years|*[6]Net Present Value|"
         "[7]Expenditure:[30]R045|[7]Income:[30]R1,234,567|*[6]Internal Rate of Return|"
         "[7]IRR:[30]12.346 %|*[6]Annual cost|[7]Operational cost[45]R1,000  (Escalation rate is 6.00%)|",
         "|[7]Energy cost[45]R1,000  (Escalation rate is 7.00%)|"});
    Expect(PrintDuty,
           {"(1)|*[7]RESULTS: PUMP & SYSTEM CURVE|*[8]Year 2003|*[8]LEGEND:|"
            "*[23]- Pump curve[60]- System curve|",
            "(2)|*[7]RESULTS: DUTY POINTS|*[7]Year[15]Flow rate[30]Pumping head[45]Pump efficiency|"
            "*[15]m³/s[30]m[45]%|[7]2003[15]"});
    frmLCC.optFlowrate.Value = true;
    frmLCC.txtPumpOperatingFlowrate.Text = " 136 ";
    Expect(PrintGeneralData,
           {"|[7]Preferred option:[30]Specified operating Flow rate|[9]Operating flow rate:[30]136 m³/h|"
            "[9]Pump efficiency:[30]70 %|"});
    Print(PrintEnergyData);
    for (const PageLine& Line : Body(0))
        for (const TextItem& Each : Line) EXPECT_TRUE(Line[0].Text != "Summer" || Each.Face.Size == 12);
    Print(PrintDuty);
    EXPECT_EQ(Windows.Pages.at(0).Drawings.at(0).Drawn, frmResults.picDuty.Image());
    Print(PrintIncomeAndExpenditure);
    EXPECT_EQ(Body(0).at(1)[0].Face.Size, 8);
    EXPECT_GT(Body(1).at(1)[0].Face.Size, 9);
    EXPECT_EQ(Body(1).size(), 4U); // no note behind the last row
}

TEST_F(ReportsTest, GravityProjectStandsAtItsColumns)
{
    ProjectFields Record = GravityRecord(28);
    Record.Units = Record.Currency = Record.VaryingDemand = Record.LengthUnits = Record.LiningType = 1;
    Record.Life = 2;
    Record.Demand[2] = 12.5;
    Record.DemandUnits = 3; // l/s
    Record.Elevation[1] = -0.5;
    Record.NodeDesc[1] = 1;
    Record.LiningThickness = 12.5;
    Analyse(Record);
    PrintYear = 2;
    Flow[2] = 0.0123456;
    Gradeline(0, 2) = 155.25;
    Expect(PrintGeneralData,
           {"|[7]Preferred option:[30]Varying demand|*[7]Year[25]Demand (l/s)|[9]1[30]0|[9]2[30]12.5|"
            "*[7]Reservoir levels|[9]Top reservoir water level:[40]160 m|"
            "[9]Bottom reservoir water level:[40]100 m|"});
    const std::string Profile =
        "|*[7]PIPELINE PROFILE DATA: GRAVITY SYSTEM|"
        "*[5]Node[11]Elevation[22]Accumulated[35]Pipe[45]Wall[56]Pipe[65]Secondary[75]Description|"
        "*[5]nr[22]length[35]diameter[45]thickness[56]cost/[65]losses|"
        "*[11](m)[22](km)[35](mm)[46](mm)[56]metre|";
    Expect(PrintProfileData,
           {"(1)" + Profile + "[5]1[11]-0.5[22]0[35]400[45]6[56]900[65]0.25[75]Reservoir           |[5]2[11]",
            "(2)" + Profile + "[5]28[11]95[22]6000[35]400[45]6[56]900[65]0.25[75]Node ",
            "(3)|*[7]PIPELINE PROFILE DATA: GRAVITY SYSTEM|*[7]Pipline characteristics|[8]Lining system - "
            "Cement mortar:[40]12.5 mm|"
            "[8]Roughness of new pipe (Ks):[40]0.1 mm|[8]Roughness of old pipe (Ks):[40]0.6 mm|"
            "[8]Roughness deterioration years:[40]15 years|*[7]Pipe laying conditions|"
            "[8]Laying (incl joining)[40]$60/ft|[8]Excavation[40]$90/ft³|[8]Rock excavation[40]$250/ft³|",
            "|[8]Backfilling[40]$30/ft³|*[7]Anticipated laying conditions|"
            "[8]Description[35]Percentage expected|[8]Rock[40]15%|[8]Bedding import[40]50%|"
            "[8]Blanket import[40]50%|[8]Required cover[40]1 ft|[8]Excavation lower than pipe[40]0.1 ft|"});
    const std::string Hydraulic =
        "|*[40]HYDRAULIC ANALYSIS|*[9]Flow rate: 12.346 l/s[110]Year: 2004|"
        "*[5]Node[11]Accumulated[24]Elevation[36]Hydraulic[49]Pressure[61]Description|"
        "*[5]nr[11]length[36]gradeline[49]head|*[11](km)[24](m)[36](m)[49](m)|";
    Expect(
        PrintHydraulicAnalysis,
        {"(1)" + Hydraulic + "[5]1[11] 0 [24]-0.5 [36]155.250[49]155.750[61]Reservoir           |[5]2[11] ",
         "(2)" + Hydraulic + "[5]28[11] 6000 [24] 95 [36]"});
    EXPECT_EQ(Body(0).at(1)[0].Ink, PureRed);
    EXPECT_EQ(Body(1).at(1)[0].Ink, Black);
}

// Rows on each page, by the years or the nodes of the project. A table that ends with its page goes over to a
// page without rows.
TEST_F(ReportsTest, TablesBreakBehindToldRows)
{
    std::vector<int> Profile(18, 27);
    Profile.insert(Profile.end(), {13, 0});
    std::vector<int> Hydraulic(17, 27);
    Hydraulic.push_back(40);
    struct Case {
        Report Printed;
        std::vector<std::pair<int, std::vector<int>>> Counts;
    };
    const Case Cases[] = {
        {PrintGeneralData, {{22, {22}}, {23, {23, 0}}, {24, {23, 1}}, {100, {23, 25, 25, 25, 2}}}},
        {PrintDemandAndYield, {{27, {27, 0}}, {28, {27, 1}}, {100, {27, 27, 27, 19}}}},
        {PrintIncomeAndExpenditure, {{32, {32, 0}}, {100, {32, 32, 32, 4}}}},
        {PrintDuty, {{26, {0, 26, 0}}, {100, {0, 26, 27, 27, 20}}}}, // two rows of the grid are headings
        {PrintProfileData, {{26, {26, 0}}, {27, {27, 0, 0}}, {28, {27, 1, 0}}, {499, Profile}}},
        {PrintHydraulicAnalysis, {{26, {26}}, {27, {27, 0}}, {28, {27, 1}}, {499, Hydraulic}}}};
    for (const auto& [Printed, Counts] : Cases)
        for (const auto& [Count, Rows] : Counts) {
            const bool ByNode = Printed == PrintProfileData || Printed == PrintHydraulicAnalysis;
            ProjectFields Record = ByNode ? GravityRecord(Count) : PumpCurveRecord();
            if (!ByNode) Record.Life = static_cast<std::int16_t>(Count);
            Record.PumpDetails = Printed == PrintDuty ? 1 : 0;
            Record.PumpOperatingFlowrate = 90.0;
            Record.VaryingDemand = 1;
            Record.BaseYear = Record.SupplyStart;
            Analyse(Record);
            Print(Printed);
            EXPECT_EQ(RowsOnPages(), Rows) << Count;
        }
}

// The head is as high with a name on two lines as with one on one.
TEST_F(ReportsTest, LongNamesGoOnBelow)
{
    Open(GravityRecord());
    wProject = "Mašemola ž œ ÿ é ÷ ß";
    const std::string Seventy(70, 'n');
    const auto HeadOf = [&](const std::string& Name, const std::string& Description) {
        FileName = Name;
        wDescription = Description;
        Print(PrintRatesData);
        return Lines(0);
    };
    const auto Short = HeadOf(Seventy, Seventy);
    EXPECT_EQ(Shown(Short.at(1)), "*[7]MAŠEMOLA Ž Œ Ÿ É ÷ ß");
    EXPECT_EQ(Shown(Short.at(3)), "*[7]Filename :[22]" + Seventy);
    EXPECT_EQ(Shown(Short.at(4)), "*[7]Date : [22]3 March 2005");
    const auto Long = HeadOf(Seventy + "Z", "Überlauf" + Seventy);
    EXPECT_EQ(Shown(Long.at(4)), "*[22]Z");
    EXPECT_EQ(Shown(Long.at(7)), "*[22]nnnnnnnn");
    EXPECT_EQ(Long.at(8)[0].Y, Short.at(6)[0].Y);
    EXPECT_EQ(Long.at(8).back().Text, "2"); // the page
}

// The names, units and numbers that take most room, on pages that are fuller than paper allows.
TEST_F(ReportsTest, EveryPageOfALargeProjectIsReadable)
{
    for (ProjectFields Record : {GravityRecord(90), PumpCurveRecord(90)}) {
        Record.Units = Record.Currency = Record.VaryingDemand = Record.LiningType = 1;
        Record.DemandUnits = 11;
        Record.PipeCost.Fill(123456.79);
        Record.SecondaryLoss.Fill(0.12345679);
        Record.NodeDesc.Fill(4);
        Record.Mechanical = 9e9;
        Record.WaterSales = 9000.0;
        std::string Words;
        while (Words.size() < 1000) Words += "Lengthy words ";
        SetText(Record.Description, Words.substr(0, 500));
        SetText(Record.Pumptype, Words.substr(0, 100));
        for (std::size_t Line = 84; Line < 1000; Line += 84) Words[Line] = '\n';
        SetText(Record.PumpDescription, Words.substr(0, 1000));
        for (auto* Text : {&Record.Project, &Record.Designer}) SetText(*Text, std::string(80, 'W'));
        for (const std::int16_t Life : {22, 47, 98}) {
            Record.Life = Life;
            Analyse(Record);
            FileName = "/" + std::string(300, 'f') + "/a b c.vlx";
            Windows.Pages.clear();
            for (const Report Each :
                 {PrintGeneralData, PrintProfileData, PrintEnergyData, PrintRatesData, PrintHydraulicAnalysis,
                  PrintDemandAndYield, PrintIncomeAndExpenditure, PrintCostAnalysis, PrintDuty})
                Each();
            for (const PrintedPage& Each : Windows.Pages) ExpectReadable(Each);
        }
    }
}

// Levels in feet have no factor, and a capital cost stands for 100 years at the most.
TEST_F(ReportsTest, FiguresThatCannotBeToldStayEmptyAndThoseThatAreNotThereEndAReport)
{
    ProjectFields Record = GravityRecord();
    Record.ElevationUnits = 2;
    Record.Life = 99;
    Analyse(Record);
    Expect(PrintHydraulicAnalysis, {"|[5]1[11] 0 [24] 150 [61]"});
    Windows.Pages.clear();
    EXPECT_THROW(PrintIncomeAndExpenditure(), SubscriptFailure);
    PrintYear = 101;
    EXPECT_THROW(PrintHydraulicAnalysis(), SubscriptFailure);
    EXPECT_TRUE(Windows.Pages.empty());
    Expect(PrintRatesData, {"|*[7]RATES AND SALES DATA: GRAVITY SYSTEM|"});
}

} // namespace
} // namespace velorix
