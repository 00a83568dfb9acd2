// The page of the rates and sales: economics, capital cost, income, maintenance and operational cost.
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/InputLayout.h"
#include "desktop/ScrollBarView.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace velorix {
namespace {

constexpr int RateDigits = 6;
constexpr int AmountDigits = 11;
constexpr int LeastTableHeight = 130; // a heading and some rows

QWidget* RateField(TextBox& Record)
{
    return DigitsWide(NumberView(Record), RateDigits);
}

QWidget* AmountField(TextBox& Record)
{
    return DigitsWide(NumberView(Record), AmountDigits);
}

QWidget* EconomicsCard()
{
    auto* const Card = new QGroupBox("Economics");
    FormRows Rows(Card);
    Rows.Add("Escalation rate", RateField(frmLCC.txtEscalation), Text("%"));
    Rows.Add("Discount rate", RateField(frmLCC.txtDiscountRate), Text("%"));
    Rows.Add(View(frmLCC.lblEnergyEscalation), RateField(frmLCC.txtEnergyEscalation),
             View(frmLCC.lblEnergyEscalationUnit));
    Rows.Close();
    return Card;
}

QWidget* CapitalCard()
{
    auto* const Card = new QGroupBox("Capital cost");
    FormRows Rows(Card);
    Rows.Add("Mechanical", AmountField(frmLCC.txtMechanical), ToolView(frmLCC.sscMechanical, "help"),
             View(frmLCC.lblCurrency[0]));
    Rows.Add("Electrical", AmountField(frmLCC.txtElectrical), ToolView(frmLCC.sscElectrical, "help"),
             View(frmLCC.lblCurrency[1]));
    Rows.Add("Supervision", AmountField(frmLCC.txtSupervision), nullptr, View(frmLCC.lblCurrency[2]));
    Rows.Close();
    return Card;
}

QWidget* IncomeCard()
{
    QGroupBox* const Card = View(frmLCC.fraIncome);
    FormRows Rows(Card);
    Rows.Add("Water tariff", RateField(frmLCC.txtWaterSales), View(frmLCC.comWaterSalesUnits),
             View(frmLCC.lblCurrency[3]));
    Rows.Add("Annual increase", RateField(frmLCC.txtWaterIncrease), Text("%"));
    Rows.Close();
    return Card;
}

QWidget* MaintenanceBar(const QString& Name, ScrollBar& Record)
{
    QLabel* const Caption = Text(Name);
    QWidget* const Bar = HundredthsView(Record, "%");
    TieCaption(Caption, Bar);
    NameField(Bar, "Annual maintenance, " + Name);
    return InColumn({Caption, Bar});
}

QWidget* MaintenanceCard()
{
    auto* const Card = new QGroupBox("Annual maintenance, as a part of the cost of the works");
    FormRows Rows(Card);
    Rows.AddWide(InRow({MaintenanceBar("Pipeline", frmLCC.hscMPipeline),
                        MaintenanceBar("Mechanical", frmLCC.hscMMechanical),
                        MaintenanceBar("Electrical", frmLCC.hscMElectrical)}));
    return Card;
}

// Side by side, each no wider than its columns need to be easy to read.
QWidget* OperationalCard()
{
    constexpr int WidestStaff = 560;
    constexpr int WidestExpenses = 440;
    QWidget* const Staff = View(frmLCC.msgOperational, frmLCC.txtCellOperational);
    NameField(Staff, "Staff");
    Staff->setMaximumWidth(WidestStaff);
    QWidget* const Expenses = View(frmLCC.msgOtherOperational, frmLCC.txtCellOtherOperational);
    NameField(Expenses, "Other expenses");
    Expenses->setMaximumWidth(WidestExpenses);

    auto* const Card = new QGroupBox("Operational cost");
    auto* const Tables = new QHBoxLayout(Card);
    Tables->setContentsMargins(CardMargin, CardMargin / 2, CardMargin, CardMargin);
    Tables->setSpacing(2 * Gap);
    Tables->addWidget(Staff, WidestStaff, Qt::AlignTop);
    Tables->addWidget(Expenses, WidestExpenses, Qt::AlignTop);
    Tables->addStretch(1);
    for (QWidget* Each : {Staff, Expenses}) Each->setMinimumHeight(LeastTableHeight);
    return Snug(Card);
}

} // namespace

QWidget* RatesPage()
{
    QWidget* const Money = InRow({EconomicsCard(), CapitalCard(), IncomeCard()});
    return InColumn({Snug(Money), Snug(MaintenanceCard()), OperationalCard(), nullptr});
}

} // namespace velorix
