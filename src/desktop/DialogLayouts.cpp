// Opening dialogs, kind of system, preferences, row deletion and notices.
#include "desktop/DialogLayouts.h"

#include "desktop/ChartParts.h"
#include "desktop/FormRows.h"
#include "desktop/Icons.h"
#include "desktop/QtPlatform.h"
#include "desktop/ScrollBarView.h"
#include "desktop/SurfaceView.h"
#include "desktop/Views.h"
#include "screens/Analyse.h"
#include "screens/ConverterScreen.h"
#include "screens/Dialogs.h"
#include "screens/DutyPointScreen.h"
#include "screens/Guide.h"
#include "screens/ImportWizard.h"
#include "screens/Print.h"

#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace velorix {
namespace {

constexpr int DialogMargin = 16;
constexpr const char* PictureText = "Pipeline between two reservoirs";

QGroupBox* Card(const QString& Heading, const std::vector<QWidget*>& Content)
{
    auto* const Box = new QGroupBox(Heading);
    FormRows Rows(Box);
    for (QWidget* Each : Content) Rows.AddWide(Each);
    return Box;
}

QWidget* Centered(QWidget* Content)
{
    return InRow({nullptr, Content, nullptr});
}

// The gradient behind the intro: bands from one quiet colour to the other.
class IntroWindow : public QDialog {
public:
    explicit IntroWindow(QWidget* Owner)
        : QDialog(Owner, Qt::Dialog | Qt::FramelessWindowHint)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int Bands = 256;
        const QColor Start("#123047");
        const QColor End("#4b8fb3");
        QPainter Painter(this);
        for (int Band = 0; Band < Bands; ++Band) {
            const auto Channel = [Band](int From, int To) { return From + (To - From) * Band / (Bands - 1); };
            const int Top = height() * Band / Bands;
            const int Bottom = height() * (Band + 1) / Bands;
            Painter.fillRect(0, Top, width(), Bottom - Top,
                             QColor(Channel(Start.red(), End.red()), Channel(Start.green(), End.green()),
                                    Channel(Start.blue(), End.blue())));
        }
    }
};

QLabel* White(QLabel* Words, const char* Size)
{
    Words->setStyleSheet(QString("color: white; font-size: %1;").arg(Size));
    Words->setAlignment(Qt::AlignCenter);
    return Words;
}

QWidget* DeletedRow()
{
    const char* const Names[] = {"Elevation",       "Accumulated length", "Pipe diameter", "Wall thickness",
                                 "Pipe cost/metre", "Secondary loss",     "Description"};
    auto* const Box = new QGroupBox("Row to be deleted");
    FormRows Rows(Box);
    const auto Add = [&Rows](const char* Name, Label& Record) {
        QLabel* const Value = View(Record);
        Value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Rows.AddLong(Name, Value);
    };
    Add("Node nr", frmDeleteRow.lblNode);
    int Index = 0;
    for (const char* Name : Names) Add(Name, frmDeleteRow.lblDelete[Index++]);
    return Box;
}

QDialog* AgreeDialog(QWidget* Owner)
{
    constexpr int PictureWidth = 320;
    constexpr int TextWidth = 520;
    QLabel* const Words = View(frmAgree.Text1);
    Words->setWordWrap(true);
    Words->setFixedWidth(TextWidth);
    NameField(Words, "The agreement");

    auto* const Frame = WithRole(new QFrame, "card");
    auto* const Layout = new QVBoxLayout(Frame);
    Layout->setContentsMargins(DialogMargin, DialogMargin, DialogMargin, DialogMargin);
    Layout->addWidget(Words);
    return FixedWindow(frmAgree, Owner,
                       {Centered(new PictureView("pipe", PictureWidth, PictureText)), Frame,
                        InRow({nullptr, DefaultButton(frmAgree.sscAccept), View(frmAgree.sscCancel)})});
}

QDialog* IntroDialog(QWidget* Owner)
{
    constexpr int PictureWidth = 460;
    auto* const Dialog = new IntroWindow(Owner);
    Dialog->setWindowTitle("Velorix");
    auto* const Layout = new QVBoxLayout(Dialog);
    Layout->setContentsMargins(4 * DialogMargin, 2 * DialogMargin, 4 * DialogMargin, 2 * DialogMargin);
    Layout->setSpacing(DialogMargin);
    Layout->addWidget(White(Text("Velorix"), "28pt"));
    Layout->addWidget(new PictureView("pipe", PictureWidth, PictureText));
    Layout->addWidget(White(Text("Life cycle costing of bulk water pipelines"), "12pt"));
    Layout->addWidget(White(View(frmIntro.lblVersion), "10pt"));
    Layout->addWidget(White(View(frmIntro.lblCounter), "10pt"));
    Layout->setSizeConstraint(QLayout::SetFixedSize);
    return Dialog;
}

QDialog* LccTypeDialog(QWidget* Owner)
{
    constexpr int PictureWidth = 300;
    return FixedWindow(frmLCCType, Owner,
                       {new PictureView("pipe", PictureWidth, PictureText),
                        Card("Type of system", {View(frmLCCType.optGravity), View(frmLCCType.optPumping)}),
                        InRow({nullptr, DefaultButton(frmLCCType.sscContinue), View(frmLCCType.sscCancel),
                               View(frmLCCType.sscHelp)})});
}

QDialog* PreferencesDialog(QWidget* Owner)
{
    auto* const Allowances = new QGroupBox("Allowances");
    FormRows Rows(Allowances);
    const std::vector<ScrollBarView*> Bars = {HundredthsView(frmPref.hsbPG, "%"),
                                              HundredthsView(frmPref.hsbContingencies, "%")};
    constexpr int BarWidth = 280;
    AlignBars(Bars);
    for (ScrollBarView* Each : Bars) Each->setMinimumWidth(BarWidth);
    Rows.AddLong("Preliminary and general", Bars[0]);
    Rows.AddLong("Contingencies", Bars[1]);
    return FixedWindow(
        frmPref, Owner,
        {InRow({Card("Units", {View(frmPref.optMetric), View(frmPref.optUS)}),
                Card("Currency", {View(frmPref.optRand), View(frmPref.optDollars)})}),
         Allowances,
         InRow({nullptr, DefaultButton(frmPref.sscOK), View(frmPref.sscCancel), View(frmPref.sscHelp)})});
}

QDialog* DeleteRowDialog(QWidget* Owner)
{
    QPushButton* const No = DefaultButton(frmDeleteRow.sscNo);
    QDialog* const Dialog =
        FixedWindow(frmDeleteRow, Owner,
                    {DeletedRow(), Text("Do you want to delete this row?"),
                     InRow({nullptr, View(frmDeleteRow.sscYes), No, View(frmDeleteRow.sscHelp)})});
    No->setFocus();
    return Dialog;
}

QDialog* DisclaimerDialog(QWidget* Owner)
{
    constexpr int PictureWidth = 300;
    std::vector<QWidget*> Parts = {Centered(new PictureView("pipe", PictureWidth, PictureText))};
    std::vector<QWidget*> Lines;
    for (Label& Each : frmDisclaimer.Lines) {
        QLabel* const Line = View(Each);
        Line->setAlignment(Qt::AlignCenter);
        Lines.push_back(Line);
    }
    QWidget* const Notice = InColumn(Lines);
    Notice->layout()->setSpacing(Gap / 4);
    Parts.push_back(Notice);
    Parts.push_back(Centered(DefaultButton(frmDisclaimer.sscOK)));
    return FixedWindow(frmDisclaimer, Owner, Parts);
}

QDialog* AboutDialog(QWidget* Owner)
{
    constexpr int PictureWidth = 360;
    QPushButton* const Ok = DefaultButton(frmAbout.sscOK);
    QDialog* const Dialog = FixedWindow(
        frmAbout, Owner,
        {Centered(new PictureView("pipe", PictureWidth, PictureText)), WithRole(Text("Velorix"), "figure"),
         InColumn({View(frmAbout.lblVersion), WithRole(View(frmAbout.lblBuildDate), "muted")}),
         View(frmAbout.lblNotice), InRow({View(frmAbout.sscSystemInfo), nullptr, Ok})});
    Ok->setFocus();
    return Dialog;
}

QDialog* DutyPointDialog(QWidget* Owner)
{
    constexpr QSize RoomForCurves(680, 360);
    SurfaceView* const Curves = View(frmDutyPoint.picDuty);
    Curves->setFixedSize(RoomForCurves);
    return FixedWindow(
        frmDutyPoint, Owner,
        {InRow({LineKey({{PumpCurveInk, "Pump curve"}, {SystemCurveInk, "System curve"}}), nullptr}), Curves,
         View(frmDutyPoint.lblAdvice), InRow({nullptr, DefaultButton(frmDutyPoint.sscOK)})});
}

// The groups beside number, units and result. Enter in the field converts too.
QDialog* ConverterDialog(QWidget* Owner)
{
    constexpr int Digits = 20;
    constexpr int GroupWidth = 110;
    constexpr int UnitWidth = 330;
    QListWidget* const Groups = OpenView(frmConverter.lstUnit);
    Groups->setFixedWidth(GroupWidth);
    QLabel* const GroupCaption = Text("Unit group");
    TieCaption(GroupCaption, Groups);
    QLineEdit* const Number = NumberView(frmConverter.txtConvert);
    QLabel* const Result = WithRole(View(frmConverter.lblConvert), "figure");
    Result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton* const Convert = DefaultButton(frmConverter.sscConvert);
    QObject::connect(Number, &QLineEdit::returnPressed, Convert, [Convert] { Convert->click(); });

    auto* const Fields = new QWidget;
    FormRows Rows(Fields, FormRows::Margins::None);
    Rows.AddLong("Convert:", DigitsWide(Number, Digits), Text(""));
    QWidget* const Units[] = {View(frmConverter.comUnit[0]), View(frmConverter.comUnit[1])};
    for (QWidget* Each : Units) Each->setFixedWidth(UnitWidth);
    Rows.AddLong("", Units[0]);
    Rows.AddLong("to", Units[1]);
    NameField(Units[0], "Unit to convert from");
    NameField(Units[1], "Unit to convert to");
    Rows.AddLong("", Result);
    Rows.Close();
    QDialog* const Dialog = FixedWindow(
        frmConverter, Owner,
        {InRow({InColumn({GroupCaption, Groups}), Fields}),
         InRow({nullptr, Convert, View(frmConverter.sscExit), ToolView(frmConverter.sscHelp, "help")})});
    Number->setFocus();
    return Dialog;
}

} // namespace

QDialog* FixedWindow(const Screen& Record, QWidget* Owner, const std::vector<QWidget*>& Parts)
{
    auto* const Dialog = new QDialog(Owner);
    Dialog->setWindowTitle(QString::fromStdString(Record.Caption));
    auto* const Layout = new QVBoxLayout(Dialog);
    Layout->setContentsMargins(DialogMargin, DialogMargin, DialogMargin, DialogMargin);
    Layout->setSpacing(DialogMargin - 4);
    for (QWidget* Each : Parts) Layout->addWidget(Each);
    Layout->setSizeConstraint(QLayout::SetFixedSize);
    for (auto* Each : Dialog->findChildren<QPushButton*>()) {
        if (!Each->isDefault()) continue;
        Each->setDefault(false); // told before it stood in the window, which must learn of it
        Each->setDefault(true);
    }
    return Dialog;
}

QPushButton* DefaultButton(CommandButton& Record)
{
    QPushButton* const Button = View(Record);
    Button->setDefault(true);
    return Button;
}

const std::vector<DialogLayout>& AllDialogs()
{
    static const std::vector<DialogLayout> Dialogs = {
        {&frmAgree, AgreeDialog},           {&frmIntro, IntroDialog},
        {&frmLCCType, LccTypeDialog},       {&frmPref, PreferencesDialog},
        {&frmDeleteRow, DeleteRowDialog},   {&frmAnalyse, AnalyseDialog},
        {&frmDisclaimer, DisclaimerDialog}, {&frmAbout, AboutDialog},
        {&frmDutyPoint, DutyPointDialog},   {&frmImport, ImportDialog},
        {&frmPrint, PrintDialogWindow},     {&frmSelectYear, YearDialog},
        {&frmSelectYear1, GraphYearDialog}, {&frmPDFView, GuideDialog},
        {&frmConverter, ConverterDialog}};
    return Dialogs;
}

void RegisterDialogs(QtPlatform& Windows)
{
    for (const auto& [Shown, Make] : AllDialogs()) Windows.RegisterDialog(*Shown, Make);
}

} // namespace velorix
