// The window of the import wizard: one of its three steps at a time.
#include "desktop/Binding.h"
#include "desktop/DialogLayouts.h"
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/Icons.h"
#include "desktop/Views.h"
#include "screens/ImportWizard.h"

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace velorix {
namespace {

// Pixels at 100 %.
constexpr int StepWidth = 505;
constexpr int ReviewWidth = 700; // the whole table beside its scroll bar
constexpr int StepHeight = 360;
constexpr int PictureWidth = 320;

QWidget* Moving(Image& Record)
{
    auto* const View =
        new PictureView(QString::fromStdString(Record.Picture), PictureWidth,
                        "Rows of a spreadsheet are selected, copied, and become a pipeline profile");
    Follow(Record.Picture, View,
           [View](const std::string& Name) { View->Draw(QString::fromStdString(Name)); });
    return InRow({nullptr, View, nullptr});
}

QLabel* Wrapped(Label& Record)
{
    QLabel* const Words = View(Record);
    Words->setWordWrap(true);
    return Words;
}

QLabel* KeepsRoom(QLabel* Words)
{
    QSizePolicy Room = Words->sizePolicy();
    Room.setRetainSizeWhenHidden(true);
    Words->setSizePolicy(Room);
    return Words;
}

// Widens to both sides, within the screen, when a step has another width.
class WizardWindow : public QDialog {
public:
    using QDialog::QDialog;

protected:
    void resizeEvent(QResizeEvent* Resize) override
    {
        QDialog::resizeEvent(Resize);
        if (!isVisible() || !Resize->oldSize().isValid()) return;
        const QRect Room = screen()->availableGeometry();
        QRect Place = geometry();
        Place.moveLeft(Place.left() - (Place.width() - Resize->oldSize().width()) / 2);
        Place.moveRight(std::min(Place.right(), Room.right() - Gap)); // with room for the frame
        Place.moveLeft(std::max(Place.left(), Room.left() + Gap));
        setGeometry(Place);
    }
};

QGroupBox* Step(Frame& Record, int Width)
{
    QGroupBox* const Box = View(Record);
    Box->setFixedWidth(Width);
    Box->setMinimumHeight(StepHeight);
    return Box;
}

QWidget* Instructions()
{
    QGroupBox* const Box = Step(frmImport.fraStep1, StepWidth);
    FormRows Rows(Box);
    Rows.AddWide(Moving(frmImport.imgWizard));
    auto* const Steps = new QWidget;
    auto* const Lines = new QGridLayout(Steps);
    Lines->setContentsMargins(0, Gap, 0, Gap);
    Lines->setHorizontalSpacing(2 * Gap);
    Lines->setColumnStretch(1, 1);
    for (int Line = 1; Line <= 3; ++Line) {
        Lines->addWidget(View(frmImport.lblStepName[Line]), Line, 0, Qt::AlignTop);
        Lines->addWidget(Wrapped(frmImport.lblStepText[Line]), Line, 1);
    }
    Rows.AddWide(Steps);
    QLabel* const GoOn = View(frmImport.lblGoOn);
    GoOn->setText(GoOn->text().remove('&')); // the letter belongs to the button
    Rows.AddWide(GoOn);
    Rows.Close();
    return Box;
}

QWidget* Pasting()
{
    QGroupBox* const Box = Step(frmImport.fraStep2, StepWidth);
    FormRows Rows(Box);
    Rows.AddWide(Wrapped(frmImport.lblSelect));
    Rows.AddWide(Moving(frmImport.imgWizard2));
    QPushButton* const Paste = View(frmImport.sscPaste);
    Paste->setText(Paste->text().trimmed()); // the icon takes its own room
    Paste->setIcon(DrawnIcon("paste"));
    Paste->setShortcut(QKeySequence::Paste);
    QWidget* const Middle = InRow({nullptr, Paste, nullptr});
    Middle->layout()->setContentsMargins(0, 2 * Gap, 0, 2 * Gap);
    Rows.AddWide(Middle);
    QLabel* const Done = WithRole(KeepsRoom(View(frmImport.lblPaste)), "screen");
    Done->setAlignment(Qt::AlignCenter);
    Rows.AddWide(Done);
    Rows.Close();
    return Box;
}

QWidget* Reviewing()
{
    constexpr int AdviceLines = 3;
    constexpr int SignWidth = 32;
    QGroupBox* const Box = Step(frmImport.fraStep3, ReviewWidth);
    FormRows Rows(Box);
    Rows.AddWide(Wrapped(frmImport.lblReview));
    QLabel* const Heading = WithRole(View(frmImport.lblProfileData), "heading");
    QWidget* const Table = View(frmImport.msgFImport);
    TieCaption(Heading, Table);
    Rows.AddWide(Heading);
    Rows.AddWide(Table, 1);
    QLabel* const Advice = KeepsRoom(Wrapped(frmImport.lblAdvice));
    Advice->setMinimumHeight(AdviceLines * Advice->fontMetrics().lineSpacing());
    auto* const Sign = new PictureView("message-exclamation", SignWidth, QString());
    WhenShown(Advice, [Sign](bool Shown) { Sign->setVisible(Shown); });
    QWidget* const Line = InRow({Sign, Advice});
    static_cast<QBoxLayout*>(Line->layout())->setStretchFactor(Advice, 1);
    Rows.AddWide(Line);
    return Box;
}

} // namespace

QDialog* ImportDialog(QWidget* Owner)
{
    auto* const Dialog = new WizardWindow(Owner);
    Dialog->setWindowTitle(QString::fromStdString(frmImport.Caption));
    QPushButton* const Next = View(frmImport.sscNext);
    auto* const Layout = new QVBoxLayout(Dialog);
    Layout->setSizeConstraint(QLayout::SetFixedSize);
    for (QWidget* Each : {Instructions(), Pasting(), Reviewing(),
                          InRow({nullptr, View(frmImport.sscPrevious), Next, View(frmImport.sscCancel),
                                 View(frmImport.sscHelp)})})
        Layout->addWidget(Each);
    Next->setDefault(true); // in its window: it stays the default one while a table has the focus
    Next->setFocus();
    return Dialog;
}

} // namespace velorix
