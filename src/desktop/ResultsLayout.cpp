// Pages of the results screen: a plot with its controls beside it, and the tables that stand in for it.
#include "desktop/ResultsLayout.h"

#include "desktop/Binding.h"
#include "desktop/ChartParts.h"
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/ScrollBarView.h"
#include "desktop/SurfaceView.h"
#include "desktop/Views.h"
#include "screens/Results.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace velorix {
namespace {

constexpr int SideWidth = 180;

QWidget* Headline(const QString& Name, Label& Figure)
{
    QWidget* const Pair = InColumn({MutedText(Name), WithRole(View(Figure), "figure")});
    Pair->layout()->setSpacing(0);
    return Pair;
}

QWidget* Headlines()
{
    QWidget* const Line = InRow(
        {Headline("Design life", frmResults.lblDesignLife), nullptr,
         Headline("NPV of cost", frmResults.lblNPVE), nullptr, Headline("NPV of income", frmResults.lblNPVI),
         nullptr, Headline("Rate of return", frmResults.lblIRR), nullptr, View(frmResults.sscInput)});
    Line->layout()->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, 0);
    return Line;
}

QWidget* Stretched(QWidget* Box, QWidget* Content)
{
    static_cast<QBoxLayout*>(Box->layout())->setStretchFactor(Content, 1);
    return Box;
}

// A plot that takes the room below what explains it, and its controls in a column at the right.
QWidget* PlotWithSide(const std::vector<QWidget*>& Above, QWidget* Plot, const std::vector<QWidget*>& Side)
{
    std::vector<QWidget*> Parts = Above;
    Parts.push_back(Plot);
    QWidget* const Main = Stretched(InColumn(Parts), Plot);
    QWidget* const Column = InColumn(Side);
    Column->setFixedWidth(SideWidth);
    return Stretched(InRow({Main, Column}), Main);
}

// A table over the whole page, with what leads back below it.
QWidget* TablePane(Frame& Record, const std::vector<QWidget*>& Above, Grid& Table, CommandButton& Hide)
{
    QGroupBox* const Pane = View(Record);
    FormRows Rows(Pane);
    for (QWidget* Each : Above) Rows.AddWide(Each);
    QWidget* const Shown = View(Table);
    Rows.AddWide(Shown, 1);
    Rows.AddWide(InRow({View(Hide), nullptr}));
    return Pane;
}

// The content and the panes that stand in for it, one at a time.
QWidget* PageOf(QWidget* Content, const std::vector<QWidget*>& Panes,
                const std::vector<QWidget*>& FirstFields)
{
    std::vector<QWidget*> All = {Content};
    All.insert(All.end(), Panes.begin(), Panes.end());
    QWidget* const Stack = InColumn(All);
    Stack->layout()->setContentsMargins(Gap, Gap, Gap, Gap);
    for (std::size_t Index = 0; Index < Panes.size(); ++Index)
        StandInFor(Panes[Index], Content, FirstFields[Index]);
    return Page(Stack);
}

QWidget* YearOfPlot()
{
    QWidget* const Year = View(frmResults.hscYears);
    NameField(Year, "Year of analysis");
    return InColumn({InRow({Text("Year"), View(frmResults.lblYear), nullptr}), Year});
}

QWidget* Components()
{
    QGroupBox* const Box = View(frmResults.fraComponents);
    FormRows Rows(Box);
    Rows.AddWide(View(frmResults.chkComponents));
    Rows.AddWide(View(frmResults.chkGradeline));
    Rows.AddWide(View(frmResults.sscHide));
    return Box;
}

QWidget* DutyPane()
{
    constexpr int RowFrom = 118; // digits; with less room the labels of the curves would be too small to read
    constexpr QSize LeastCurves(540, 288);
    QGroupBox* const Pane = View(frmResults.fraDuty);
    FormRows Rows(Pane);
    QWidget* const Year = View(frmResults.hscDuty);
    NameField(Year, "Year of the system curve");
    QWidget* const Table = View(frmResults.msgDuty);
    QWidget* const Curves = View(frmResults.picDuty);
    Curves->setMinimumSize(LeastCurves);
    Table->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    auto* const Both = new TurningBox(RowFrom);
    Both->Add(Curves, 1);
    Both->Add(Table);
    Rows.AddWide(Stretched(InRow({View(frmResults.lblDutyYear), Year, View(frmResults.sscPrintDutyYear),
                                  View(frmResults.sscHideDuty)}),
                           Year));
    Rows.AddWide(InRow({LineKey({{PumpCurveInk, "Pump curve"}, {SystemCurveInk, "System curve"}}), nullptr}));
    Rows.AddWide(Both, 1);
    return Pane;
}

QWidget* HydraulicPage()
{
    constexpr int KeyBesideReadOuts = 80; // digits
    QWidget* const Content = PlotWithSide(
        {InRow({View(frmResults.lblMaxFlow), View(frmResults.lblPumping), nullptr}),
         new TurningBox(
             KeyBesideReadOuts,
             {LineKey({{GroundInk, "Pipeline"}, {GradelineInk, "Hydraulic gradeline"}}),
              InRow({nullptr, ReadOut("Distance", frmResults.lblX), ReadOut("Level", frmResults.lblY)})})},
        View(frmResults.picHydraulic),
        {YearOfPlot(), View(frmResults.sscChangeView), Named("From", View(frmResults.comBegin)),
         Named("To", View(frmResults.comEnd)), View(frmResults.sscView), View(frmResults.sscComponents),
         Components(), InRow({View(frmResults.sscViewHydraulicTable), View(frmResults.sscDutypoint)}),
         nullptr, InRow({View(frmResults.sscPrintView), ToolView(frmResults.sscHelp1, "help"), nullptr})});
    QWidget* const Table = TablePane(frmResults.fraTable, {View(frmResults.lblYear1)},
                                     frmResults.msgHydraulic, frmResults.sscHideHydraulicTable);
    QWidget* const Duty = DutyPane();
    return PageOf(Content, {Table, Duty},
                  {FocusTarget(frmResults.msgHydraulic), FocusTarget(frmResults.hscDuty)});
}

// A coloured field with what it stands for.
QWidget* LegendRow(const std::vector<QWidget*>& Colors, const std::vector<QWidget*>& Words)
{
    constexpr int FieldSize = 14;
    std::vector<QWidget*> All;
    for (QWidget* Each : Colors) {
        Each->setFixedSize(FieldSize, FieldSize);
        All.push_back(Each);
    }
    All.insert(All.end(), Words.begin(), Words.end());
    All.push_back(nullptr);
    return InRow(All);
}

// Groups of rows in a frame without a border, side by side from so many digits on.
QWidget* Legend(Frame& Record, int RowFrom, const std::vector<std::vector<QWidget*>>& Groups)
{
    QGroupBox* const Box = WithRole(View(Record), "rows");
    std::vector<QWidget*> Columns;
    for (std::vector<QWidget*> Rows : Groups) {
        Rows.push_back(nullptr);
        QWidget* const Column = InColumn(Rows);
        Column->layout()->setSpacing(Gap / 2);
        Columns.push_back(Column);
    }
    auto* const Turning = new TurningBox(RowFrom, Columns);
    auto* const Layout = new QVBoxLayout(Box);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addWidget(Turning);
    return Box;
}

// The unit goes on where the name of the demand ends.
QWidget* DemandLegend()
{
    QWidget* const Words = InRow({View(frmResults.lblDemandText), View(frmResults.lblDemand)});
    Words->layout()->setSpacing(0);
    return Legend(frmResults.fraDemandLegend, 80,
                  {{LegendRow({View(frmResults.lblDemandColor), View(frmResults.lblShortageColor)}, {Words})},
                   {LegendRow({View(frmResults.lblYieldColor)}, {View(frmResults.lblYield)})}});
}

// The annual costs as they are stacked, from below.
QWidget* IncomeLegend()
{
    const auto Row = [](Label& Field, Label& Words) { return LegendRow({View(Field)}, {View(Words)}); };
    return Legend(frmResults.fraIncomeLegend, 65,
                  {{Row(frmResults.picIncomeColor, frmResults.lblIncome),
                    Row(frmResults.picCapitalColor, frmResults.lblCapitalExpenditure)},
                   {Row(frmResults.picMaintenanceColor, frmResults.lblMaintenance),
                    Row(frmResults.picOperationalColor, frmResults.lblOperational),
                    Row(frmResults.picEnergyColor, frmResults.lblEnergy)}});
}

QWidget* SystemPage()
{
    QWidget* const Content = PlotWithSide(
        {DemandLegend(), IncomeLegend()}, View(frmResults.picSystem),
        {View(frmResults.ssoDemandCapacity), View(frmResults.ssoIncomeExpenditure),
         View(frmResults.sscViewTable), nullptr,
         InRow({View(frmResults.sscPrintSystem), ToolView(frmResults.sscHelp2, "help"), nullptr})});
    QWidget* const Table =
        TablePane(frmResults.fraViewTable, {}, frmResults.msgSystem, frmResults.sscHideTable);
    return PageOf(Content, {Table}, {FocusTarget(frmResults.msgSystem)});
}

QWidget* WholeTable(Grid& Record, const QString& Name)
{
    GridView* const Table = View(Record);
    Table->ShowWhole();
    NameField(Table, Name);
    return Snug(Table);
}

QWidget* CapitalCard()
{
    auto* const Card = new QGroupBox("Capital cost");
    FormRows Rows(Card);
    Rows.AddWide(WholeTable(frmResults.msgCost, "Capital cost"));
    return Card;
}

// The bar's own label says which year it stands on.
QWidget* AnnualCard()
{
    auto* const Card = new QGroupBox("Annual cost");
    FormRows Rows(Card);
    QWidget* const Bar = View(frmResults.hsbAnnual);
    NameField(Bar, "Year of the annual cost");
    QLabel* const Year = View(frmResults.lblAnnual);
    Year->setMinimumWidth(Year->fontMetrics().horizontalAdvance("Year : 1000"));
    QWidget* const Chosen = Stretched(InRow({Year, Bar}), Bar);
    Rows.AddWide(Chosen);
    Rows.AddWide(WholeTable(frmResults.msgAnnualCost, "Annual cost of the year"));
    Rows.AddWide(InRow({View(frmResults.sscIRR), ToolView(frmResults.sscHelp3, "help"), nullptr}));
    return Card;
}

QWidget* CostPage()
{
    constexpr int TwoColumnsFrom = 92; // digits
    auto* const Content = new TurningBox(TwoColumnsFrom);
    for (QWidget* Each : {CapitalCard(), AnnualCard()}) Content->Add(Snug(Each), 1, Qt::AlignTop);
    return Readable(Content);
}

} // namespace

QWidget* ResultsScreenLayout()
{
    QTabWidget* const Tabs =
        View(frmResults.sstResults, std::vector<QWidget*>{HydraulicPage(), SystemPage(), Page(CostPage())});
    NameField(Tabs, "Results");

    auto* const Screen = new QWidget;
    auto* const Layout = new QVBoxLayout(Screen);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(0);
    Layout->addWidget(Tabs, 1); // ahead of the headlines in the order of the Tab key
    Layout->insertWidget(0, Headlines());
    return Screen;
}

} // namespace velorix
