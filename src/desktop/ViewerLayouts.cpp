// A plot with its controls in rows below it.
#include "desktop/ViewerLayouts.h"

#include "desktop/ChartParts.h"
#include "desktop/FormRows.h"
#include "desktop/ScrollBarView.h"
#include "desktop/SurfaceView.h"
#include "desktop/Views.h"
#include "screens/Viewers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace velorix {
namespace {

const std::vector<KeyEntry> ProfileLines = {{GroundInk, "Pipeline"}, {GradelineInk, "Hydraulic gradeline"}};
constexpr int RowFrom = 91; // digits; with less room a row turns into two
constexpr const char* WideAmounts = "No curve? Income less cost changes by more than 100 million:\n"
                                    "raise the first rate, and press View.";

using Pointed = std::vector<std::pair<const char*, Label*>>;

// The title with what the pointer is at; figures of the year, with the key of the lines; the plot; its
// controls.
QWidget* Viewer(const Screen& Record, const Pointed& ReadOuts, const std::vector<Label*>& Figures,
                const std::vector<KeyEntry>& Lines, QWidget* Plot, const std::vector<QWidget*>& Below)
{
    std::vector<QWidget*> Pointer = {nullptr};
    for (const auto& [Name, Value] : ReadOuts) Pointer.push_back(ReadOut(Name, *Value));
    std::vector<QWidget*> OfYear;
    for (Label* Each : Figures) OfYear.push_back(View(*Each));
    OfYear.push_back(nullptr);

    QLabel* const Title = WithRole(Text(QString::fromStdString(Record.Caption).trimmed()), "screen");
    std::vector<QWidget*> Parts = {new TurningBox(RowFrom, {Title, InRow(Pointer)})};
    if (!Lines.empty())
        Parts.push_back(new TurningBox(RowFrom, {InRow(OfYear), InRow({nullptr, LineKey(Lines)})}));
    Parts.push_back(Plot);
    Parts.insert(Parts.end(), Below.begin(), Below.end());
    QWidget* const Column = InColumn(Parts);
    Column->layout()->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, Gap);
    static_cast<QBoxLayout*>(Column->layout())->setStretchFactor(Plot, 1);
    return Page(Column);
}

QWidget* Range(ProfileViewer& Record)
{
    QWidget* const Year = View(Record.hscYears);
    NameField(Year, "Year of analysis");
    QWidget* const Years = InRow({Text("Year"), Year, View(Record.lblYear), View(Record.sscChangeView)});
    static_cast<QBoxLayout*>(Years->layout())->setStretchFactor(Year, 1);
    return new TurningBox(RowFrom, {InRow({Named("From", View(Record.comBegin)),
                                           Named("To", View(Record.comEnd)), View(Record.sscView), nullptr}),
                                    Years});
}

QWidget* Buttons(ProfileViewer& Record)
{
    return InRow({View(Record.chkHydraulic), nullptr, View(Record.sscPrintView), View(Record.sscOK),
                  ToolView(Record.sscHelp, "help")});
}

QWidget* ScenarioLegend()
{
    constexpr QSize LineSize(22, 4);
    constexpr int RowFromDigits = 125; // room for all of them side by side
    constexpr int OfALine = ScenarioCount / 2;
    std::vector<QWidget*> Halves;
    std::vector<QWidget*> Line;
    for (int Index = 0; Index < ScenarioCount; ++Index) {
        QLabel* const Ink = View(frmViewRoughness.linScenario[Index]);
        Ink->setFixedSize(LineSize);
        Line.insert(Line.end(), {Ink, View(frmViewRoughness.chkScenario[Index])});
        if (Index % OfALine != OfALine - 1) continue;
        Line.push_back(nullptr);
        Halves.push_back(InRow(Line));
        Line.clear();
    }
    return new TurningBox(RowFromDigits, Halves);
}

// The fields of the bars show their rates.
QWidget* Rates()
{
    QWidget* const From = HundredthsView(frmIRRView.hsbBegin, " %");
    QWidget* const To = HundredthsView(frmIRRView.hsbEnd, " %");
    NameField(From, "From");
    NameField(To, "To");
    QWidget* const Row = InRow({Text("From"), From, Text("To"), To, View(frmIRRView.sscView)});
    for (QWidget* Each : {From, To}) static_cast<QBoxLayout*>(Row->layout())->setStretchFactor(Each, 1);
    return Row;
}

} // namespace

QWidget* ProfileViewLayout()
{
    return Viewer(frmView, {{"Distance", &frmView.lblX}, {"Level", &frmView.lblY}},
                  {&frmView.lblKs, &frmView.lblFlowrate, &frmView.lblPumping}, ProfileLines,
                  View(frmView.picGraph), {Range(frmView), Buttons(frmView)});
}

QWidget* RoughnessViewLayout()
{
    return Viewer(frmViewRoughness, {{"Distance", &frmViewRoughness.lblX}, {"Level", &frmViewRoughness.lblY}},
                  {&frmViewRoughness.lblKs, &frmViewRoughness.lblMaxFlow, &frmViewRoughness.lblPumping},
                  ProfileLines, View(frmViewRoughness.picGraph),
                  {ScenarioLegend(), Range(frmViewRoughness), Buttons(frmViewRoughness)});
}

QWidget* PumpViewLayout()
{
    return Viewer(
        frmPumpView,
        {{"Flow rate", &frmPumpView.lblQ}, {"Head", &frmPumpView.lblH}, {"Efficiency", &frmPumpView.lblDEff}},
        {}, {{PumpCurveInk, "Pump curve"}, {EfficiencyInk, "Efficiency"}}, View(frmPumpView.picGraph),
        {InRow({nullptr, View(frmPumpView.sscPrintView), View(frmPumpView.sscOK),
                ToolView(frmPumpView.sscHelp, "help")})});
}

QWidget* IrrViewLayout()
{
    return Viewer(frmIRRView, {{"Rate", &frmIRRView.lblX}, {"Income less cost", &frmIRRView.lblY}}, {}, {},
                  View(frmIRRView.picIRR),
                  {Rates(), new TurningBox(RowFrom, {MutedText(WideAmounts),
                                                     InRow({nullptr, View(frmIRRView.sscPrintView),
                                                            View(frmIRRView.sscOK),
                                                            ToolView(frmIRRView.sscHelp, "help")})})});
}

} // namespace velorix
