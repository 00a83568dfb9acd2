// The page of the energy data: pumping hours, and for each season its rates and the class of every hour.
#include "desktop/FormRows.h"
#include "desktop/HourStrip.h"
#include "desktop/InputLayout.h"
#include "desktop/ScrollBarView.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace velorix {
namespace {

constexpr int Digits = 8; // of a rate

struct Rate {
    const RateClass& Class;
    TextBox& Value;
    Label& Sign;
};

// A small field in the colour and with the letter of a rate class; together with the names beside them they
// are the legend.
QWidget* Swatch(const RateClass& Class)
{
    constexpr int Side = 18;
    auto* const Field = new QLabel(Class.Name.left(1));
    Field->setAlignment(Qt::AlignCenter);
    Field->setFixedSize(Side, Side);
    Field->setStyleSheet(QString("background: rgb(%1, %2, %3); color: black; border: 1px solid #5c6a76;")
                             .arg(Class.Fill.Red())
                             .arg(Class.Fill.Green())
                             .arg(Class.Fill.Blue()));
    return Field;
}

// Text without a gap to its left neighbour.
QWidget* Joined(QWidget* Left, QWidget* Right)
{
    QWidget* const Box = InRow({Left, Right});
    Box->layout()->setSpacing(0);
    return Box;
}

QWidget* RateField(const Rate& Shown, const QString& Season)
{
    QLabel* const Caption = Text(Shown.Class.Name);
    QWidget* const Field = DigitsWide(NumberView(Shown.Value), Digits);
    TieCaption(Caption, Field);
    NameField(Field, Season + ", " + Shown.Class.Name);
    return InRow({Swatch(Shown.Class), Caption, Field, Joined(View(Shown.Sign), Text("/kW"))});
}

// A bar of a few steps.
QWidget* Bar(ScrollBar& Record)
{
    constexpr int Width = 400;
    QWidget* const Shown = View(Record);
    Shown->setFixedWidth(Width);
    return Shown;
}

QGroupBox* SeasonCard(Frame& Record, ScrollBar* Months, const std::vector<Rate>& Rates,
                      Array0<Label, 24>& Hours)
{
    QGroupBox* const Card = View(Record);
    const QString Season = QString::fromStdString(Record.Caption);
    FormRows Rows(Card);
    if (Months) Rows.Add("Summer months", Bar(*Months));

    std::vector<QWidget*> Fields;
    for (const Rate& Each : Rates) Fields.push_back(RateField(Each, Season));
    Fields.push_back(nullptr);
    QWidget* const RateRow = InRow(Fields);
    RateRow->layout()->setSpacing(3 * Gap);
    Rows.AddWide(RateRow);
    Rows.AddWide(MutedText("Rate of each hour of the day"));
    Rows.AddWide(HourStrip(Hours, Season));
    return Card;
}

QWidget* HoursCard()
{
    auto* const Card = new QGroupBox("Pumping");
    FormRows Rows(Card);
    Rows.AddLong("Pumping hours per day", Bar(frmLCC.fsbPumpingHours), ToolView(frmLCC.sscHelp2, "help"));
    return Card;
}

} // namespace

QWidget* EnergyPage()
{
    const auto& [Peak, Standard, Offpeak] = RateClasses;
    QWidget* const Summer = SeasonCard(frmLCC.fraSummer, &frmLCC.fsbSummer,
                                       {{Peak, frmLCC.txtSPeak, frmLCC.lblUnit[0]},
                                        {Standard, frmLCC.txtSStandard, frmLCC.lblUnit[1]},
                                        {Offpeak, frmLCC.txtSOffpeak, frmLCC.lblUnit[2]}},
                                       frmLCC.lblSummerHour);
    QWidget* const Winter = SeasonCard(frmLCC.fraWinter, nullptr,
                                       {{Peak, frmLCC.txtWPeak, frmLCC.lblUnit[3]},
                                        {Standard, frmLCC.txtWStandard, frmLCC.lblUnit[4]},
                                        {Offpeak, frmLCC.txtWOffpeak, frmLCC.lblUnit[5]}},
                                       frmLCC.lblWinterHour);
    return InColumn({Summer, Winter, HoursCard(), nullptr});
}

} // namespace velorix
