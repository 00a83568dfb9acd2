// The page of the general data: project, years, and the frames of either kind of system.
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/Icons.h"
#include "desktop/InputLayout.h"
#include "desktop/ScrollBarView.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace velorix {
namespace {

constexpr int Digits = 12;          // of demands and levels
constexpr int DescriptionLines = 2; // that always show
constexpr int WidestTable = 300;
constexpr int LeastTableHeight = 96; // a heading and two years

QWidget* ProjectCard()
{
    auto* const Card = new QGroupBox("Project");
    FormRows Rows(Card);
    QPlainTextEdit* const Description = MultilineView(frmLCC.txtDescription);
    Description->setMinimumHeight(Description->fontMetrics().lineSpacing() * DescriptionLines + CardMargin);

    Rows.AddLong("Project name", View(frmLCC.txtProject));
    Rows.AddLong("Designer", View(frmLCC.txtDesigner));
    Rows.AddLong("Date", View(frmLCC.dtpDate), ToolView(frmLCC.sscHelp, "help"));
    Rows.AddLong("Description", Description);
    return Card;
}

QWidget* YearsCard()
{
    auto* const Card = new QGroupBox("Years");
    FormRows Rows(Card);
    const std::vector<ScrollBarView*> Bars = {View(frmLCC.hscLife, " years"), View(frmLCC.hscBaseYear),
                                              View(frmLCC.hscSupplyStart)};
    AlignBars(Bars);
    Rows.AddLong("Analysis life", Bars[0]);
    Rows.AddLong("Base year", Bars[1]);
    Rows.AddLong("Start of supply", Bars[2]);
    return Card;
}

QWidget* LevelsCard(Frame& Record, TextBox& Upper, ComboBox& UpperUnits, TextBox& Lower, ComboBox& LowerUnits,
                    const QString& UpperName, const QString& LowerName)
{
    QGroupBox* const Card = View(Record);
    FormRows Rows(Card);
    Rows.Add(UpperName, DigitsWide(NumberView(Upper), Digits), View(UpperUnits));
    Rows.Add(LowerName, DigitsWide(NumberView(Lower), Digits), View(LowerUnits));
    return Card;
}

// The selector of the units beside the table of the years.
QWidget* YearlyDemand(Frame& Record, QLabel* Caption, ComboBox& Units, Grid& Table, TextBox& Editor)
{
    QWidget* const Selector = View(Units);
    TieCaption(Caption, Selector);
    QWidget* const Years = View(Table, Editor);
    Years->setMinimumHeight(LeastTableHeight);
    Years->setMaximumWidth(WidestTable);
    NameField(Years, "Demand of each year");

    QGroupBox* const Group = WithRole(View(Record), "rows");
    auto* const Layout = new QHBoxLayout(Group);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(2 * Gap);
    Layout->addWidget(InColumn({Caption, Selector, nullptr}));
    Layout->addWidget(Years, WidestTable);
    Layout->addStretch(1);
    return Group;
}

QWidget* Indented(QWidget* Content)
{
    auto* const Box = new QWidget;
    auto* const Layout = new QHBoxLayout(Box);
    Layout->setContentsMargins(2 * CardMargin, 0, 0, 0);
    Layout->addWidget(Content);
    return Box;
}

// Under each option stands what it takes.
QWidget* GravityDemandCard()
{
    QGroupBox* const Fixed = WithRole(View(frmLCC.fraGravityFlowrate), "rows");
    FormRows FixedRows(Fixed, FormRows::Margins::None);
    FixedRows.Add(View(frmLCC.Label52), DigitsWide(NumberView(frmLCC.txtGFlowrate), Digits),
                  View(frmLCC.comGFlowrateUnits));

    QGroupBox* const Card = View(frmLCC.fraGravityOption);
    FormRows Rows(Card);
    Rows.AddWide(View(frmLCC.optGSpecifiedFlowrate));
    Rows.AddWide(Indented(Fixed));
    Rows.AddWide(View(frmLCC.optGCalculatedFlowrate));
    Rows.AddWide(Indented(YearlyDemand(frmLCC.fraVaryingDemand, View(frmLCC.Label53),
                                       frmLCC.comVaryingDemandUnits, frmLCC.msgDemand, frmLCC.txtDemand)),
                 1);
    return Card;
}

// The options stand side by side, and what the chosen one takes below them.
QWidget* PumpDemandCard()
{
    QGroupBox* const Fixed = WithRole(View(frmLCC.FraPumpFixedDemand), "rows");
    FormRows FixedRows(Fixed, FormRows::Margins::None);
    FixedRows.Add("Demand", DigitsWide(NumberView(frmLCC.txtPFlowrate), Digits),
                  View(frmLCC.comPFlowrateUnits));
    QWidget* const Varying =
        YearlyDemand(frmLCC.fraPumpVaryingDemand, Text("Demand units"), frmLCC.comPumpVaryingDemandUnits,
                     frmLCC.msgPumpDemand, frmLCC.txtPumpDemand);

    QGroupBox* const Card = View(frmLCC.fraPumpOption);
    FormRows Rows(Card);
    Rows.AddWide(InRow({View(frmLCC.optPumpFixed), View(frmLCC.optPumpVarying), nullptr}));
    Rows.AddWide(Fixed);
    Rows.AddWide(Varying, 1);
    WhenShown(Varying, [Card](bool Shown) { // without its table the card needs no more than its rows
        Card->setSizePolicy(QSizePolicy::Preferred, Shown ? QSizePolicy::Expanding : QSizePolicy::Maximum);
    });
    return Card;
}

QWidget* PumpingCard()
{
    QGroupBox* const Operating = WithRole(View(frmLCC.fraPumpingFlowrate), "rows");
    FormRows OperatingRows(Operating, FormRows::Margins::None);
    OperatingRows.Add("Operating flow rate", DigitsWide(NumberView(frmLCC.txtPumpOperatingFlowrate), Digits),
                      View(frmLCC.comPumpOperatingFlowrateUnits));
    OperatingRows.Add("Pump efficiency", DigitsWide(NumberView(frmLCC.txtPumpEfficiency), Digits), Text("%"));

    QGroupBox* const Curve = WithRole(View(frmLCC.fraPumpcurve), "rows");
    FormRows CurveRows(Curve, FormRows::Margins::None);
    CurveRows.AddWide(InRow({View(frmLCC.sscPumpcurve), nullptr}));

    QGroupBox* const Card = View(frmLCC.FraPumpingOption);
    FormRows Rows(Card);
    Rows.AddWide(View(frmLCC.optFlowrate));
    Rows.AddWide(View(frmLCC.optPumpDetails));
    Rows.AddWide(Operating);
    Rows.AddWide(Curve);
    return Card;
}

// Cards under each other; those with a table take the height that is left.
QWidget* Column(const std::vector<QWidget*>& Cards, const std::vector<QWidget*>& Growing)
{
    constexpr int AllThatIsLeft = 1000;
    QWidget* const Box = InColumn(Cards);
    auto* const Layout = static_cast<QBoxLayout*>(Box->layout());
    for (QWidget* Each : Growing) Layout->setStretchFactor(Each, AllThatIsLeft);
    Layout->addStretch(1);
    return Box;
}

QWidget* ProjectColumn()
{
    QWidget* const Project = ProjectCard(); // its description takes any length
    return Column(
        {Project, YearsCard(),
         LevelsCard(frmLCC.fraGravityReservoirs, frmLCC.txtTRWL, frmLCC.comTRWLUnits, frmLCC.txtBRWL,
                    frmLCC.comBRWLUnits, "Top reservoir water level", "Bottom reservoir water level"),
         LevelsCard(frmLCC.fraPumpReservoir, frmLCC.txtPPRWL, frmLCC.comPPRWLUnits, frmLCC.txtPERWL,
                    frmLCC.comPERWLUnits, "Pumpstation reservoir level", "End reservoir level")},
        {Project});
}

QWidget* SystemColumn()
{
    QWidget* const Gravity = GravityDemandCard();
    QWidget* const Pumping = PumpDemandCard();
    return Column({Gravity, Pumping, PumpingCard()}, {Gravity, Pumping});
}

} // namespace

QWidget* GeneralPage()
{
    constexpr int HighestContent = 680;
    auto* const Content = new QWidget;
    Content->setMaximumHeight(HighestContent);
    auto* const Columns = new QHBoxLayout(Content);
    Columns->setContentsMargins(0, 0, 0, 0);
    Columns->setSpacing(Gap);
    Columns->addWidget(ProjectColumn(), 1);
    Columns->addWidget(SystemColumn(), 1);
    QWidget* const Pane = PumpDetailsPane();
    StandInFor(Pane, Content, Pane->findChild<QComboBox*>());
    return Column({Content, Pane}, {Content, Pane});
}

} // namespace velorix
