// The pane of the pump details: type, description and the points of the pump's curve.
#include "desktop/FormRows.h"
#include "desktop/InputLayout.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace velorix {
namespace {

constexpr int Points = 6;
constexpr int PointDigits = 10;

QWidget* PointField(TextBox& Record, const QString& Name, int Point)
{
    QWidget* const Field = DigitsWide(NumberView(Record), PointDigits);
    NameField(Field, QString("%1, point %2").arg(Name).arg(Point));
    return Field;
}

QWidget* CurveTable()
{
    auto* const Table = new QWidget;
    auto* const Layout = new QGridLayout(Table);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(Gap);
    QWidget* const HeadUnits = View(frmLCC.comHeadUnits);
    QWidget* const FlowUnits = View(frmLCC.comFlowUnits);

    Layout->addWidget(MutedText("Point"), 0, 0);
    QLabel* const Head = Text("Head");
    QLabel* const Flow = Text("Flow rate");
    QLabel* const Efficiency = Text("Efficiency");
    TieCaption(Head, HeadUnits);
    TieCaption(Flow, FlowUnits);
    NameField(HeadUnits, "Head, units");
    NameField(FlowUnits, "Flow rate, units");
    Layout->addWidget(Head, 0, 1);
    Layout->addWidget(Flow, 0, 2);
    Layout->addWidget(Efficiency, 0, 3);
    Layout->addWidget(HeadUnits, 1, 1);
    Layout->addWidget(FlowUnits, 1, 2);
    Layout->addWidget(Text("%"), 1, 3);
    for (int Point = 0; Point < Points; ++Point) {
        const int Row = Point + 2;
        Layout->addWidget(MutedText(QString::number(Point + 1)), Row, 0, Qt::AlignCenter);
        Layout->addWidget(PointField(frmLCC.txtH[Point], "Head", Point + 1), Row, 1);
        Layout->addWidget(PointField(frmLCC.txtQ[Point], "Flow rate", Point + 1), Row, 2);
        Layout->addWidget(PointField(frmLCC.txtEfficiency[Point], "Efficiency", Point + 1), Row, 3);
    }
    Layout->setRowStretch(Points + 2, 1);
    Layout->setColumnStretch(4, 1);
    return Table;
}

QWidget* PumpText()
{
    auto* const Column = new QWidget;
    FormRows Rows(Column, FormRows::Margins::None);
    QLabel* const Type = Text("Pump type");
    QLineEdit* const TypeField = View(frmLCC.txtPumptype);
    QLabel* const Description = Text("Pump configuration");
    QPlainTextEdit* const DescriptionField = MultilineView(frmLCC.txtPumpDescription);
    TieCaption(Type, TypeField);
    TieCaption(Description, DescriptionField);
    Rows.AddWide(Type);
    Rows.AddWide(TypeField);
    Rows.AddWide(Description);
    Rows.AddWide(DescriptionField, 1);
    return Column;
}

} // namespace

QWidget* PumpDetailsPane()
{
    QGroupBox* const Pane = View(frmLCC.fraPumpDetails);
    auto* const Layout = new QGridLayout(Pane);
    Layout->setContentsMargins(CardMargin, CardMargin, CardMargin, CardMargin);
    Layout->setHorizontalSpacing(4 * Gap);
    Layout->setVerticalSpacing(2 * Gap);
    Layout->addWidget(CurveTable(), 0, 0);
    Layout->addWidget(PumpText(), 0, 1);
    Layout->addWidget(InRow({View(frmLCC.sscViewCurve), nullptr, View(frmLCC.sscOK)}), 1, 0, 1, 2);
    Layout->setColumnStretch(1, 1);
    return Pane;
}

} // namespace velorix
