// The measuring grid of a scenario over its results.
#include "desktop/RoughnessLayout.h"

#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/ScrollBarView.h"
#include "desktop/Views.h"
#include "screens/RoughnessScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

namespace velorix {
namespace {

QWidget* ScenarioBar()
{
    constexpr int BarWidth = 260;
    QWidget* const Bar = View(frmRoughness.hscScenario);
    NameField(Bar, "Scenario");
    Bar->setFixedWidth(BarWidth);
    return InRow({WithRole(Text(QString::fromStdString(frmRoughness.Caption).trimmed()), "screen"), nullptr,
                  View(frmRoughness.lblScenario), Bar, ToolView(frmRoughness.sscHelp, "help")});
}

QWidget* FlowRate()
{
    constexpr int Digits = 12;
    QWidget* const Units = View(frmRoughness.comFlowrateUnits);
    NameField(Units, "Flow rate, units");
    return InRow({Named("Flow rate", DigitsWide(NumberView(frmRoughness.txtFlowrate), Digits)), Units,
                  nullptr, Named("Pressure units", View(frmRoughness.comPressureUnits))});
}

QWidget* Measurements()
{
    QWidget* const Table = View(frmRoughness.msgRoughness, frmRoughness.txtCell, &frmRoughness.comAccLength);
    NameField(Table, "Measured pressures");
    QGroupBox* const Card = View(frmRoughness.fraScenario);
    FormRows Rows(Card);
    Rows.AddWide(Snug(Table));
    Rows.AddWide(FlowRate());
    return Card;
}

QWidget* Parameters()
{
    QGroupBox* const Card = View(frmRoughness.fraParameters);
    FormRows Rows(Card);
    for (CheckBox* Each :
         {&frmRoughness.chkColebrook, &frmRoughness.chkHazen, &frmRoughness.chkBarr, &frmRoughness.Check1})
        Rows.AddWide(View(*Each));
    Rows.Close();
    QFont Heading = Card->font();
    Heading.setBold(true);
    Card->setMinimumWidth(QFontMetrics(Heading).horizontalAdvance(Card->title()) + 2 * CardMargin);
    return Card;
}

QWidget* Results()
{
    QWidget* const Table = View(frmRoughness.msgRoughnessResults);
    NameField(Table, "Roughness between the measuring points");
    QGroupBox* const Card = View(frmRoughness.fraResults);
    FormRows Rows(Card);
    Rows.AddWide(Snug(Table));
    return Card;
}

// Beside the results: a small display has no room to spare below them.
QWidget* Buttons()
{
    auto* const Place = new QWidget;
    auto* const Layout = new QGridLayout(Place);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(Gap);
    Layout->addWidget(View(frmRoughness.sscCalculate), 0, 0);
    Layout->addWidget(View(frmRoughness.sscViewGraph), 0, 1);
    Layout->addWidget(View(frmRoughness.sscPrint), 1, 0);
    Layout->addWidget(View(frmRoughness.sscPrevious), 1, 1);
    return Place;
}

} // namespace

QWidget* RoughnessLayout()
{
    QWidget* const Outcome = InRow({Results(), InColumn({Parameters(), nullptr, Buttons()})});
    static_cast<QBoxLayout*>(Outcome->layout())->setStretch(0, 1);
    QWidget* const Column = InColumn({ScenarioBar(), Measurements(), Outcome, nullptr});
    Column->layout()->setContentsMargins(Gap, Gap / 2, Gap, Gap);
    return Page(Column);
}

} // namespace velorix
