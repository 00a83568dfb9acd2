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
    QWidget* const Row =
        InRow({WithRole(Text(QString::fromStdString(frmRoughness.Caption).trimmed()), "screen"), nullptr,
               View(frmRoughness.lblScenario), Bar, ToolView(frmRoughness.sscHelp, "help")});
    Row->layout()->setContentsMargins(Gap, 0, Gap, 0);
    return Row;
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
    GridView* const Table = View(frmRoughness.msgRoughnessResults);
    Table->ShowWhole();
    NameField(Table, "Roughness between the measuring points");
    QGroupBox* const Card = View(frmRoughness.fraResults);
    FormRows Rows(Card);
    Rows.AddWide(Snug(Table));
    return Card;
}

QWidget* Buttons()
{
    return InRow({View(frmRoughness.sscCalculate), View(frmRoughness.sscViewGraph),
                  View(frmRoughness.sscPrint), nullptr, View(frmRoughness.sscPrevious)});
}

} // namespace

QWidget* RoughnessLayout()
{
    // Large figures leave a small display no room for the parameters beside them; the buttons stay in sight.
    constexpr int RowFromDigits = 80;
    auto* const Outcome = new TurningBox(RowFromDigits);
    Outcome->Add(InColumn({Results(), Buttons()}), 1);
    Outcome->Add(Parameters(), 0, Qt::AlignTop);
    QWidget* const Column = InColumn({ScenarioBar(), Measurements(), Outcome, nullptr});
    Column->layout()->setContentsMargins(0, Gap / 2, 0, 0);
    return Page(Column);
}

} // namespace velorix
