// The windows of printing.
#include "desktop/Binding.h"
#include "desktop/DialogLayouts.h"
#include "desktop/FormRows.h"
#include "desktop/Views.h"
#include "screens/Print.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace velorix {
namespace {

std::vector<QWidget*> ViewsOf(std::initializer_list<CheckBox*> Records)
{
    std::vector<QWidget*> Views;
    for (CheckBox* Each : Records) Views.push_back(View(*Each));
    return Views;
}

QGroupBox* Group(Frame& Record, QWidget* Content)
{
    QGroupBox* const Box = View(Record);
    FormRows(Box).AddWide(Content);
    return Box;
}

// Check boxes under a heading.
QWidget* Column(QLabel* Heading, std::initializer_list<CheckBox*> Records)
{
    std::vector<QWidget*> Parts = {WithRole(Heading, "muted")};
    for (QWidget* Each : ViewsOf(Records)) Parts.push_back(Each);
    return InColumn(Parts);
}

QWidget* Results()
{
    QWidget* const Texts = Column(Text("Tables"), {&frmPrint.chkTextHydraulic, &frmPrint.chkTextDemand,
                                                   &frmPrint.chkTextCost, &frmPrint.chkCost});
    QWidget* const Graphs = Column(View(frmPrint.lblGraphs), {&frmPrint.chkHydraulic, &frmPrint.chkDemand,
                                                              &frmPrint.chkIncome, &frmPrint.chkIRR});
    QWidget* const Both = InRow({Texts, Graphs, nullptr});
    Both->layout()->setSpacing(4 * Gap);
    return Group(frmPrint.Frame1, Both);
}

QWidget* Input()
{
    std::vector<QWidget*> Row =
        ViewsOf({&frmPrint.chkGeneral, &frmPrint.chkProfile, &frmPrint.chkEnergy, &frmPrint.chkRates});
    Row.push_back(nullptr);
    QWidget* const Boxes = InRow(Row);
    Boxes->layout()->setSpacing(2 * Gap);
    return Group(frmPrint.fraInput, Boxes);
}

QDialog* SelectYearDialog(SelectYearScreen& Record, QWidget* Owner)
{
    QLabel* const Question = View(Record.lblQuestion);
    QComboBox* const Years = View(Record.comYear);
    TieCaption(Question, Years);
    QDialog* const Dialog = FixedWindow(
        Record, Owner, {Question, InRow({Years, nullptr}), InRow({nullptr, DefaultButton(Record.sscOK)})});
    Years->setFocus();
    return Dialog;
}

} // namespace

QDialog* PrintDialogWindow(QWidget* Owner)
{
    QToolButton* const Icon = ToolView(frmPrint.sscPrint1, "print");
    QPushButton* const Setup = View(frmPrint.sscSetup);
    Setup->setMinimumWidth(Setup->sizeHint().width() + 2 * Gap);
    QDialog* const Dialog = FixedWindow(frmPrint, Owner,
                                        {WithRole(View(frmPrint.lblSelect), "screen"), Input(), Results(),
                                         InRow({nullptr, DefaultButton(frmPrint.sscPrint), Icon,
                                                View(frmPrint.sscCancel), Setup, View(frmPrint.sscHelp)})});
    RaiseEvents(frmPrint.lblSelect, Dialog); // between the controls too
    return Dialog;
}

QDialog* YearDialog(QWidget* Owner)
{
    return SelectYearDialog(frmSelectYear, Owner);
}

QDialog* GraphYearDialog(QWidget* Owner)
{
    return SelectYearDialog(frmSelectYear1, Owner);
}

} // namespace velorix
