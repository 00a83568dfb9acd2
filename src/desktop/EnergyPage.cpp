// The page of the energy data: pumping hours, and for each season its rates and the class of every hour.
#include "desktop/FormRows.h"
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
    QString Name;
    Color ClassColor;
    TextBox& Value;
    Label& Sign;
};

// A small field in the colour of a rate class; together with the names beside them they are the legend.
QWidget* Swatch(Color ClassColor)
{
    constexpr int Side = 14;
    auto* const Field = new QLabel;
    Field->setFixedSize(Side, Side);
    Field->setStyleSheet(QString("background: rgb(%1, %2, %3); border: 1px solid #5c6a76;")
                             .arg(ClassColor.Red())
                             .arg(ClassColor.Green())
                             .arg(ClassColor.Blue()));
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
    QLabel* const Caption = Text(Shown.Name);
    QWidget* const Field = DigitsWide(NumberView(Shown.Value), Digits);
    TieCaption(Caption, Field);
    NameField(Field, Season + ", " + Shown.Name);
    return InRow({Swatch(Shown.ClassColor), Caption, Field, Joined(View(Shown.Sign), Text("/kW"))});
}

// A bar of a few steps.
QWidget* Bar(ScrollBar& Record)
{
    constexpr int Width = 400;
    QWidget* const Shown = View(Record);
    Shown->setFixedWidth(Width);
    return Shown;
}

const ColorNames RateClasses = {{OffpeakColor, "off-peak"}, {StandardColor, "standard"}, {PeakColor, "peak"}};

QWidget* HourStrip(Array0<Label, 24>& Hours, const QString& Season)
{
    constexpr int CellHeight = 30;
    std::vector<QWidget*> Cells;
    for (Label& Each : Hours) {
        QLabel* const Cell = ColorView(Each, RateClasses);
        Cell->setMinimumWidth(CellHeight * 3 / 4);
        Cell->setFixedHeight(CellHeight);
        Cell->setAlignment(Qt::AlignCenter);
        NameField(Cell, QString("%1, hour %2").arg(Season).arg(Cells.size() + 1));
        Cells.push_back(Cell);
    }
    QWidget* const Strip = InRow(Cells);
    Strip->layout()->setSpacing(2);
    for (int Index = 0; Index < static_cast<int>(Cells.size()); ++Index)
        static_cast<QBoxLayout*>(Strip->layout())->setStretch(Index, 1);
    return Strip;
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
    QWidget* const Summer = SeasonCard(frmLCC.fraSummer, &frmLCC.fsbSummer,
                                       {{"Peak", PeakColor, frmLCC.txtSPeak, frmLCC.lblUnit[0]},
                                        {"Standard", StandardColor, frmLCC.txtSStandard, frmLCC.lblUnit[1]},
                                        {"Off-peak", OffpeakColor, frmLCC.txtSOffpeak, frmLCC.lblUnit[2]}},
                                       frmLCC.lblSummerHour);
    QWidget* const Winter = SeasonCard(frmLCC.fraWinter, nullptr,
                                       {{"Peak", PeakColor, frmLCC.txtWPeak, frmLCC.lblUnit[3]},
                                        {"Standard", StandardColor, frmLCC.txtWStandard, frmLCC.lblUnit[4]},
                                        {"Off-peak", OffpeakColor, frmLCC.txtWOffpeak, frmLCC.lblUnit[5]}},
                                       frmLCC.lblWinterHour);
    return InColumn({Summer, Winter, HoursCard(), nullptr});
}

} // namespace velorix
