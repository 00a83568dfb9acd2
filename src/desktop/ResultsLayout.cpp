// Pages of the results screen: a plot with its controls beside it, and the tables that stand in for it.
#include "desktop/ResultsLayout.h"

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

constexpr int SideWidth = 190;

QWidget* Headline(const QString& Name, Label& Figure)
{
    QWidget* const Pair = InRow({MutedText(Name), WithRole(View(Figure), "figure")});
    Pair->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    return Pair;
}

// One line: the room belongs to the plots.
QWidget* Headlines()
{
    QWidget* const Line = InRow(
        {Headline("Design life", frmResults.lblDesignLife), nullptr,
         Headline("NPV of cost", frmResults.lblNPVE), nullptr, Headline("NPV of income", frmResults.lblNPVI),
         nullptr, WithRole(View(frmResults.lblIRR), "figure"), nullptr, View(frmResults.sscInput)});
    Line->layout()->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, Gap / 2);
    return Line;
}

// A plot that takes the room, and its controls in a column at its right.
QWidget* PlotWithSide(QWidget* Plot, const std::vector<QWidget*>& Side)
{
    QWidget* const Column = InColumn(Side);
    Column->setFixedWidth(SideWidth);
    QWidget* const Page = InRow({Plot, Column});
    static_cast<QBoxLayout*>(Page->layout())->setStretchFactor(Plot, 1);
    return Page;
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

QWidget* ReadOut(const char* Name, Label& Value)
{
    return InRow({MutedText(Name), View(Value), nullptr});
}

QWidget* YearOfPlot()
{
    QWidget* const Year = View(frmResults.hscYears);
    NameField(Year, "Year of analysis");
    return InColumn({InRow({Text("Year"), View(frmResults.lblYear), nullptr}), Year});
}

QWidget* Choice(const char* Name, QComboBox* List)
{
    QLabel* const Caption = Text(Name);
    TieCaption(Caption, List);
    return InRow({Caption, List});
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
    QGroupBox* const Pane = View(frmResults.fraDuty);
    FormRows Rows(Pane);
    QWidget* const Year = View(frmResults.hscDuty);
    NameField(Year, "Year of the system curve");
    QWidget* const Table = View(frmResults.msgDuty);
    QWidget* const Both = InRow({View(frmResults.picDuty), Table});
    static_cast<QBoxLayout*>(Both->layout())->setStretch(0, 1);
    Rows.AddWide(Both, 1);
    Rows.AddWide(InRow({View(frmResults.lblDutyYear), Year, nullptr, View(frmResults.sscPrintDutyYear),
                        View(frmResults.sscHideDuty)}));
    return Pane;
}

QWidget* HydraulicPage()
{
    QWidget* const Content = PlotWithSide(
        View(frmResults.picHydraulic),
        {View(frmResults.lblMaxFlow), View(frmResults.lblPumping), ReadOut("Distance", frmResults.lblX),
         ReadOut("Level", frmResults.lblY), YearOfPlot(), View(frmResults.sscChangeView),
         Choice("From", View(frmResults.comBegin)), Choice("To", View(frmResults.comEnd)),
         View(frmResults.sscView), View(frmResults.sscComponents), Components(),
         View(frmResults.sscViewHydraulicTable), View(frmResults.sscDutypoint), nullptr,
         InRow({View(frmResults.sscPrintView), ToolView(frmResults.sscHelp1, "help"), nullptr})});
    QWidget* const Table = TablePane(frmResults.fraTable, {View(frmResults.lblYear1)},
                                     frmResults.msgHydraulic, frmResults.sscHideHydraulicTable);
    QWidget* const Duty = DutyPane();
    return PageOf(Content, {Table, Duty}, {Table, Duty});
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

QLabel* Wrapped(QLabel* Words)
{
    Words->setWordWrap(true);
    return Words;
}

QWidget* DemandLegend()
{
    QGroupBox* const Box = View(frmResults.fraDemandLegend);
    FormRows Rows(Box);
    QWidget* const Words = InColumn({View(frmResults.lblDemandText), View(frmResults.lblDemand)});
    Rows.AddWide(LegendRow({View(frmResults.lblDemandColor), View(frmResults.lblShortageColor)}, {Words}));
    Rows.AddWide(LegendRow({View(frmResults.lblYieldColor)}, {View(frmResults.lblYield)}));
    return Box;
}

QWidget* IncomeLegend()
{
    QGroupBox* const Box = View(frmResults.fraIncomeLegend);
    FormRows Rows(Box);
    const std::pair<Label*, Label*> Entries[] = {
        {&frmResults.picIncomeColor, &frmResults.lblIncome},
        {&frmResults.picCapitalColor, &frmResults.lblCapitalExpenditure},
        {&frmResults.picEnergyColor, &frmResults.lblEnergy},
        {&frmResults.picOperationalColor, &frmResults.lblOperational},
        {&frmResults.picMaintenanceColor, &frmResults.lblMaintenance}};
    for (const auto& [Field, Words] : Entries)
        Rows.AddWide(LegendRow({View(*Field)}, {Wrapped(View(*Words))}));
    return Box;
}

QWidget* SystemPage()
{
    QWidget* const Content = PlotWithSide(
        View(frmResults.picSystem),
        {View(frmResults.ssoDemandCapacity), View(frmResults.ssoIncomeExpenditure), DemandLegend(),
         IncomeLegend(), View(frmResults.sscViewTable), nullptr,
         InRow({View(frmResults.sscPrintSystem), ToolView(frmResults.sscHelp2, "help"), nullptr})});
    QWidget* const Table =
        TablePane(frmResults.fraViewTable, {}, frmResults.msgSystem, frmResults.sscHideTable);
    return PageOf(Content, {Table}, {Table});
}

QWidget* CapitalCard()
{
    auto* const Card = new QGroupBox("Capital cost");
    FormRows Rows(Card);
    QWidget* const Table = View(frmResults.msgCost);
    NameField(Table, "Capital cost");
    Rows.AddWide(Snug(Table));
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
    QWidget* const Chosen = InRow({Year, Bar});
    static_cast<QBoxLayout*>(Chosen->layout())->setStretchFactor(Bar, 1);
    QWidget* const Table = View(frmResults.msgAnnualCost);
    NameField(Table, "Annual cost of the year");
    Rows.AddWide(Chosen);
    Rows.AddWide(Snug(Table));
    Rows.AddWide(InRow({View(frmResults.sscIRR), ToolView(frmResults.sscHelp3, "help"), nullptr}));
    return Card;
}

QWidget* CostPage()
{
    constexpr int TwoColumnsFrom = 95; // digits
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
