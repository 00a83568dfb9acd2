// A plot with its controls in rows below it.
#include "desktop/ViewerLayouts.h"

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

QWidget* Viewer(const Screen& Record, QWidget* Plot, const std::vector<QWidget*>& Below)
{
    QLabel* const Title = WithRole(Text(QString::fromStdString(Record.Caption).trimmed()), "screen");
    std::vector<QWidget*> Parts = {Title, Plot};
    Parts.insert(Parts.end(), Below.begin(), Below.end());
    QWidget* const Column = InColumn(Parts);
    Column->layout()->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, Gap);
    static_cast<QBoxLayout*>(Column->layout())->setStretchFactor(Plot, 1);
    return Page(Column);
}

QWidget* Named(const char* Name, QWidget* Field)
{
    QLabel* const Caption = Text(Name);
    TieCaption(Caption, Field);
    return InRow({Caption, Field});
}

// Figures of the year at the left, what the pointer is at on the right.
QWidget* Readings(const std::vector<Label*>& Figures,
                  const std::vector<std::pair<const char*, Label*>>& Pointed)
{
    std::vector<QWidget*> All;
    for (Label* Each : Figures) All.push_back(View(*Each));
    All.push_back(nullptr);
    for (const auto& [Name, Value] : Pointed) {
        QLabel* const Shown = View(*Value);
        Shown->setMinimumWidth(Shown->fontMetrics().horizontalAdvance("123456.789 miles"));
        All.insert(All.end(), {MutedText(Name), Shown});
    }
    return InRow(All);
}

QWidget* Range(ProfileViewer& Record)
{
    QWidget* const Year = View(Record.hscYears);
    NameField(Year, "Year of analysis");
    return InRow({Named("From", View(Record.comBegin)), Named("To", View(Record.comEnd)),
                  View(Record.sscView), nullptr, Text("Year"), Year, View(Record.lblYear),
                  View(Record.sscChangeView)});
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
    auto* const Legend = new TurningBox(RowFromDigits);
    std::vector<QWidget*> Line;
    for (int Index = 0; Index < ScenarioCount; ++Index) {
        QLabel* const Ink = View(frmViewRoughness.linScenario[Index]);
        Ink->setFixedSize(LineSize);
        Line.insert(Line.end(), {Ink, View(frmViewRoughness.chkScenario[Index])});
        if (Index % OfALine != OfALine - 1) continue;
        Line.push_back(nullptr);
        Legend->Add(InRow(Line));
        Line.clear();
    }
    return Legend;
}

// The bar's own field shows its rate.
QWidget* Rate(const char* Name, ScrollBar& Bar)
{
    QWidget* const Shown = HundredthsView(Bar, " %");
    NameField(Shown, Name);
    return InRow({Text(Name), Shown});
}

} // namespace

QWidget* ProfileViewLayout()
{
    return Viewer(frmView, View(frmView.picGraph),
                  {Readings({&frmView.lblKs, &frmView.lblFlowrate, &frmView.lblPumping},
                            {{"Distance", &frmView.lblX}, {"Level", &frmView.lblY}}),
                   Range(frmView), Buttons(frmView)});
}

QWidget* RoughnessViewLayout()
{
    return Viewer(
        frmViewRoughness, View(frmViewRoughness.picGraph),
        {ScenarioLegend(),
         Readings({&frmViewRoughness.lblKs, &frmViewRoughness.lblMaxFlow, &frmViewRoughness.lblPumping},
                  {{"Distance", &frmViewRoughness.lblX}, {"Level", &frmViewRoughness.lblY}}),
         Range(frmViewRoughness), Buttons(frmViewRoughness)});
}

QWidget* PumpViewLayout()
{
    return Viewer(frmPumpView, View(frmPumpView.picGraph),
                  {InRow({Readings({}, {{"Flow rate", &frmPumpView.lblQ},
                                        {"Head", &frmPumpView.lblH},
                                        {"Efficiency", &frmPumpView.lblDEff}}),
                          View(frmPumpView.sscPrintView), View(frmPumpView.sscOK),
                          ToolView(frmPumpView.sscHelp, "help")})});
}

QWidget* IrrViewLayout()
{
    return Viewer(frmIRRView, View(frmIRRView.picIRR),
                  {InRow({Rate("From", frmIRRView.hsbBegin), Rate("To", frmIRRView.hsbEnd),
                          View(frmIRRView.sscView), nullptr}),
                   InRow({Readings({}, {{"Rate", &frmIRRView.lblX}, {"Income less cost", &frmIRRView.lblY}}),
                          View(frmIRRView.sscPrintView), View(frmIRRView.sscOK),
                          ToolView(frmIRRView.sscHelp, "help")})});
}

} // namespace velorix
